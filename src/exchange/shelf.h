// Many banners, edited and saved in groups that share the waits for the disk.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "exchange/changes.h"
#include "exchange/options.h"
#include "system/replace_files.h"

namespace bannersmith {

/// One banner, and what becomes of it.
struct ShelfJob {
    std::u16string banner;  ///< a layout file, an archive, or an unpacked channel's folder
    std::vector<Wish>
        wishes;  ///< in order; what a recipe says that stands there already is no edit
};

/// How a shelf is worked on.
struct ShelfOptions {
    std::u16string current_folder;  ///< what bare names of layouts are below
    std::vector<Wish> for_all;      ///< done to each banner before its own wishes, also where the
                                    ///< values stand there already
    bool lenient = false;           ///< an edit that finds nothing to change is only told
    bool dry_run = false;           ///< nothing is written
    std::u16string output;          ///< where the one banner's copy goes; empty for its own place
    std::u16string output_folder;   ///< the same for many, each by its own path below the folder
    std::u16string backup;          ///< behind the name of what keeps the old bytes; empty for none
    unsigned threads = 1;
};

/// What became of a banner.
struct Outcome {
    enum class Status { saved, unchanged, would_be_saved, failed };
    std::u16string banner;
    Status status = Status::failed;
    Failure failure = {};                   ///< of a failed one
    std::vector<std::string> notices = {};  ///< "Saved, but ...", "no text box ...; --title ..."
    std::vector<Change> changes = {};
};

/// Works through jobs. A failed one leaves its banner as it was and concerns no other.
class Shelf {
 public:
    /// The next job; nothing at the end.
    using Source = std::function<std::optional<ShelfJob>()>;
    /// Takes the outcomes, group after group. Never called by two threads at once.
    using Listener = std::function<void(const Outcome&)>;

    Shelf(ShelfOptions options, Source source, Listener listener);

    /// Everything, in groups of `MostInGroup` at most. Interruptions, which the caller holds back,
    /// end it behind the groups that are being saved: false then. Memory does not grow with the
    /// number of jobs.
    bool Run();

    static constexpr std::size_t MostInGroup = 64;

 private:
    class Group;
    void Work(std::vector<ShelfJob> jobs);
    std::vector<ShelfJob> Take_Group();
    void Tell(const std::vector<Outcome>& outcomes);

    ShelfOptions options_;
    Source source_;
    Listener listener_;
    std::mutex mutex_;  ///< of the source, the listener, and what follows
    bool interrupted_ = false;
    std::atomic<bool> at_end_ = false;
};

}  // namespace bannersmith
