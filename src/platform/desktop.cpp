#include "platform/desktop.h"

#include <cstdio>

#include "platform/text.h"

void ConsoleDialogs::Message(const std::u16string& /*text*/) {}

void ConsoleDialogs::Report(const Failure& failure) {
    const std::string line =
        "bannersmith: " + To_Utf8(failure.subject) + ": " + failure.reason + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::u16string ConsoleDialogs::Open_File(const std::u16string& /*filter*/) {
    return {};
}
