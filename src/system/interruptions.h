#pragma once

#include <memory>

namespace bannersmith {

/// Holds back, from its beginning to its end, the signals by which a user or the system ends a
/// process (Ctrl-C, a closed terminal, a shutdown). One that arrives meanwhile takes effect at the
/// end. A write beyond a limit on file sizes is an error of the write meanwhile, and no signal.
class InterruptionsHeld {
 public:
    InterruptionsHeld();
    ~InterruptionsHeld();
    InterruptionsHeld(const InterruptionsHeld&) = delete;
    InterruptionsHeld& operator=(const InterruptionsHeld&) = delete;

    /// Whether one has arrived.
    static bool Pending();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace bannersmith
