// What would be lost without a word, and the questions about it.
#include <utility>

#include "forms/say.h"
#include "mainwindow/form1.h"

namespace bannersmith {

namespace {

/// The answers to what becomes of typed texts and of unsaved changes, in the order of the buttons.
enum Answer : std::size_t { keep, discard, cancel };

std::vector<std::u16string> Set_Discard_Cancel() {
    return {Say("Set it first"), Say("Discard"), Say("Cancel")};
}

std::vector<std::u16string> Save_Discard_Cancel() {
    return {Say("Save"), Say("Discard"), Say("Cancel")};
}

}  // namespace

std::u16string Form1::Unset_Fields() const {
    std::u16string fields;
    const auto add = [&](const std::u16string& name) {
        fields += (fields.empty() ? u"" : u", ") + name;
    };
    for (std::size_t field = 0; field < GameInfo::Fields; ++field) {
        if (info.Is_Unset(field)) add(info.Name_Of(field));
    }
    if (names.Has_Unset()) add(Say("Channel names"));
    return fields;
}

void Form1::Set_Fields() {
    for (std::size_t field = 0; field < GameInfo::Fields; ++field) {
        if (info.Is_Unset(field)) info.Set(field);
    }
    if (names.Has_Unset()) names.cmdSet_Click();
    Tell_What_Is_Loaded();
}

void Form1::Show_Fields_Again() {
    for (std::size_t field = 0; field < GameInfo::Fields; ++field) info.Show_Again(field);
    names.Refill();
}

/// Before its language changes.
bool Form1::Settle_Field(std::size_t field) {
    if (!info.Is_Unset(field)) return true;
    const auto answer = desktop_.Choose(
        Filled(Say("%1 was typed and is not set."), info.Name_Of(field)), Set_Discard_Cancel());
    if (answer == keep) {
        info.Set(field);
        Tell_What_Is_Loaded();
    }
    if (answer == discard) info.Show_Again(field);
    return answer != cancel;
}

/// Before a save.
bool Form1::Settle_Fields() {
    const std::u16string unset = Unset_Fields();
    if (unset.empty()) return true;
    const auto answer =
        desktop_.Choose(Filled(Say("What was typed is not set, and would not be saved: %1"), unset),
                        Set_Discard_Cancel());
    if (answer == keep) Set_Fields();
    if (answer == discard) Show_Fields_Again();
    return answer != cancel;
}

bool Form1::Has_Unsaved_Work() const {
    return Has_Unsaved_Changes() || !Unset_Fields().empty();
}

/// Before another file is taken, or the window closes.
bool Form1::Settle_Work() {
    if (!Settle_Kept_Work()) return false;
    if (!Has_Unsaved_Work()) return true;
    const std::u16string unset = Unset_Fields();
    std::u16string question = Filled(Say("%1 does not have the latest changes."), txtSrc.Text());
    if (!unset.empty()) question += u"\n" + Filled(Say("Not set yet: %1"), unset);
    const auto answer = desktop_.Choose(question, Save_Discard_Cancel());
    if (answer == keep) {
        Set_Fields();
        return Save_Changes();
    }
    if (answer == discard) Drop_Work();
    return answer != cancel;
}

/// Nothing is loaded then, so that nothing asks once more.
void Form1::Drop_Work() {
    opened_ = {};
    Show_Fields_Again();
}

/// The path names something else now, perhaps on the way to a third file.
void Form1::Keep_Work() {
    const std::u16string& name = opened_.banner.Source().Name();
    if (!opened_.banner.Is_Loaded() || name == txtSrc.Text() || !Has_Unsaved_Work()) return;
    kept_ = std::make_unique<KeptWork>(
        KeptWork{std::move(opened_), info.Take_Content(), names.Take_Content()});
}

bool Form1::Give_Back_Work() {
    if (!kept_ || kept_->opened.banner.Source().Name() != txtSrc.Text()) return false;
    const auto kept = std::exchange(kept_, nullptr);
    opened_ = std::move(kept->opened);
    Configuration(process_.program_folder).Store(txtSrc.Text());
    info.Refill();
    info.Give_Back(kept->info);
    names.Refill();
    names.Give_Back(kept->names);
    return true;
}

void Form1::txtSrc_Leave() {
    Settle_Kept_Work();
}

/// Whether there is none, or it was saved, or given up.
bool Form1::Settle_Kept_Work() {
    if (!kept_) return true;
    const std::u16string other = txtSrc.Text(), name = kept_->opened.banner.Source().Name();
    const auto answer = desktop_.Choose(Filled(Say("%1 does not have the latest changes."), name),
                                        Save_Discard_Cancel());
    if (answer == discard) {
        kept_.reset();
        return true;
    }
    txtSrc.Set(name);  // gives it back
    if (answer == cancel) return false;
    Set_Fields();
    if (!Save_Changes()) return false;
    txtSrc.Set(other);
    return true;
}

/// Before another window opens, as changes of a second banner would take the place of kept work.
bool Form1::May_Edit() {
    return !opened_.banner.Is_Loaded() || Settle_Kept_Work();
}

/// Once for each time that the file is loaded or saved: whoever goes on is asked again by the save.
void Form1::Look_At_File() {
    if (!form.Enabled() || is_change_known_ || !opened_.banner.Is_Loaded()) return;
    if (!opened_.banner.Was_Changed_Elsewhere()) return;
    is_change_known_ = true;
    const auto answer = desktop_.Choose(
        Filled(Say("%1 was changed by another program since it was loaded."), txtSrc.Text()),
        {Say("Reload"), Say("Keep what is here")});
    if (answer == 0) Load();
}

/// Before a save. Whether to write over what another program wrote.
bool Form1::Settle_Change_Elsewhere() {
    if (!opened_.banner.Was_Changed_Elsewhere()) return true;
    const auto answer = desktop_.Choose(
        Filled(Say("%1 was changed by another program since it was loaded. Save over it?"),
               txtSrc.Text()),
        {Say("Overwrite"), Say("Reload"), Say("Cancel")});
    if (answer == 1) Load();
    return answer == 0;
}

}  // namespace bannersmith
