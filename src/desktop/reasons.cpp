#include "desktop/reasons.h"

#include <QtGlobal>

#include "desktop/text.h"

namespace bannersmith {

namespace {

/// What the engine says in English, for the tool that collects what is to be translated. Reasons
/// that tell of a name or a number stay English.
[[maybe_unused]] constexpr const char* Reasons[] = {
    QT_TRID_NOOP("Not enough memory"),
    QT_TRID_NOOP("No layout is loaded"),
    QT_TRID_NOOP("Names no layout file"),
    QT_TRID_NOOP("Holds no line; write one with any path into it"),
    QT_TRID_NOOP("Too short to be a layout"),
    QT_TRID_NOOP("Is no archive of a channel"),
    QT_TRID_NOOP("IMET checksum does not hold"),
    QT_TRID_NOOP("IMD5 checksum does not hold"),
    QT_TRID_NOOP("Holds neither banner.bin nor icon.bin"),
    QT_TRID_NOOP("Holds no layout"),
    QT_TRID_NOOP("Has no such channel name"),
    QT_TRID_NOOP("Is a program, not a layout file"),
    QT_TRID_NOOP("Another run of Bannersmith is at work in its folder"),
    QT_TRID_NOOP("Not a whole number up to 268435456, with or without + in front of it"),
    QT_TRID_NOOP("Has no picture of the game"),
    QT_TRID_NOOP("Is neither a PNG nor a JPEG picture nor a texture"),
    QT_TRID_NOOP("Is neither a PNG nor a JPEG picture"),
    QT_TRID_NOOP("Picture is cut off"),
    QT_TRID_NOOP("Picture is broken"),
    QT_TRID_NOOP("Is too large"),
    QT_TRID_NOOP("Is no texture, or is cut off"),
    QT_TRID_NOOP("Texture is broken"),
    QT_TRID_NOOP("A scheme's name cannot begin with . or hold \\ or /"),
    QT_TRID_NOOP("Not an ordinary file"),
    QT_TRID_NOOP("Is a directory"),
    QT_TRID_NOOP("No such file or directory"),
    QT_TRID_NOOP("Permission denied"),
    QT_TRID_NOOP("Read-only file system"),
    QT_TRID_NOOP("No space left on device"),
    QT_TRID_NOOP("Disk quota exceeded"),
    QT_TRID_NOOP("File too large"),
};

}  // namespace

QString Reason_In_Words(const std::string& reason) {
    return Said(reason.c_str());
}

}  // namespace bannersmith
