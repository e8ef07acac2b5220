// What the windows ask of the desktop and of the process they run in.
#pragma once

#include <string>

#include "platform/failure.h"

/// Where and how the program was started.
struct Process {
    std::u16string program_folder;  ///< folder of the executable, no separator at its end
    std::u16string command_line;    ///< everything after the program's name, as one text
};

/// The questions and messages of the windows. A call returns when the user has answered.
class Dialogs {
 public:
    virtual ~Dialogs() = default;

    /// Shows `text` with an OK button.
    virtual void Message(const std::u16string& text) = 0;

    /// Tells the user what went wrong with what.
    virtual void Report(const Failure& failure) = 0;

    /// The full path of a file of the user's choice, or an empty text when there was none.
    /// `filter`: pairs of a description and a pattern, all separated by "|".
    virtual std::u16string Open_File(const std::u16string& filter) = 0;
};

/// The dialogs of a run without windows: failures go to standard error as one line each,
/// "bannersmith: SUBJECT: REASON"; messages are not shown and every question is left unanswered.
class ConsoleDialogs : public Dialogs {
 public:
    void Message(const std::u16string& text) override;
    void Report(const Failure& failure) override;
    std::u16string Open_File(const std::u16string& filter) override;
};
