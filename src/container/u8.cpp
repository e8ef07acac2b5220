#include "container/u8.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "base/numbers.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr auto Magic = "\x55\xAA\x38\x2D"sv;
constexpr std::size_t HeaderSize = 0x20, RootAt = 4, TableSizeAt = 8, DataAt = 12;
constexpr std::size_t ReservedAt = 16;
constexpr std::size_t NodeSize = 12, NodeOffsetAt = 4, NodeLengthAt = 8;
constexpr std::size_t MostNodes = 4096, DeepestFolder = 16, LongestName = 255;
constexpr std::size_t UsualAlignment = 32;

Failure Broken(const std::string& reason) {
    return {u"", "U8 archive: " + reason};
}

std::size_t Align(std::size_t offset, std::size_t alignment) {
    return (offset + alignment - 1) / alignment * alignment;
}

/// `name` in capitals, as names are compared.
std::string Folded(std::string_view name) {
    std::string folded(name);
    for (char& c : folded) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return folded;
}

/// The node table of an archive and the strings behind it.
class Table {
 public:
    static Result<Table> Read(std::string_view bytes) {
        if (bytes.size() < HeaderSize || !bytes.starts_with(Magic)) {
            return Broken("has no whole header");
        }
        const std::size_t root = Read_U32(bytes, RootAt), size = Read_U32(bytes, TableSizeAt);
        if (root < HeaderSize || root > bytes.size() || size > bytes.size() - root ||
            size < NodeSize) {
            return Broken("its table lies outside of it");
        }
        Table table;
        table.at_ = root;
        table.nodes_ = bytes.substr(root, size);
        table.count_ = Read_U32(bytes, root + NodeLengthAt);
        if (!table.Is_Folder(0) || table.count_ == 0 || table.count_ > size / NodeSize) {
            return Broken("its root is no folder of the table");
        }
        if (table.count_ > MostNodes) return Broken("has more than 4096 nodes");
        table.names_ = table.nodes_.substr(table.count_ * NodeSize);
        return table;
    }

    std::size_t Count() const { return count_; }
    /// Where the table, and a node of it, lies in the archive.
    std::size_t End() const { return at_ + nodes_.size(); }
    std::size_t Place(std::size_t node) const { return at_ + node * NodeSize; }

    bool Is_Folder(std::size_t node) const { return nodes_[node * NodeSize] == 1; }
    bool Is_File(std::size_t node) const { return nodes_[node * NodeSize] == 0; }
    std::size_t Offset(std::size_t node) const {
        return Read_U32(nodes_, node * NodeSize + NodeOffsetAt);
    }
    std::size_t Length(std::size_t node) const {
        return Read_U32(nodes_, node * NodeSize + NodeLengthAt);
    }

    Result<std::string> Name(std::size_t node) const {
        const std::size_t at = Read_U32(nodes_, node * NodeSize) & 0xFFFFFF;
        const std::size_t end = at < names_.size() ? names_.find('\0', at) : names_.npos;
        if (end == names_.npos) return Broken("a name lies outside of the table");
        std::string name(names_.substr(at, end - at));
        if (name.empty() || name == "." || name == ".." || name.size() > LongestName ||
            name.find_first_of("/\\") != name.npos) {
            return Broken("a name cannot be one of a file: \"" + name + "\"");
        }
        return name;
    }

 private:
    std::string_view nodes_, names_;
    std::size_t at_ = 0, count_ = 0;
};

/// Walks through the nodes, which stand in the order of a walk through the folders.
class Walk {
 public:
    Walk(std::string_view bytes, const Table& table) : bytes_(bytes), table_(table) {}

    Result<std::vector<U8Member>> Members() {
        folders_.push_back({0, table_.Count(), ""});
        for (std::size_t node = 1; node < table_.Count(); ++node) {
            while (node >= folders_.back().end) folders_.pop_back();
            const auto name = table_.Name(node);
            if (!name) return name.Why();
            const std::string path = folders_.back().path + *name;
            if (!paths_.insert(Folded(path)).second) return Broken(path + " is there twice");
            const auto entered = table_.Is_Folder(node) ? Enter(node, path) : Add(node, path);
            if (!entered) return entered.Why();
        }
        return std::move(members_);
    }

 private:
    struct Folder {
        std::size_t node, end;
        std::string path;  ///< with "/" at its end
    };

    Result<> Enter(std::size_t node, const std::string& path) {
        const Folder& parent = folders_.back();
        const std::size_t end = table_.Length(node);
        if (table_.Offset(node) != parent.node || end <= node || end > parent.end) {
            return Broken("folder " + path + " does not lie in the one that it is in");
        }
        if (folders_.size() == DeepestFolder) return Broken("its folders are too deep");
        folders_.push_back({node, end, path + "/"});
        return {};
    }

    Result<> Add(std::size_t node, const std::string& path) {
        if (!table_.Is_File(node)) return Broken(path + " is neither file nor folder");
        const std::size_t offset = table_.Offset(node), size = table_.Length(node);
        if (offset > bytes_.size() || size > bytes_.size() - offset ||
            (size > 0 && offset < table_.End())) {
            return Broken(path + " lies outside of it");
        }
        members_.push_back({path, offset, size, table_.Place(node)});
        return {};
    }

    std::string_view bytes_;
    const Table& table_;
    std::vector<Folder> folders_;
    std::set<std::string> paths_;
    std::vector<U8Member> members_;
};

/// The members by the place where they lie.
std::vector<std::size_t> In_Order_Of_Bytes(const std::vector<U8Member>& members) {
    std::vector<std::size_t> order(members.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(members[a].offset, a) < std::pair(members[b].offset, b);
    });
    return order;
}

Result<> Check_Overlap(const std::vector<U8Member>& members) {
    std::size_t end = 0;
    for (const std::size_t i : In_Order_Of_Bytes(members)) {
        if (members[i].size == 0) continue;
        if (members[i].offset < end) {
            return Broken(members[i].path + " shares bytes with another member");
        }
        end = members[i].offset + members[i].size;
    }
    return {};
}

/// The largest one that every member with bytes keeps to.
std::size_t Alignment(const std::vector<U8Member>& members) {
    std::size_t common = UsualAlignment;
    for (const U8Member& member : members) {
        if (member.size > 0) common = std::gcd(common, member.offset);
    }
    return common;
}

}  // namespace

bool Begins_As_U8(std::string_view bytes) {
    return bytes.starts_with(Magic);
}

Result<std::vector<U8Member>> Read_U8(std::string_view bytes) {
    const auto table = Table::Read(bytes);
    if (!table) return table.Why();
    auto members = Walk(bytes, *table).Members();
    if (!members) return members;
    if (const auto apart = Check_Overlap(*members); !apart) return apart.Why();
    return members;
}

std::vector<std::string> Odd_In_U8(std::string_view bytes, const std::vector<U8Member>& members) {
    std::vector<std::string> odd;
    const auto add = [&](const std::string& what) { odd.push_back(Broken(what).reason); };
    const auto is_used = [](char byte) { return byte != '\0'; };
    const std::size_t table_end = HeaderSize + Read_U32(bytes, TableSizeAt);
    if (Read_U32(bytes, DataAt) != Align(table_end, UsualAlignment)) {
        add("its header tells of another place for its first file");
    }
    std::string between(bytes.substr(ReservedAt, HeaderSize - ReservedAt));
    std::size_t end = std::min(table_end, bytes.size());
    std::size_t before = 0;
    for (const U8Member& member : members) {
        if (member.size == 0) continue;
        if (member.offset < before) add(member.path + " lies in front of a file before it");
        if (member.offset % UsualAlignment != 0) add(member.path + " lies at no multiple of 32");
        before = member.offset;
    }
    for (const std::size_t i : In_Order_Of_Bytes(members)) {
        if (members[i].offset > end) between += bytes.substr(end, members[i].offset - end);
        end = std::max(end, members[i].offset + members[i].size);
    }
    between += bytes.substr(end);
    if (std::any_of(between.begin(), between.end(), is_used)) {
        add("bytes other than zero where no file is");
    }
    return odd;
}

std::string Replace_U8_Members(std::string before, std::string_view bytes,
                               const std::vector<U8Member>& members, const NewMembers& changed) {
    std::vector<std::size_t> order = In_Order_Of_Bytes(members);
    const std::size_t alignment = Alignment(members);
    // An empty member in front of the first byte of all lies nowhere, and stays there.
    order.erase(order.begin(), std::find_if(order.begin(), order.end(),
                                            [&](std::size_t i) { return members[i].size > 0; }));
    std::size_t old_end = order.empty() ? bytes.size() : members[order[0]].offset;
    const std::size_t start = before.size();
    std::string result = std::move(before);
    result.reserve(start + bytes.size());
    result += bytes.substr(0, old_end);
    // What lies between the end of a member and the next multiple fills up; more than that is kept.
    const auto go_on_to = [&](std::size_t old_next) {
        const std::size_t filled = Align(old_end, alignment), end = result.size() - start;
        const std::size_t missing = Align(end, alignment) - end;
        if (filled > old_next || missing == filled - old_end) {
            result += bytes.substr(old_end, old_next - old_end);
        } else {
            result.append(missing, '\0') += bytes.substr(filled, old_next - filled);
        }
    };
    for (const std::size_t i : order) {
        const U8Member& member = members[i];
        go_on_to(member.offset);
        const auto fresh = changed.find(i);
        const std::size_t node = start + member.node, offset = result.size() - start;
        Write_U32(result, node + NodeOffsetAt, static_cast<std::uint32_t>(offset));
        if (fresh == changed.end()) {
            result += bytes.substr(member.offset, member.size);
        } else {
            Write_U32(result, node + NodeLengthAt,
                      static_cast<std::uint32_t>(fresh->second.size()));
            result += fresh->second;
        }
        old_end = member.offset + member.size;
    }
    go_on_to(bytes.size());
    return result;
}

}  // namespace bannersmith
