#include "desktop/end_by_signal.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>

namespace bannersmith {

namespace {

/// All but those that the process was started to ignore.
sigset_t Signals() {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler != SIG_IGN) ::sigaddset(&set, signal);
    }
    return set;
}

}  // namespace

EndBySignal::EndBySignal() {
    const sigset_t set = Signals();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    descriptor_ = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

EndBySignal::~EndBySignal() {
    notifier_.reset();
    if (descriptor_ >= 0) ::close(descriptor_);
}

void EndBySignal::Watch() {
    if (descriptor_ < 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &EndBySignal::Take_Signal);
}

void EndBySignal::Take_Signal() {
    signalfd_siginfo info{};
    if (::read(descriptor_, &info, sizeof info) != sizeof info) return;
    signal_ = static_cast<int>(info.ssi_signo);
    QCoreApplication::exit(0);
}

void EndBySignal::End_Process() const {
    if (signal_ == 0) return;
    ::raise(signal_);
    const sigset_t set = Signals();
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

}  // namespace bannersmith
