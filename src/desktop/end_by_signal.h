#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;

namespace bannersmith {

/// From its beginning on, signals that would end the process (Ctrl-C, a closed terminal, a
/// shutdown) end the toolkit's event loop instead, between two events and so never in the middle of
/// a save. To be made before the toolkit starts threads. Does nothing on systems without such
/// signals.
class EndBySignal : public QObject {
 public:
    EndBySignal();
    ~EndBySignal() override;

    /// To be called when the application is there.
    void Watch();

    /// To be called when the event loop has ended: ends the process by the signal that has arrived,
    /// if one has.
    void End_Process() const;

 private:
    void Take_Signal();

    std::unique_ptr<QSocketNotifier> notifier_;
    int descriptor_ = -1;
    int signal_ = 0;
};

}  // namespace bannersmith
