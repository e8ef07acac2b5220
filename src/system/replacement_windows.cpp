#include <algorithm>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <string>

#include "system/interruptions.h"
#include "system/replacement.h"
#include "system/windows_steps.h"

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
void Require_Replaceable(const std::wstring& path) {
    const Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, Everyone, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw StepFailed{"Not an ordinary file"};
}

/// The same for all processes that work in one folder. A mutex has no name longer than a path, and
/// none with a separator in it.
std::wstring Mutex_Name(const fs::path& folder) {
    std::wstring path = fs::canonical(folder).wstring();
    ::CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a
    for (const wchar_t unit : path)
        hash = (hash ^ static_cast<std::uint16_t>(unit)) * 0x100000001B3;
    return L"Global\\Bannersmith-" + std::to_wstring(hash);
}

}  // namespace

FolderLock::Folder::Folder(fs::path folder)
    : path(std::move(folder)),
      handle(reinterpret_cast<std::intptr_t>(
          ::CreateMutexW(nullptr, FALSE, Mutex_Name(path).c_str()))) {}

FolderLock::Folder::~Folder() {
    const auto mutex = reinterpret_cast<HANDLE>(handle);
    if (alone) ::ReleaseMutex(mutex);
    if (mutex != nullptr) ::CloseHandle(mutex);
}

void FolderLock::Folder::Lock() {
    constexpr DWORD Part = 50, Parts = 200;  // of ten seconds, in milliseconds
    const auto mutex = reinterpret_cast<HANDLE>(handle);
    for (DWORD i = 0; mutex != nullptr && i < Parts; ++i) {
        const DWORD result = ::WaitForSingleObject(mutex, Part);
        alone = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
        if (alone || result == WAIT_FAILED) return;
        if (InterruptionsHeld::Pending()) throw StepFailed{"Interrupted"};
    }
    if (mutex != nullptr) throw StepFailed{"Another run of Bannersmith is at work in its folder"};
}

struct Replacement::State {
    fs::path target;
    bool exists = false;
    std::wstring temporary;  ///< the new file until it is in its place
    std::wstring old_file;   ///< the old one from then on

    fs::path Folder() const { return target.parent_path(); }

    /// The system's own call takes over the old file's access list, attributes and streams.
    void Replace() {
        old_file = Unused_Path(Folder(), LeftoverPrefix);
        if (::ReplaceFileW(target.c_str(), temporary.c_str(), old_file.c_str(), 0, nullptr,
                           nullptr)) {
            return;
        }
        const DWORD error = ::GetLastError();
        if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) Move_Over(old_file, target.wstring());
        old_file.clear();
        Fail(error);
    }
};

Replacement::Replacement(const fs::path& path) : state_(std::make_unique<State>()) {
    state_->target = Follow_Links(path);
    state_->exists = Attributes_Of(state_->target.wstring()) != INVALID_FILE_ATTRIBUTES;
    if (state_->exists) Require_Replaceable(state_->target.wstring());
}

Replacement::~Replacement() {
    Remove_File(state_->temporary);
    Remove_File(state_->old_file);
}

fs::path Replacement::Folder_Path() const {
    const fs::path folder = state_->Folder();
    return folder.empty() ? fs::path(".") : folder;
}

void Replacement::Write(const FolderLock::Folder& /*folder*/, std::string_view bytes) {
    const std::wstring path = Unused_Path(state_->Folder(), LeftoverPrefix);
    Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    state_->temporary = path;
    while (!bytes.empty()) {
        const auto part = static_cast<DWORD>(std::min(bytes.size(), LargestPart));
        DWORD count = 0;
        Require(::WriteFile(file.get(), bytes.data(), part, &count, nullptr));
        bytes.remove_prefix(count);
    }
    Require(::FlushFileBuffers(file.get()));
    file.Close();
}

void Replacement::Put_In_Place(bool /*others_follow*/) {
    if (state_->exists) {
        state_->Replace();
    } else {
        Require(::MoveFileExW(state_->temporary.c_str(), state_->target.c_str(),
                              MOVEFILE_WRITE_THROUGH));
    }
    state_->temporary.clear();
}

/// A card's file brings along where its contents are only when it is flushed under its new name.
void Replacement::Make_Safe() {
    const HANDLE file = ::CreateFileW(state_->target.c_str(), GENERIC_WRITE, Everyone, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;  // in use by a program that looks into new files
    const Handle closing(file);
    Require(::FlushFileBuffers(file));
}

bool Replacement::Can_Be_Put_Back() const {
    return true;
}

void Replacement::Put_Back() {
    State& state = *state_;
    if (!state.exists) {
        Require(::DeleteFileW(state.target.c_str()));
        return;
    }
    const std::wstring old_file = std::exchange(state.old_file, {});
    const std::wstring target = state.target.wstring();
    if (Move_Over(old_file, target) || Move_Over(old_file, target)) return;
    const DWORD error = ::GetLastError();
    const std::wstring kept = Unused_Path(state.Folder(), KeptPrefix);
    const bool renamed = ::MoveFileW(old_file.c_str(), kept.c_str()) != 0;
    const std::u8string name = fs::path(renamed ? kept : old_file).u8string();
    throw StepFailed{Error_Text(error) + ". The old file is kept as " +
                     std::string(name.begin(), name.end())};
}

std::string Replacement::Finish() {
    const std::u8string left = fs::path(Remove_File(state_->old_file)).u8string();
    if (left.empty()) return {};
    return "the old file stays as " + std::string(left.begin(), left.end());
}

fs::path Follow_Links(fs::path path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool link =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return link ? fs::canonical(path) : path;
}

void Remove_Leftovers(const FolderLock::Folder& folder) {
    if (!folder.alone) return;
    const std::wstring kept = fs::path(KeptPrefix).wstring();
    const std::wstring pattern = (folder.path / (std::string(LeftoverPrefix) + "*")).wstring();
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &found)) {
        const std::wstring name = found.cFileName;
        if (name.starts_with(kept)) continue;
        ::DeleteFileW((folder.path / name).c_str());
    }
    if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
}

}  // namespace bannersmith
