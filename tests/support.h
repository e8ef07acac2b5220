// What the tests share: temporary folders with real files, a desktop that answers as told, layouts.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/form1.h"
#include "platform/desktop.h"
#include "samples/layout_builder.h"

/// A folder of its own for each test, removed at the end.
class TempFolder {
 public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::filesystem::path Path() const { return path_; }
    std::u16string Text() const { return path_.u16string(); }
    /// Writes a file below the folder, making its folders.
    void Write(const std::string& name, std::string_view bytes) const;
    /// The file's bytes, or "(none)".
    std::string Read(const std::string& name) const;
    /// Every file below the folder by its name, links and temporary files included.
    std::vector<std::string> Names() const;

 private:
    std::filesystem::path path_;
};

/// Notes what it is shown and answers what it is told to.
class TestDesktop : public Desktop {
 public:
    std::vector<std::u16string> messages;
    std::vector<Failure> failures;
    std::u16string file, filter;
    std::u16string answer, question;
    Color color = 0;
    std::u16string code_page_lacks;  ///< characters that the system's code page has not

    bool confirms = true;

    bool Confirm(const std::u16string& asked) override {
        question = asked;
        return confirms;
    }
    void Message(const std::u16string& text) override { messages.push_back(text); }
    void Report(const Failure& failure) override { failures.push_back(failure); }
    std::u16string Open_File(const std::u16string& wanted) override {
        filter = wanted;
        return file;
    }
    std::u16string Ask(const std::u16string& prompt, const std::u16string& title) override {
        question = title + u"|" + prompt;
        return answer;
    }
    Color Choose_Color(Color before) override { return color ? color : before; }
    /// Each character as wide as the font is high.
    float Text_Width(std::u16string_view text, const Font& font) override {
        return static_cast<float>(text.size()) * font.points * 20;
    }
    std::u16string In_Code_Page(std::u16string_view text) override;
};

/// A minimal layout: header, sections, closing group.
std::string Layout_With(std::vector<std::string> sections);

/// A clean text box's section.
std::string Box(std::string_view name, std::u16string_view text);

/// A text box's section with any lengths and any bytes at its end.
std::string Odd_Box(std::string_view name, const std::string& stored, unsigned buffer_length, unsigned text_length);

/// `bytes` as hexadecimal digits, for readable failures.
std::string Hex(std::string_view bytes);
