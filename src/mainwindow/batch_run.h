#pragma once

#include "banner/banner.h"
#include "mainwindow/command_line.h"
#include "mainwindow/layout_file.h"

namespace bannersmith {

/// A run without windows: edits and saves one layout as a command line says. Stops at the first
/// failure.
class BatchRun {
 public:
    /// Exit statuses.
    static constexpr int Done = 0;
    static constexpr int Failed = 1;    ///< the layout file and the logo texture are as they were
    static constexpr int NoLayout = 2;  ///< the command line names no layout that can be read

    /// `report` is told what went wrong, and what is odd about what was saved.
    BatchRun(Process process, Notice report);

    /// The whole run. Returns the exit status.
    int Run();

 private:
    int Edit_And_Save();
    Result<> Open(const std::u16string& configured);
    Result<> Hold_Folder_Of(const std::u16string& layout);
    void Take(const std::u16string& text);
    void Tell_Of_Cut_Path() const;
    Result<> Save();
    std::vector<std::string> What_Is_Odd(const SavePlan& plan) const;
    int Fail(int status, const Failure& failure) const;

    Process process_;
    Notice report_;
    Configuration configuration_;
    CommandLine command_;
    std::u16string text_;  ///< the path of the layout as it was typed or stored
    OpenedLayout opened_;
    FolderLock lock_;  ///< from load to save
};

}  // namespace bannersmith
