// What the main window and a batch run share: the configuration, and the layout file that a path
// text leads to.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "banner/banner.h"
#include "base/result.h"

namespace bannersmith {

/// Where and how the program was started.
struct Process {
    std::u16string program_folder;  ///< folder of the executable, no separator at its end
    std::u16string command_line;    ///< everything after the program's name, as one text
};

/// What the padding box holds at first.
inline constexpr std::u16string_view DefaultPadding = u"12000";

/// The configuration file: one line with the path text of the layout file used last.
class Configuration {
 public:
    explicit Configuration(const std::u16string& program_folder);

    const std::u16string& Path() const { return path_; }

    /// The line. Fails where the file cannot be read or is empty.
    Result<std::u16string> Read() const;

    /// Makes `line` the line, unless it is already. A path that cannot be stored is no reason to
    /// stop working, so a failure is not reported. A path that the code page does not have, or of
    /// more than a line, would come back as another path, so the last one stays.
    void Store(const std::u16string& line) const;

 private:
    std::u16string path_;
};

/// The layout that a path text leads to.
struct OpenedLayout {
    Banner banner;        ///< none where there is no such file
    std::string why_not;  ///< the reason where there is one that cannot be edited
};

/// Loads the file that `text` leads to, if there is one, and stores the text in the configuration.
/// `history` as `Banner::Load` takes it.
OpenedLayout Open_Layout(const std::u16string& program_folder, const std::u16string& text,
                         std::size_t history);

/// For a folder that is no unpacked channel: the one banner that lies in it, or else 00000000.app.
/// The path itself for all others.
std::u16string Banner_In_Folder(const std::u16string& path);

/// Why the text led to no layout that can be saved. `unnamed`: what named nothing, for an empty
/// text.
Failure Why_No_Layout(const OpenedLayout& opened, const std::u16string& program_folder,
                      const std::u16string& text, const std::u16string& unnamed);

/// `Banner::Save`; a signal that would end the process takes effect behind it, or before the first
/// file changes.
Result<> Save_Uninterrupted(const Banner& banner, const SavePlan& plan, const FolderLock& lock,
                            const Notice& notice);

/// The logo file that a text names: a bare name lies in the logos folder, "\..." below the
/// program's folder, and a full path is taken as it is.
std::u16string Logo_Path(const std::u16string& program_folder, std::u16string_view lgPath);

}  // namespace bannersmith
