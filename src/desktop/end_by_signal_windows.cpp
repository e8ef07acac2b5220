#include "desktop/end_by_signal.h"

#include <QSocketNotifier>

namespace bannersmith {

EndBySignal::EndBySignal() = default;
EndBySignal::~EndBySignal() = default;
void EndBySignal::Watch() {}
void EndBySignal::Take_Signal() {}
void EndBySignal::End_Process() const {}

}  // namespace bannersmith
