// Between the contracts' single-byte text and the system's wide text, by the code page of the
// computer.
#pragma once

#include <string>

namespace platform {

std::wstring wideText(const std::string &text);
/// A character that the code page has not becomes "?".
std::string narrowText(const std::wstring &text);

} // namespace platform
