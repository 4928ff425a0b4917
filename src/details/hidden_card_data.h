// Hidden card data: the card number and the track read line show only after a password; and the
// filter that cleans the processor's transaction number.
#pragma once

#include "platform/dialogs.h"

#include <string>
#include <string_view>

namespace details {

/// Digits, letters and blanks of the trimmed text; every other byte becomes a blank, and blanks in
/// a row become one. It can begin or end with a blank that stands for such a byte.
std::string Clean_Text(std::string_view text);

/// Ask for the password; true only for the right one. A wrong one brings up a message, an empty one
/// or Cancel does not.
bool mayViewNumber(platform::Dialogs &dialogs);
/// Kept: the message says that all track reads were deleted. Nothing is; it only deters.
bool mayViewTrackLine(platform::Dialogs &dialogs);

} // namespace details
