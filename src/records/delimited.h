// Delimited text: values separated by commas or line ends, text in double quotes, as the point of
// sale, the payment server and this system's own option files write it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace records {

/// Reads values one after the other, across lines.
class DelimitedReader {
public:
    explicit DelimitedReader(std::string_view theContent) : content(theContent) {}

    /// The next value: leading blanks skipped, the quotes dropped, commas inside quotes kept;
    /// ended by a comma or a line end (CR LF, LF or CR). Empty at the end of the file.
    std::string next();
    bool atEnd() const { return at >= content.size(); }

private:
    void skipLineEnd();

    std::string_view content;
    std::size_t at = 0;
};

/// `"value"` and CR LF; inner quotes are not doubled, a NUL is written as a blank.
std::string quotedLine(std::string_view value);

/// `"a","b",...` and CR LF, by the same rules.
std::string quotedValues(const std::vector<std::string> &values);

} // namespace records
