#include "structure/source_rules.h"

#include <cctype>

namespace structure {

namespace {

std::size_t endOf(std::string_view text, std::string_view mark, std::size_t from)
{
    const std::size_t found = text.find(mark, from);
    return found == std::string_view::npos ? text.size() : found + mark.size();
}

std::size_t literalLength(std::string_view text)
{
    std::size_t at = 1;
    while (at < text.size() && text[at] != text[0] && text[at] != '\n')
        at += text[at] == '\\' ? 2 : 1;
    return std::min(at + 1, text.size());
}

std::size_t rawLiteralLength(std::string_view text)
{
    const std::string name(text.substr(2, text.find('(') - 2));
    return endOf(text, ')' + name + '"', 2);
}

} // namespace

std::string withoutComments(std::string_view text, bool blankLiterals)
{
    std::string result;
    while (!text.empty()) {
        // A quote right behind a digit or a name separates digits (10'000) or belongs to the name.
        const bool afterName =
            !result.empty() && std::isalnum(static_cast<unsigned char>(result.back())) != 0;
        std::size_t length = 1;
        bool blank = true;
        if (text.starts_with("//"))
            length = std::min(text.find('\n'), text.size());
        else if (text.starts_with("/*"))
            length = endOf(text, "*/", 2);
        else if (blank = blankLiterals; text.starts_with("R\"") && !afterName)
            length = rawLiteralLength(text);
        else if (text[0] == '"' || (text[0] == '\'' && !afterName))
            length = literalLength(text);
        else
            blank = false;
        for (const char c : text.substr(0, length))
            result += blank && c != '\n' ? ' ' : c;
        text.remove_prefix(length);
    }
    return result;
}

} // namespace structure
