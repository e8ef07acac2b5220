// The texts of the windows in the user's language.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace bannersmith {

/// `text`, which is English UTF-8, in the user's language; itself where nothing translates it. The
/// tool that collects what is to be translated looks for calls of this name, so `text` is a
/// literal.
std::u16string Say(const char* text);

/// `pattern` with the values in the places of "%1" and "%2".
std::u16string Filled(std::u16string_view pattern, std::u16string_view first,
                      std::u16string_view second = {});

/// Sets what translates, which returns an empty text for what it does not know. Nothing does at
/// first.
void Speak_With(std::function<std::u16string(const char* text)> translate);

}  // namespace bannersmith
