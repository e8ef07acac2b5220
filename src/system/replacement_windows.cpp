#include <algorithm>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <string>

#include "base/text.h"
#include "system/interruptions.h"
#include "system/replacement.h"
#include "system/windows_calls.h"

namespace bannersmith {

namespace fs = std::filesystem;

namespace {

/// A path in `folder` that no other file of this process has had.
std::wstring Unused_Path(const fs::path& folder, const char* prefix) {
    static std::atomic<unsigned> count = 0;
    const std::string name = prefix + std::to_string(::GetCurrentProcessId()) + "-" +
                             std::to_string(::GetTickCount64()) + "-" + std::to_string(count++);
    return (folder / name).wstring();
}

/// Empty, or the file's path where it stays although it was to be removed.
std::wstring Remove_File(std::wstring& file) {
    const std::wstring path = std::exchange(file, {});
    const bool gone =
        path.empty() || ::DeleteFileW(path.c_str()) != 0 || ::DeleteFileW(path.c_str()) != 0;
    return gone ? std::wstring() : path;
}

bool Move_Over(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD Flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return ::MoveFileExW(from.c_str(), to.c_str(), Flags) != 0;
}

/// Fails while another program keeps the file from being replaced.
Result<> Require_Replaceable(const std::wstring& path) {
    const Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, Everyone, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
    if (!file.Is_Open()) return Error_Of(::GetLastError());
    if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return Because("Not an ordinary file");
    return {};
}

/// The same for all processes that work in one folder. A lock has no name longer than a path, and
/// none with a separator in it.
std::wstring Lock_Name(const fs::path& folder) {
    std::wstring path = folder.wstring();
    ::CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a
    for (const wchar_t unit : path)
        hash = (hash ^ static_cast<std::uint16_t>(unit)) * 0x100000001B3;
    return L"Global\\Bannersmith-" + std::to_wstring(hash);
}

}  // namespace

Result<> FolderLock::Folder::Open(fs::path folder) {
    std::error_code error;
    path = fs::canonical(folder, error);
    if (error) return Because(error.message());
    // Not a mutex, which one thread alone could let go.
    handle =
        reinterpret_cast<std::intptr_t>(::CreateSemaphoreW(nullptr, 1, 1, Lock_Name(path).c_str()));
    return {};
}

FolderLock::Folder::~Folder() {
    if (handle == NoHandle) return;
    const auto lock = reinterpret_cast<HANDLE>(handle);
    if (alone) ::ReleaseSemaphore(lock, 1, nullptr);
    if (lock != nullptr) ::CloseHandle(lock);
}

Result<> FolderLock::Folder::Lock() {
    constexpr DWORD Part = 50, Parts = 200;  // of ten seconds, in milliseconds
    const auto lock = reinterpret_cast<HANDLE>(handle);
    for (DWORD i = 0; lock != nullptr && i < Parts; ++i) {
        const DWORD result = ::WaitForSingleObject(lock, Part);
        alone = result == WAIT_OBJECT_0;
        if (alone || result == WAIT_FAILED) return {};
        if (InterruptionsHeld::Pending()) return Because("Interrupted");
    }
    if (lock == nullptr) return {};
    return Because("Another run of Bannersmith is at work in its folder");
}

/// What puts a file in its place has done that.
Result<> FolderLock::Folder::Sync() const {
    return {};
}

struct Replacement::State {
    fs::path target;
    bool exists = false;
    Handle written{INVALID_HANDLE_VALUE};  ///< the new file until it is safe on the disk
    std::wstring temporary;                ///< the new file until it is in its place
    std::wstring old_file;                 ///< the old one from then on

    fs::path Folder() const { return target.parent_path(); }

    /// The system's own call takes over the old file's access list, attributes and streams.
    Result<> Replace() {
        old_file = Unused_Path(Folder(), LeftoverPrefix);
        if (::ReplaceFileW(target.c_str(), temporary.c_str(), old_file.c_str(), 0, nullptr,
                           nullptr)) {
            return {};
        }
        const DWORD error = ::GetLastError();
        if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) Move_Over(old_file, target.wstring());
        old_file.clear();
        return Error_Of(error);
    }
};

Replacement::Replacement() : state_(std::make_unique<State>()) {}

Replacement::~Replacement() {
    if (state_->written.Is_Open()) static_cast<void>(state_->written.Close());
    Remove_File(state_->temporary);
    Remove_File(state_->old_file);
}

Result<> Replacement::Look_At(const fs::path& path) {
    auto target = Follow_Links(path);
    if (!target) return target.Why();
    state_->target = std::move(*target);
    const auto attributes = Attributes_Of(state_->target.wstring());
    if (!attributes) return attributes.Why();
    state_->exists = *attributes != INVALID_FILE_ATTRIBUTES;
    return state_->exists ? Require_Replaceable(state_->target.wstring()) : Result<>();
}

fs::path Replacement::Folder_Path() const {
    const fs::path folder = state_->Folder();
    return folder.empty() ? fs::path(".") : folder;
}

Result<> Replacement::Write(const FolderLock::Folder& /*folder*/, std::string_view bytes) {
    const std::wstring path = Unused_Path(state_->Folder(), LeftoverPrefix);
    Handle& file = state_->written;
    file = Handle(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Is_Open()) return Error_Of(::GetLastError());
    state_->temporary = path;
    while (!bytes.empty()) {
        const auto part = static_cast<DWORD>(std::min(bytes.size(), LargestPart));
        DWORD count = 0;
        if (!::WriteFile(file.Get(), bytes.data(), part, &count, nullptr)) {
            return Error_Of(::GetLastError());
        }
        bytes.remove_prefix(count);
    }
    return {};
}

Result<> Replacement::Bring_To_Disk() {
    Handle& file = state_->written;
    if (auto flushed = Require(::FlushFileBuffers(file.Get())); !flushed) return flushed;
    return file.Close();
}

Result<> Replacement::Put_In_Place(bool /*others_follow*/) {
    const auto move = [&] {
        return Require(::MoveFileExW(state_->temporary.c_str(), state_->target.c_str(),
                                     MOVEFILE_WRITE_THROUGH));
    };
    auto placed = state_->exists ? state_->Replace() : move();
    if (placed) state_->temporary.clear();
    return placed;
}

/// A card's file brings along where its contents are only when it is flushed under its new name.
Result<> Replacement::Make_Safe() {
    const Handle file(::CreateFileW(state_->target.c_str(), GENERIC_WRITE, Everyone, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Is_Open()) return {};  // in use by a program that looks into new files
    return Require(::FlushFileBuffers(file.Get()));
}

bool Replacement::Can_Be_Put_Back() const {
    return true;
}

Result<> Replacement::Put_Back() {
    State& state = *state_;
    if (!state.exists) return Require(::DeleteFileW(state.target.c_str()));
    const std::wstring old_file = std::exchange(state.old_file, {});
    const std::wstring target = state.target.wstring();
    if (Move_Over(old_file, target) || Move_Over(old_file, target)) return {};
    const DWORD error = ::GetLastError();
    const std::wstring kept = Unused_Path(state.Folder(), KeptPrefix);
    const bool renamed = ::MoveFileW(old_file.c_str(), kept.c_str()) != 0;
    return Because(Error_Text(error) + ". The old file is kept as " +
                   To_Utf8(Text_Of(renamed ? kept : old_file)));
}

std::string Replacement::Finish() {
    const std::wstring left = Remove_File(state_->old_file);
    return left.empty() ? "" : "the old file stays as " + To_Utf8(Text_Of(left));
}

Result<fs::path> Follow_Links(fs::path path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool link =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    if (!link) return path;
    std::error_code error;
    fs::path target = fs::canonical(path, error);
    if (error) return Because(error.message());
    return target;
}

void Remove_Leftovers(const FolderLock::Folder& folder) {
    if (!folder.alone) return;
    const std::wstring kept = fs::path(KeptPrefix).wstring();
    const std::wstring own =
        fs::path(LeftoverPrefix).wstring() + std::to_wstring(::GetCurrentProcessId()) + L"-";
    const std::wstring pattern = (folder.path / (std::string(LeftoverPrefix) + "*")).wstring();
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &found)) {
        const std::wstring name = found.cFileName;
        if (name.starts_with(kept) || name.starts_with(own)) continue;
        ::DeleteFileW((folder.path / name).c_str());
    }
    if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
}

}  // namespace bannersmith
