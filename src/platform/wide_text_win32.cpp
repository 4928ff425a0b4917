#include "platform/wide_text_win32.h"

#include <windows.h>

namespace platform {

std::wstring wideText(const std::string &text)
{
    const int length = static_cast<int>(text.size());
    std::wstring result(text.size(), L'\0');
    const int got = MultiByteToWideChar(CP_ACP, 0, text.data(), length, result.data(), length);
    result.resize(static_cast<std::size_t>(got));
    return result;
}

std::string narrowText(const std::wstring &text)
{
    const int length = static_cast<int>(text.size());
    std::string result(4 * text.size(), '\0');
    const int got = WideCharToMultiByte(CP_ACP, 0, text.data(), length, result.data(),
                                        static_cast<int>(result.size()), nullptr, nullptr);
    result.resize(static_cast<std::size_t>(got));
    return result;
}

} // namespace platform
