#include "exchange/report.h"

#include <algorithm>
#include <cmath>

#include "base/message.h"
#include "base/text.h"
#include "inspect/report.h"

namespace bannersmith {

namespace {

constexpr const char* StatusNames[] = {"saved", "unchanged", "would be saved", "failed"};

const char* Status_Of(const Outcome& outcome) {
    return StatusNames[static_cast<std::size_t>(outcome.status)];
}

std::string Quoted(const std::u16string& text) {
    return "\"" + Readable(text) + "\"";
}

std::string Change_Line(const Change& change) {
    return "  " + change.kind + " " + Readable(From_Utf8(change.where)) + ": " +
           Quoted(change.before) + " -> " + Quoted(change.after) + "\n";
}

std::string Json(const std::string& text) {
    return Json_String(From_Utf8(text));
}

std::string Change_Json(const Change& change) {
    return R"({"kind": )" + Json(change.kind) + R"(, "where": )" + Json(change.where) +
           R"(, "before": )" + Json_String(change.before) + R"(, "after": )" +
           Json_String(change.after) + "}";
}

template <typename Items, typename ToJson>
std::string Json_Array(const Items& items, ToJson to_json) {
    std::string array;
    for (const auto& item : items) array += (array.empty() ? "" : ", ") + to_json(item);
    return "[" + array + "]";
}

}  // namespace

std::string Outcome_Lines(const Outcome& outcome, bool diff) {
    if (outcome.status == Outcome::Status::failed) return {};
    std::string lines = Readable(outcome.banner) + ": " + Status_Of(outcome);
    const std::size_t count = outcome.changes.size();
    if (count > 0) lines += ", " + std::to_string(count) + (count == 1 ? " change" : " changes");
    lines += "\n";
    if (!diff) return lines;
    for (const Change& change : outcome.changes) lines += Change_Line(change);
    return lines;
}

std::string Trouble_Lines(const Outcome& outcome) {
    std::string lines;
    const auto add = [&](const Failure& failure) {
        lines += "bannersmith-edit: " + One_Line(failure) + "\n";
    };
    for (const std::string& notice : outcome.notices) add({outcome.banner, notice});
    if (outcome.status == Outcome::Status::failed) {
        const bool of_other_file = outcome.failure.subject != outcome.banner;
        add({outcome.banner, of_other_file ? One_Line(outcome.failure) : outcome.failure.reason});
    }
    return lines;
}

std::string Outcome_Json(const Outcome& outcome) {
    std::string object = R"({"file": )" + Json_String(outcome.banner) + R"(, "status": )" +
                         Json(Status_Of(outcome)) + R"(, "changes": )" +
                         Json_Array(outcome.changes, Change_Json) + R"(, "notices": )" +
                         Json_Array(outcome.notices, Json);
    if (outcome.status == Outcome::Status::failed) {
        object += R"(, "failure": )" + Json(One_Line(outcome.failure));
    }
    return object + "}";
}

std::string Progress_Line(std::size_t done, std::size_t all,
                          std::chrono::duration<double> elapsed) {
    std::string line = std::to_string(done) + " of " + std::to_string(all);
    if (done == 0 || elapsed.count() <= 0) return line;
    const double rate = static_cast<double>(done) / elapsed.count();
    const double left = static_cast<double>(all - std::min(done, all)) / rate;
    return line + ", " + std::to_string(std::lround(rate)) + " a second, " +
           std::to_string(std::lround(std::ceil(left))) + " s left";
}

}  // namespace bannersmith
