// Differences: what turns one text into another, written so that a person can read it and so that
// it says exactly one thing.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace story {

using Lines = std::vector<std::string>;

/// Gone lines as "- line", new ones as "+ line"; one in the place of a line that begins alike (up
/// to the first blank, "=" or ":" of both) as "* line". Only where the place would be unclear the
/// lines before it as "  line". Of more than three gone lines in a row the first and the last, with
/// "- ..." between them; when all of several are gone, "- ..." and no more. None when both are
/// alike.
Lines differences(const Lines &before, const Lines &now);

/// The text that the differences make of `before`; nothing when they do not fit it.
std::optional<Lines> applied(const Lines &before, const Lines &differences);

/// A text on one line: what is no plain text in it, a \r or \n too, is written as \r, \n, \0 or
/// \x1B.
std::string plain(const std::string &text);

/// The lines of a file, without their \r\n, each plain; a last line without an end says so.
Lines linesOf(const std::string &bytes);

} // namespace story
