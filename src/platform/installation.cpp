#include "platform/installation.h"

#include "platform/files.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

namespace platform {

namespace {

constexpr double kWidestMm = 2000;
constexpr int kMostPrinters = 99;

constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string lowered(std::string_view text)
{
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return small;
}

/// Cuts off a comment: a `;` after two blanks or a tab, so that a `;` inside a value stays.
std::string_view withoutComment(std::string_view line)
{
    for (std::size_t at = line.find(';'); at != std::string_view::npos;
         at = line.find(';', at + 1)) {
        const std::string_view before = line.substr(0, at);
        if (before.ends_with("  ") || before.ends_with('\t'))
            return before;
    }
    return line;
}

template <typename Number> std::optional<Number> numberIn(std::string_view text)
{
    Number number{};
    const char *const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end)
        return std::nullopt;
    return number;
}

bool isYes(std::string_view value)
{
    const std::string word = lowered(value);
    return word == "yes" || word == "true" || word == "on" || word == "1";
}

/// "1D 56 42 00"; nothing when a part is no byte.
std::optional<std::string> bytesIn(std::string_view text)
{
    std::string bytes;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const std::string_view part = text.substr(0, text.find_first_of(kBlanks));
        unsigned value = 0;
        const auto read = std::from_chars(part.data(), part.data() + part.size(), value, 16);
        if (part.size() > 2 || read.ec != std::errc() || read.ptr != part.data() + part.size())
            return std::nullopt;
        bytes.push_back(static_cast<char>(value));
        text.remove_prefix(part.size());
    }
    return bytes;
}

/// A relative path with `/`; empty if it would lead out of its folder.
std::string folderBelow(std::string_view value)
{
    std::string folder;
    while (!value.empty()) {
        const std::size_t end = std::min(value.find_first_of("/\\"), value.size());
        const std::string_view name = value.substr(0, end);
        if (name == ".." || name.find(':') != std::string_view::npos)
            return {};
        if (!name.empty() && name != ".")
            folder.append(folder.empty() ? "" : "/").append(name);
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    return folder;
}

/// The N of "printer.N".
std::optional<int> printerNumber(std::string_view section)
{
    constexpr std::string_view kHead = "printer.";
    if (!section.starts_with(kHead))
        return std::nullopt;
    const auto number = numberIn<int>(section.substr(kHead.size()));
    return number && *number >= 1 && *number <= kMostPrinters ? number : std::nullopt;
}

void setPrinterKey(SpoolPrinter &printer, std::string_view key, std::string_view value)
{
    if (key == "name" && !value.empty())
        printer.name = value;
    else if (key == "default")
        printer.isDefault = isYes(value);
    else if (key == "folder" && !folderBelow(value).empty())
        printer.folder = folderBelow(value);
    const auto size = numberIn<double>(value);
    if (!size || !(*size >= 0 && *size <= kWidestMm)) // also keeps out what is not a number
        return;
    if (key == "width_mm" && *size > 0)
        printer.widthMm = *size;
    else if (key == "height_mm")
        printer.heightMm = *size;
}

void setKey(Installation &installation, std::string_view name, std::string_view value)
{
    const std::map<std::string_view, std::string *> texts = {
        {"xcharge/userid", &installation.xchargeUserId},
        {"xcharge/password", &installation.xchargePassword},
        {"connection/test", &installation.connectionTest},
        {"web/supplies", &installation.suppliesPage},
        {"web/help", &installation.helpPage},
        {"commands/editor", &installation.editorCommand},
        {"commands/browser", &installation.browserCommand},
    };
    if (const auto text = texts.find(name); text != texts.end())
        *text->second = value;
    else if (name == "printer.real/cut")
        installation.cutBytes = bytesIn(value).value_or(installation.cutBytes);
}

std::vector<SpoolPrinter> inOrder(const std::map<int, SpoolPrinter> &numbered)
{
    std::vector<SpoolPrinter> printers;
    bool defaultSeen = false;
    for (const auto &[number, printer] : numbered) {
        printers.push_back(printer);
        printers.back().isDefault = printer.isDefault && !defaultSeen;
        defaultSeen = defaultSeen || printer.isDefault;
    }
    return printers;
}

SpoolPrinter newPrinter(int number)
{
    SpoolPrinter printer;
    printer.name = "Printer " + std::to_string(number);
    printer.folder = "spool/" + std::to_string(number);
    return printer;
}

} // namespace

Installation parseInstallation(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF")) // the mark that some editors put before UTF-8
        text.remove_prefix(3);
    Installation installation;
    std::map<int, SpoolPrinter> printers;
    std::string section;
    for (const std::string &whole : splitLines(text)) {
        const std::string_view line = trimmed(withoutComment(whole));
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[' && line.back() == ']') {
            section = lowered(trimmed(line.substr(1, line.size() - 2)));
            if (const auto number = printerNumber(section))
                printers.try_emplace(*number, newPrinter(*number));
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos)
            continue;
        const std::string key = lowered(trimmed(line.substr(0, equals)));
        const std::string_view value = trimmed(line.substr(equals + 1));
        if (const auto number = printerNumber(section))
            setPrinterKey(printers[*number], key, value);
        else
            setKey(installation, std::string(section).append("/").append(key), value);
    }
    installation.spoolPrinters = inOrder(printers);
    return installation;
}

} // namespace platform
