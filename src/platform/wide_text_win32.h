// Converts between the single-byte text of our files and the system's wide text, by the code page
// of the computer.
#pragma once

#include <string>

namespace platform {

std::wstring wideText(const std::string &text);
/// A character that the code page does not have becomes "?".
std::string narrowText(const std::wstring &text);

} // namespace platform
