// Exchange files: what another program wrote for this one. They are read within limits, so that a
// broken or hostile file costs little memory and time and brings no control character into a
// record.
#pragma once

#include "records/trace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace records {

inline constexpr std::size_t kExchangeLimit = 256U << 10U; // bytes of a file
inline constexpr std::size_t kExchangeLine = 4U << 10U;    // bytes of a line

/// Control characters (below 32, and 127) as blanks.
std::string withoutControls(std::string_view text);

struct ExchangeText {
    std::string text;       // whole lines; but for their ends no control character
    bool longer = false;    // than kExchangeLimit: the last whole line within it is the last
    bool longLines = false; // some were cut to kExchangeLine
};

/// The part of a file's content that is used.
ExchangeText boundedText(std::string_view content);

struct ExchangeFile : ExchangeText {
    platform::Outcome outcome = platform::Outcome::Broken;
    std::string content;         // as read, kExchangeLimit bytes at most
    platform::DateTime modified; // before it was read
};

/// Reads the file at `path`, which must be a plain file and no link. The trace says what was left
/// out. Outside ErrorsIgnored a failure ends the program, as with Files::read.
ExchangeFile readExchange(App &app, const std::string &path);

/// `value` cut to `length` characters, without control characters. If it was cut, the trace says
/// so, with `name`.
std::string boundedValue(App &app, std::string_view value, std::size_t length, const char *name);

} // namespace records
