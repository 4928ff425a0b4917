#include "platform/drives.h"
#include "platform/wide_text_win32.h"

#include <windows.h>

namespace platform {

std::string Drives::defaultRoot()
{
    std::wstring path(32768, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length);
    const std::size_t end = path.find_last_of(L'\\');
    return narrowText(path.substr(0, end == std::wstring::npos ? 0 : end));
}

Drives::Paths Drives::systemPaths()
{
    return Paths::AsTheyStand;
}

} // namespace platform
