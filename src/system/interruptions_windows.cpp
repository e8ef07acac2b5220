#include <windows.h>

#include <atomic>
#include <mutex>
#include <shared_mutex>

#include "system/interruptions.h"

namespace bannersmith {

namespace {

std::shared_mutex held;  // by each thread that must not be ended
std::atomic<bool> pending = false;

/// Runs in a thread of its own. The next handler ends the process.
BOOL WINAPI Wait_And_End(DWORD /*event*/) {
    pending = true;
    const std::unique_lock wait(held);
    return FALSE;
}

}  // namespace

struct InterruptionsHeld::State {
    std::shared_lock<std::shared_mutex> lock{held};
};

InterruptionsHeld::InterruptionsHeld() : state_(std::make_unique<State>()) {
    ::SetConsoleCtrlHandler(Wait_And_End, TRUE);
}

InterruptionsHeld::~InterruptionsHeld() {
    ::SetConsoleCtrlHandler(Wait_And_End, FALSE);
}

bool InterruptionsHeld::Pending() {
    return pending;
}

}  // namespace bannersmith
