// The controls of the windows as state and events, without drawing. The windows' logic is written
// against these types; a view mirrors them into a toolkit's widgets, or nothing does.
//
// Changing a text or a selection from code runs the event's handler before the call returns, and
// only when the value changes. What a person does comes in through the member functions that say
// so.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/desktop.h"
#include "texture/picture.h"

namespace bannersmith {

/// What happens on an event: nothing until a handler is set.
class Event {
 public:
    /// Sets the handler in place of the one before.
    void operator=(std::function<void()> handler) { handler_ = std::move(handler); }
    /// Adds a handler behind those that are set.
    void operator+=(std::function<void()> handler) {
        handler_ = [first = std::move(handler_), second = std::move(handler)] {
            if (first) first();
            second();
        };
    }
    /// Runs the handlers before it returns.
    void Raise() const {
        if (handler_) handler_();
    }

 private:
    std::function<void()> handler_;
};

/// What all controls share: `Shown` runs after every change of state, in front of the control's own
/// event, so that a view is never behind the handlers.
class Control {
 public:
    Event Shown;

    /// What the user should know of the control beside what it shows, in words; a view makes a
    /// control that has any stand out. Empty at first.
    const std::u16string& Mark() const { return mark_; }
    void Set_Mark(std::u16string_view mark) {
        if (mark == mark_) return;
        mark_ = mark;
        Shown.Raise();
    }

 private:
    std::u16string mark_;
};

/// A box with one line of text.
class TextBox : public Control {
 public:
    Event Change;  ///< the text is another one

    /// Begins with `text` and raises nothing.
    explicit TextBox(std::u16string text = {}) : text_(std::move(text)) {}

    /// What the box shows.
    const std::u16string& Text() const { return text_; }

    /// From code or typed by a person: raises `Change` when the text is another one.
    void Set(std::u16string_view text) {
        if (text == text_) return;
        text_ = text;
        Shown.Raise();
        Change.Raise();
    }

 private:
    std::u16string text_;
};

/// A list from which a person picks one entry and into which nothing can be typed.
class DropDownList : public Control {
 public:
    static constexpr int NoSelection = -1;  ///< the index where nothing is selected

    Event Click;  ///< the selection changed, or a person picked an entry

    /// Whether a person may pick an entry now, asked before anything changes; yes without this.
    std::function<bool()> may_pick;

    /// The picture that a view shows beside an entry, by its index; none without this.
    std::function<std::optional<Picture>(int index)> picture_of;

    /// Begins with `entries`, nothing selected.
    explicit DropDownList(std::vector<std::u16string> entries = {})
        : entries_(std::move(entries)) {}

    /// The entries from the first to the last, their number, and the selected one's index from 0.
    const std::vector<std::u16string>& Entries() const { return entries_; }
    int Count() const { return static_cast<int>(entries_.size()); }
    int Index() const { return index_; }
    /// Whether the last entry is selected; also true of an empty list.
    bool On_Last_Entry() const { return index_ == Count() - 1; }

    /// The text of the selected entry; empty when none is selected.
    std::u16string Selected() const {
        return index_ == NoSelection ? std::u16string()
                                     : entries_[static_cast<std::size_t>(index_)];
    }

    /// Empties the list, which leaves nothing selected and raises no event.
    void Clear() {
        entries_.clear();
        index_ = NoSelection;
        Shown.Raise();
    }

    /// Appends entries, which can be many, and raises no event.
    void Add(const std::vector<std::u16string>& entries) {
        entries_.insert(entries_.end(), entries.begin(), entries.end());
        Shown.Raise();
    }

    /// From code: raises `Click` when the selection changes. An index that is none of the list's is
    /// taken as no selection.
    void Select(int index) {
        if (index < 0 || index >= Count()) index = NoSelection;
        if (index == index_) return;
        index_ = index;
        Shown.Raise();
        Click.Raise();
    }

    /// By a person: raises `Click` also when the entry was selected already.
    void Pick(int index) {
        if (may_pick && !may_pick()) {
            Shown.Raise();  // a view shows the picked entry already
        } else if (index == index_) {
            Click.Raise();
        } else {
            Select(index);
        }
    }

 private:
    std::vector<std::u16string> entries_;
    int index_ = NoSelection;
};

/// A window, or a page of one, as a whole.
class Form : public Control {
 public:
    /// Hidden until it is shown.
    bool Visible() const { return visible_; }
    /// Whether a person can work in it.
    bool Enabled() const { return enabled_; }

    /// Shows the window and returns at once; hides it.
    void Show() { Change(visible_, true); }
    void Hide() { Change(visible_, false); }
    /// Lets a person work in the window or not.
    void Set_Enabled(bool enabled) { Change(enabled_, enabled); }

 private:
    void Change(bool& state, bool value) {
        if (state == value) return;
        state = value;
        Shown.Raise();
    }

    bool visible_ = false;
    bool enabled_ = true;
};

/// Enumerates the files of a folder that match a pattern. The listing is that of the moment when
/// the folder was last set.
class FileList {
 public:
    /// `endings`: what the names end in, for example ".tpl" for the pattern "*.tpl".
    explicit FileList(std::vector<std::string_view> endings) : endings_(std::move(endings)) {}

    /// Lists `folder`: file names sorted by name; none where it fails.
    Result<> Set_Path(const std::u16string& folder);

    /// The names as they were listed, without their folder.
    const std::vector<std::u16string>& Names() const { return names_; }

 private:
    std::vector<std::string_view> endings_;
    std::vector<std::u16string> names_;
};

/// A text that the user cannot edit.
class Label : public Control {
 public:
    /// What the label shows.
    const std::u16string& Caption() const { return caption_; }

    /// Shows another text; raises no event of its own.
    void Set(std::u16string_view caption) {
        if (caption == caption_) return;
        caption_ = caption;
        Shown.Raise();
    }

 private:
    std::u16string caption_;
};

/// A picture that the user cannot edit.
class PictureBox : public Control {
 public:
    /// What the box shows.
    const Picture& Value() const { return picture_; }

    /// Shows another picture; raises no event of its own.
    void Set(Picture picture) {
        picture_ = std::move(picture);
        Shown.Raise();
    }

 private:
    Picture picture_;
};

/// A box of one colour that can be clicked.
class ColorBox : public Control {
 public:
    /// The box's colour, light grey at first.
    Color Value() const { return color_; }

    /// Shows another colour; raises no event of its own.
    void Set(Color color) {
        if (color == color_) return;
        color_ = color;
        Shown.Raise();
    }

 private:
    static constexpr Color LightGrey = 0xE0E0E0;

    Color color_ = LightGrey;
};

}  // namespace bannersmith
