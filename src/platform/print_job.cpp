#include "platform/print_job.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>

namespace platform {

namespace {

using Kind = PrintOperation::Kind;

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kBanners = {{
    {"Picture1", "CUSTOMER COPY"},
    {"Picture2", "MERCHANT COPY"},
    {"Picture3", "PARTIAL PAYMENT CUSTOMER COPY"},
    {"Picture4", "PARTIAL PAYMENT MERCHANT COPY"},
    {"Picture5", "PARTIAL PAYMENT - A BALANCE IS STILL DUE"},
    {"Picture8", "REMAINING BALANCE ON THIS GIFT CARD"},
}};

constexpr double kColumnMm = 2;      // of plain text, about that of small receipt print
constexpr std::size_t kUsualTab = 6; // columns, 12 mm
constexpr double kWidestMm = 2000;   // so that an absurd stop makes no endless line

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

/// The columns of tab stops given in millimetres.
std::vector<std::size_t> tabStops(std::string_view list)
{
    std::vector<std::size_t> stops;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(','), list.size());
        const char *first = list.data() + std::min(list.find_first_not_of(' '), end);
        double millimetres = 0;
        if (std::from_chars(first, list.data() + end, millimetres).ec == std::errc() &&
            millimetres > 0 && millimetres < kWidestMm)
            stops.push_back(static_cast<std::size_t>(std::lround(millimetres / kColumnMm)));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    std::sort(stops.begin(), stops.end());
    return stops;
}

/// The first stop after `column`, or the next column when there is none.
std::size_t nextColumn(const std::vector<std::size_t> &stops, std::size_t column)
{
    if (stops.empty())
        return (column / kUsualTab + 1) * kUsualTab;
    const auto next = std::upper_bound(stops.begin(), stops.end(), column);
    return next == stops.end() ? column + 1 : *next;
}

std::string plainLine(std::string_view text, const std::vector<std::size_t> &stops)
{
    std::string line;
    for (const char c : text) {
        if (c == '\t')
            line.resize(nextColumn(stops, line.size()), ' ');
        else
            line.push_back(isControl(c) ? ' ' : c);
    }
    return line;
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (isControl(c)) {
            std::array<char, 5> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(c) & 0xFFU);
            result += c == '\t' ? "\\t" : code.data();
        } else {
            result += c;
        }
    }
    return result + "\"";
}

std::string fontInWords(const PrintFont &font)
{
    std::array<char, 32> size{};
    std::snprintf(size.data(), size.size(), " %g", font.size);
    return quoted(font.family) + size.data() + (font.bold ? " bold" : "") +
           (font.italic ? " italic" : "");
}

std::string inWords(const PrintOperation &operation)
{
    switch (operation.kind) {
    case Kind::Font: return "font " + fontInWords(operation.font);
    case Kind::Line: return "line " + quoted(operation.text);
    case Kind::Tabs: return "tabs " + operation.text;
    case Kind::Picture: return "picture " + operation.text;
    case Kind::Cut: return "cut";
    case Kind::NewPage: break;
    }
    return "new page";
}

} // namespace

std::string bannerText(std::string_view pictureName)
{
    for (const auto &[name, words] : kBanners) {
        if (name == pictureName)
            return std::string(words);
    }
    return std::string(pictureName);
}

std::string plainText(const PrintJob &job)
{
    std::string text;
    std::vector<std::size_t> stops;
    for (const PrintOperation &operation : job.operations) {
        switch (operation.kind) {
        case Kind::Font: continue;
        case Kind::Tabs: stops = tabStops(operation.text); continue;
        case Kind::Line: text += plainLine(operation.text, stops); break;
        case Kind::Picture: text.append("[").append(bannerText(operation.text)).append("]"); break;
        case Kind::Cut: text += "- - - cut - - -"; break;
        case Kind::NewPage: text += "\f"; break;
        }
        text += "\r\n";
    }
    return text;
}

std::string describe(const PrintJob &job)
{
    std::string text = "job " + quoted(job.title) + (job.landscape ? " landscape\n" : "\n");
    for (const PrintOperation &operation : job.operations)
        text += inWords(operation) + "\n";
    return text;
}

} // namespace platform
