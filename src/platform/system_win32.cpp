#include "platform/connection.h"
#include "platform/drives.h"
#include "platform/installation.h"
#include "platform/program_search.h"
#include "platform/system.h"
#include "platform/wide_text_win32.h"

#include <windows.h>

#include <mmsystem.h>
#include <shellapi.h>

#include <array>
#include <utility>

namespace platform {

namespace {

constexpr DWORD kElevationRequired = 740; // winerror.h of some compilers leaves it out

bool isFile(const std::string &path)
{
    const DWORD attributes = GetFileAttributesW(wideText(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

Outcome outcomeOfStart(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND: return Outcome::NotThere;
    case ERROR_ACCESS_DENIED:
    case ERROR_BAD_EXE_FORMAT:
    case kElevationRequired: return Outcome::Denied;
    case ERROR_SHARING_VIOLATION: return Outcome::Locked;
    default: return Outcome::Broken;
    }
}

WORD showOf(WindowStyle style)
{
    switch (style) {
    case WindowStyle::Normal: return SW_SHOWNORMAL;
    case WindowStyle::Minimised: return SW_SHOWMINNOACTIVE;
    case WindowStyle::Hidden: break;
    }
    return SW_HIDE;
}

/// Starts a command line whose program is quoted or found on the search path.
Outcome create(std::wstring commandLine, WindowStyle style)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showOf(style);
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process) == FALSE)
        return outcomeOfStart(GetLastError());
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return Outcome::Done;
}

std::wstring quoted(const std::wstring &text)
{
    return L"\"" + text + L"\"";
}

/// Lets the desktop open something; `with` is empty for what is registered for it.
Outcome shellOpen(const std::wstring &what, const std::wstring &with)
{
    const std::wstring argument = quoted(what);
    const HINSTANCE result = with.empty() ? ShellExecuteW(nullptr, L"open", what.c_str(), nullptr,
                                                          nullptr, SW_SHOWNORMAL)
                                          : ShellExecuteW(nullptr, L"open", with.c_str(),
                                                          argument.c_str(), nullptr, SW_SHOWNORMAL);
    const INT_PTR code = reinterpret_cast<INT_PTR>(result);
    return code > 32 ? Outcome::Done : outcomeOfStart(static_cast<DWORD>(code));
}

class WindowsSystem : public System {
public:
    WindowsSystem(const Drives &theDrives, const Installation &theInstallation)
        : drives(theDrives), installation(theInstallation)
    {
    }

    Outcome start(const std::string &commandLine, WindowStyle style) override
    {
        const auto call = findProgram(
            commandLine, [this](const std::string &path) { return isFile(drives.resolve(path)); });
        if (!call)
            return Outcome::NotThere;
        // In quotes, so that the started program splits its arguments at the right blank.
        return create(quoted(wideText(drives.resolve(call->program))) + L" " +
                          wideText(call->arguments),
                      style);
    }

    void killImage(const std::string &imageName) override
    {
        create(wideText("cmd.exe /c TASKKILL /IM " + imageName + " /F"), WindowStyle::Minimised);
    }

    std::string computerName() override
    {
        std::array<char, MAX_COMPUTERNAME_LENGTH + 1> name{};
        DWORD length = static_cast<DWORD>(name.size());
        return GetComputerNameA(name.data(), &length) != FALSE ? std::string(name.data(), length)
                                                               : std::string();
    }

    std::string executableName() override
    {
        std::wstring path(32768, L'\0'); // the longest path that Windows has
        path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
        const std::wstring name = path.substr(path.find_last_of(L"\\/") + 1);
        return narrowText(name.substr(0, name.rfind(L'.')));
    }

    Outcome openEditor(const std::string &path) override
    {
        return open(installation.editorCommand, drives.resolve(path), L"notepad.exe");
    }

    Outcome openBrowser(const std::string &address) override
    {
        return address.empty() ? Outcome::NotThere : open(installation.browserCommand, address, {});
    }

    void startConnectionTest() override { connection.start(installation.connectionTest); }
    std::optional<bool> connectionTested() const override { return connection.result(); }

    void playSound(const std::string &path) override
    {
        const std::wstring sound = wideText(drives.resolve(path));
        PlaySoundW(sound.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
    }

private:
    static Outcome open(const std::string &command, const std::string &what,
                        const std::wstring &usual)
    {
        if (command.empty())
            return shellOpen(wideText(what), usual);
        std::string line = command;
        if (const std::size_t at = line.find("%1"); at != std::string::npos)
            line.replace(at, 2, what);
        else
            line += " \"" + what + "\"";
        return create(wideText(line), WindowStyle::Normal);
    }

    const Drives &drives;
    const Installation &installation;
    ConnectionTest connection{std::chrono::seconds(2)};
};

} // namespace

std::unique_ptr<System> runningSystem(const Drives &drives, const Installation &installation)
{
    return std::make_unique<WindowsSystem>(drives, installation);
}

} // namespace platform
