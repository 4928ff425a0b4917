#include "structure/source_rules.h"

namespace structure {

namespace {

// Walks a source once, blanking what the caller does not want to see.
class Blanker {
public:
    Blanker(std::string_view source, bool literals) : text(source), blankLiterals(literals) {}

    std::string run()
    {
        while (at < text.size()) {
            if (starts("//"))
                blankUntil("\n", false);
            else if (starts("/*"))
                blankUntil("*/", true);
            else if (starts("R\"") && !afterName())
                rawLiteral();
            else if (text[at] == '"' || (text[at] == '\'' && !afterName()))
                literal(text[at]);
            else
                result += text[at++];
        }
        return std::move(result);
    }

private:
    bool starts(std::string_view what) const { return text.substr(at).starts_with(what); }
    // A quote right behind a digit or a name separates digits (10'000) or belongs to the name.
    bool afterName() const
    {
        return at > 0 && (std::isalnum(static_cast<unsigned char>(text[at - 1])) != 0);
    }
    void copy(bool blank)
    {
        result += blank && text[at] != '\n' ? ' ' : text[at];
        ++at;
    }
    void copyUntil(std::size_t end, bool blank)
    {
        while (at < std::min(end, text.size()))
            copy(blank);
    }
    void blankUntil(std::string_view mark, bool includingMark)
    {
        const std::size_t found = text.find(mark, at + 2);
        if (found == std::string_view::npos)
            copyUntil(text.size(), true);
        else
            copyUntil(found + (includingMark ? mark.size() : 0), true);
    }
    void literal(char quote)
    {
        copy(false);
        while (at < text.size() && text[at] != quote && text[at] != '\n') {
            if (text[at] == '\\')
                copy(blankLiterals);
            copyUntil(at + 1, blankLiterals);
        }
        copyUntil(at + 1, false);
    }
    void rawLiteral()
    {
        const std::size_t open = text.find('(', at);
        if (open == std::string_view::npos)
            return copyUntil(text.size(), false);
        const std::string close = ')' + std::string(text.substr(at + 2, open - at - 2)) + '"';
        const std::size_t end = text.find(close, open);
        copyUntil(open + 1, false);
        copyUntil(end, blankLiterals);
        copyUntil(at + close.size(), false);
    }

    std::string_view text;
    bool blankLiterals;
    std::size_t at = 0;
    std::string result;
};

} // namespace

std::string withoutComments(std::string_view text, bool blankLiterals)
{
    return Blanker(text, blankLiterals).run();
}

} // namespace structure
