#include "platform/disk.h"
#include "platform/wide_text_win32.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <utility>

namespace platform {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kQuotaExceeded = 1295; // winerror.h of some compilers leaves it out
constexpr std::size_t kLargestPart = 1U << 30U;
constexpr std::size_t kLargestCopy = 64U << 10U;

Outcome outcomeOf(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY: return Outcome::NotThere;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kQuotaExceeded: return Outcome::NoRoom;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT: return Outcome::Denied;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_IO_PENDING: return Outcome::Locked;
    default: return Outcome::Broken;
    }
}

Outcome outcomeOfCall(BOOL result)
{
    return result != FALSE ? Outcome::Done : outcomeOf(GetLastError());
}

/// Closes itself; empty when the opening failed.
class Handle {
public:
    explicit Handle(HANDLE theHandle) : handle(theHandle) {}
    ~Handle()
    {
        if (*this)
            CloseHandle(handle);
    }
    Handle(Handle &&other) noexcept : handle(std::exchange(other.handle, INVALID_HANDLE_VALUE)) {}
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    explicit operator bool() const { return handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle; }

private:
    HANDLE handle;
};

/// Without security attributes no started program inherits it.
Handle openHandle(const std::string &path, DWORD access, DWORD disposition, DWORD flags)
{
    return Handle(CreateFileW(wideText(path).c_str(), access, kShareAll, nullptr, disposition,
                              flags, nullptr));
}

bool sameFile(HANDLE one, HANDLE other)
{
    BY_HANDLE_FILE_INFORMATION a = {};
    BY_HANDLE_FILE_INFORMATION b = {};
    return GetFileInformationByHandle(one, &a) != FALSE &&
           GetFileInformationByHandle(other, &b) != FALSE &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
           a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

OVERLAPPED placeAt(std::uint64_t offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32U);
    return place;
}

class Win32File final : public DiskFile {
public:
    Win32File(Handle theHandle, std::string thePath, OpenMode theMode)
        : handle(std::move(theHandle)), path(std::move(thePath)), mode(theMode)
    {
    }
    ~Win32File() override
    {
        // Closing frees it too, but the system may take its time.
        if (locked)
            unlock();
    }
    Win32File(const Win32File &) = delete;
    Win32File &operator=(const Win32File &) = delete;

    Outcome size(std::uint64_t &bytes) override;
    Outcome readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got) override;
    Outcome writeAt(std::uint64_t offset, std::string_view bytes) override;
    Outcome append(std::string_view bytes, std::uint64_t &landedAt) override;
    Outcome cutBack(std::uint64_t from, std::uint64_t to) override;
    Outcome flush() override { return outcomeOfCall(FlushFileBuffers(handle.get())); }
    Outcome tryLock() override;
    Outcome unlock() override;
    bool isStillAt(const std::string &where) override;

private:
    Handle handle;
    std::string path;
    OpenMode mode;
    bool locked = false;
};

Outcome Win32File::size(std::uint64_t &bytes)
{
    LARGE_INTEGER found = {};
    if (GetFileSizeEx(handle.get(), &found) == FALSE)
        return outcomeOf(GetLastError());
    bytes = static_cast<std::uint64_t>(found.QuadPart);
    return Outcome::Done;
}

Outcome Win32File::readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got)
{
    got = 0;
    while (got < length) {
        OVERLAPPED place = placeAt(offset + got);
        DWORD part = 0;
        const auto wanted = static_cast<DWORD>(std::min(length - got, kLargestPart));
        if (ReadFile(handle.get(), into + got, wanted, &part, &place) == FALSE) {
            const DWORD error = GetLastError();
            return error == ERROR_HANDLE_EOF ? Outcome::Done : outcomeOf(error);
        }
        if (part == 0)
            break;
        got += part;
    }
    return Outcome::Done;
}

Outcome Win32File::writeAt(std::uint64_t offset, std::string_view bytes)
{
    if (mode == OpenMode::Read || appends(mode))
        return Outcome::Denied;
    while (!bytes.empty()) {
        OVERLAPPED place = placeAt(offset);
        DWORD part = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kLargestPart));
        if (WriteFile(handle.get(), bytes.data(), wanted, &part, &place) == FALSE)
            return outcomeOf(GetLastError());
        bytes.remove_prefix(part);
        offset += part;
    }
    return Outcome::Done;
}

Outcome Win32File::append(std::string_view bytes, std::uint64_t &landedAt)
{
    if (!appends(mode) || bytes.size() > kLargestPart)
        return Outcome::Denied;
    // The handle may only append, so that the system places every write at the end.
    DWORD part = 0;
    const auto wanted = static_cast<DWORD>(bytes.size());
    if (WriteFile(handle.get(), bytes.data(), wanted, &part, nullptr) == FALSE)
        return outcomeOf(GetLastError());
    LARGE_INTEGER end = {};
    if (SetFilePointerEx(handle.get(), {}, &end, FILE_CURRENT) == FALSE)
        return outcomeOf(GetLastError());
    landedAt = static_cast<std::uint64_t>(end.QuadPart) - part;
    if (part == wanted)
        return Outcome::Done;
    cutBack(landedAt + part, landedAt);
    return Outcome::NoRoom;
}

Outcome Win32File::cutBack(std::uint64_t from, std::uint64_t to)
{
    if (mode == OpenMode::Read || mode == OpenMode::ReadNoLink)
        return Outcome::Denied;
    std::uint64_t bytes = 0;
    if (const Outcome outcome = size(bytes); !done(outcome) || bytes != from)
        return outcome;
    // A handle for appending cannot cut, so the file is opened again; it must still be the same.
    const Handle cutting = openHandle(path, GENERIC_WRITE, OPEN_EXISTING, 0);
    if (!cutting)
        return outcomeOf(GetLastError());
    if (!sameFile(handle.get(), cutting.get()))
        return Outcome::NotThere;
    FILE_END_OF_FILE_INFO end = {};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(to);
    return outcomeOfCall(
        SetFileInformationByHandle(cutting.get(), FileEndOfFileInfo, &end, sizeof end));
}

Outcome Win32File::tryLock()
{
    OVERLAPPED place = placeAt(kLockOffset);
    const Outcome outcome = outcomeOfCall(LockFileEx(
        handle.get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place));
    locked = locked || done(outcome);
    return outcome;
}

Outcome Win32File::unlock()
{
    OVERLAPPED place = placeAt(kLockOffset);
    locked = false;
    return outcomeOfCall(UnlockFileEx(handle.get(), 0, 1, 0, &place));
}

bool Win32File::isStillAt(const std::string &where)
{
    const Handle there = openHandle(where, FILE_READ_ATTRIBUTES, OPEN_EXISTING, 0);
    return there && sameFile(handle.get(), there.get());
}

DWORD accessOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Read:
    case OpenMode::ReadNoLink: return GENERIC_READ;
    case OpenMode::Append:
    case OpenMode::AppendNoLink: return FILE_GENERIC_READ | FILE_APPEND_DATA;
    case OpenMode::ReadWrite:
    case OpenMode::CreateEmpty:
    case OpenMode::CreateNew: break;
    }
    return GENERIC_READ | GENERIC_WRITE;
}

DWORD dispositionOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Append:
    case OpenMode::AppendNoLink: return OPEN_ALWAYS;
    case OpenMode::CreateEmpty: return CREATE_ALWAYS;
    case OpenMode::CreateNew: return CREATE_NEW;
    case OpenMode::Read:
    case OpenMode::ReadNoLink:
    case OpenMode::ReadWrite: break;
    }
    return OPEN_EXISTING;
}

bool isLink(const std::string &path)
{
    const DWORD attributes = GetFileAttributesW(wideText(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// Replaces a file even while it is open, also by this station's own lock. Not every file system
/// can do it.
bool renameOverOpenFile(const std::string &from, const std::string &to)
{
    // FILE_RENAME_INFO and FileRenameInfoEx as headers for newer systems have them.
    struct RenameInfo {
        DWORD flags;
        HANDLE folder;
        DWORD length;
        std::array<wchar_t, 1024> name;
    };
    constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
    constexpr DWORD kReplaceIfExists = 1;
    constexpr DWORD kOpenFilesToo = 2;

    const std::wstring name = wideText(to);
    RenameInfo info = {kReplaceIfExists | kOpenFilesToo, nullptr, 0, {}};
    if (name.size() >= info.name.size())
        return false;
    info.length = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    std::copy(name.begin(), name.end(), info.name.begin());
    const Handle file = openHandle(from, DELETE | SYNCHRONIZE, OPEN_EXISTING, 0);
    return file &&
           SetFileInformationByHandle(file.get(), kRenameInfoEx, &info, sizeof info) != FALSE;
}

/// Copies the bytes of one file over those of another, where the system cannot replace an open file
/// (mostly on a share): the station that holds the lock on `to` has it open itself. After a power
/// cut during the copy, `from` is still there, whole.
Outcome copyOver(const std::string &from, const std::string &to)
{
    const Handle source = openHandle(from, GENERIC_READ, OPEN_EXISTING, 0);
    const Handle target = openHandle(to, GENERIC_WRITE, OPEN_EXISTING, 0);
    if (!source || !target)
        return outcomeOf(GetLastError());
    std::string chunk(kLargestCopy, '\0');
    DWORD got = 0;
    DWORD written = 0;
    do {
        const auto wanted = static_cast<DWORD>(chunk.size());
        if (ReadFile(source.get(), chunk.data(), wanted, &got, nullptr) == FALSE ||
            WriteFile(target.get(), chunk.data(), got, &written, nullptr) == FALSE)
            return outcomeOf(GetLastError());
    } while (got > 0);
    const BOOL whole = SetEndOfFile(target.get()) != FALSE && FlushFileBuffers(target.get());
    return outcomeOfCall(whole);
}

class Win32Disk final : public Disk {
public:
    Outcome open(const std::string &path, OpenMode mode, std::unique_ptr<DiskFile> &file) override;
    Outcome look(const std::string &path, Found &found) override;
    Outcome modified(const std::string &path, DateTime &when) override;
    Outcome remove(const std::string &path) override;
    Outcome rename(const std::string &from, const std::string &to) override;
    Outcome renameToFree(const std::string &from, const std::string &to) override;
    Outcome makeDirectory(const std::string &path) override;
    Outcome list(const std::string &directory, std::vector<std::string> &names) override;
    Outcome flushDirectory(const std::string &directory) override;
};

Outcome Win32Disk::open(const std::string &path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    if (followsNoLink(mode) && isLink(path))
        return Outcome::Broken;
    Handle handle = openHandle(path, accessOf(mode), dispositionOf(mode), FILE_ATTRIBUTE_NORMAL);
    if (!handle) {
        const DWORD error = GetLastError();
        return error == ERROR_SHARING_VIOLATION ? Outcome::Leased : outcomeOf(error);
    }
    if (GetFileType(handle.get()) != FILE_TYPE_DISK)
        return Outcome::Broken;
    file = std::make_unique<Win32File>(std::move(handle), path, mode);
    return Outcome::Done;
}

Outcome Win32Disk::look(const std::string &path, Found &found)
{
    found = Found::Nothing;
    const DWORD attributes = GetFileAttributesW(wideText(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const Outcome outcome = outcomeOf(GetLastError());
        return outcome == Outcome::NotThere ? Outcome::Done : outcome;
    }
    found = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Found::Folder : Found::File;
    return Outcome::Done;
}

Outcome Win32Disk::modified(const std::string &path, DateTime &when)
{
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    SYSTEMTIME universal = {};
    SYSTEMTIME local = {};
    if (GetFileAttributesExW(wideText(path).c_str(), GetFileExInfoStandard, &found) == FALSE ||
        FileTimeToSystemTime(&found.ftLastWriteTime, &universal) == FALSE ||
        SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE)
        return outcomeOf(GetLastError());
    when = {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond, 0};
    return Outcome::Done;
}

Outcome Win32Disk::remove(const std::string &path)
{
    return outcomeOfCall(DeleteFileW(wideText(path).c_str()));
}

Outcome Win32Disk::rename(const std::string &from, const std::string &to)
{
    if (renameOverOpenFile(from, to))
        return Outcome::Done;
    Outcome outcome =
        outcomeOfCall(MoveFileExW(wideText(from).c_str(), wideText(to).c_str(),
                                  MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    const bool isOpen = outcome == Outcome::Denied || outcome == Outcome::Locked;
    Found there = Found::Nothing;
    if (isOpen && done(look(to, there)) && there == Found::File) {
        outcome = copyOver(from, to);
        if (done(outcome))
            remove(from);
    }
    return outcome;
}

Outcome Win32Disk::renameToFree(const std::string &from, const std::string &to)
{
    return outcomeOfCall(
        MoveFileExW(wideText(from).c_str(), wideText(to).c_str(), MOVEFILE_WRITE_THROUGH));
}

Outcome Win32Disk::makeDirectory(const std::string &path)
{
    return outcomeOfCall(CreateDirectoryW(wideText(path).c_str(), nullptr));
}

Outcome Win32Disk::list(const std::string &directory, std::vector<std::string> &names)
{
    names.clear();
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(wideText(directory + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return outcomeOf(GetLastError());
    do {
        std::string name = narrowText(found.cFileName);
        if (name != "." && name != "..")
            names.push_back(std::move(name));
    } while (FindNextFileW(search, &found) != FALSE);
    const DWORD error = GetLastError();
    FindClose(search);
    return error == ERROR_NO_MORE_FILES ? Outcome::Done : outcomeOf(error);
}

Outcome Win32Disk::flushDirectory(const std::string &directory)
{
    // If the system refuses it, the file system's own journal keeps the names.
    const Handle folder =
        openHandle(directory, GENERIC_WRITE, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (folder)
        FlushFileBuffers(folder.get());
    return Outcome::Done;
}

} // namespace

std::unique_ptr<Disk> systemDisk()
{
    return std::make_unique<Win32Disk>();
}

std::string uniqueSuffix()
{
    static std::atomic<unsigned> count = 0;
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    std::array<char, 64> text = {};
    std::snprintf(text.data(), text.size(), "%lx-%lx%lx-%x", GetCurrentProcessId(),
                  now.dwHighDateTime, now.dwLowDateTime, ++count);
    return text.data();
}

} // namespace platform
