#include "system/process.h"

#include "base/message.h"

namespace bannersmith {

void Print_Failure(const Failure& failure) {
    Print("bannersmith: " + One_Line(failure) + "\n", stderr);
}

}  // namespace bannersmith
