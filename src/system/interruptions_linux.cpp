#include <csignal>
#include <ctime>

#include "system/interruptions.h"

namespace bannersmith {

namespace {

/// All but those that the process was started to ignore.
sigset_t Interruptions() {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler != SIG_IGN) ::sigaddset(&set, signal);
    }
    return set;
}

}  // namespace

/// What this thread held back before.
struct InterruptionsHeld::State {
    sigset_t before{};
};

InterruptionsHeld::InterruptionsHeld() : state_(std::make_unique<State>()) {
    sigset_t signals = Interruptions();
    ::sigaddset(&signals, SIGXFSZ);
    ::pthread_sigmask(SIG_BLOCK, &signals, &state_->before);
}

InterruptionsHeld::~InterruptionsHeld() {
    sigset_t limit;
    ::sigemptyset(&limit);
    ::sigaddset(&limit, SIGXFSZ);
    const timespec at_once{};
    ::sigtimedwait(&limit, nullptr, &at_once);  // its write has failed and was told
    ::pthread_sigmask(SIG_SETMASK, &state_->before, nullptr);
}

bool InterruptionsHeld::Pending() {
    sigset_t pending, arrived;
    ::sigpending(&pending);
    const sigset_t wanted = Interruptions();
    ::sigandset(&arrived, &pending, &wanted);
    return ::sigisemptyset(&arrived) == 0;
}

}  // namespace bannersmith
