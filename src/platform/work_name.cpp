#include "platform/work_name.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr int kNumbers = 3; // in uniqueSuffix(): process, time, count

bool isPlain(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
}

std::string escaped(std::string_view name, std::string_view alsoPlain)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (isPlain(c) || alsoPlain.find(c) != std::string_view::npos)
            text.push_back(c);
        else
            text.append({'%', kDigits[byte / 16U], kDigits[byte % 16U]});
    }
    return text;
}

bool takeEnd(std::string_view &name, std::string_view end)
{
    const bool has = name.ends_with(end);
    name.remove_suffix(has ? end.size() : 0);
    return has;
}

/// A dash and a number.
bool takeNumber(std::string_view &name)
{
    const std::size_t dash = name.find_last_of('-');
    if (dash == std::string_view::npos || dash + 1 == name.size())
        return false;
    const std::string_view digits = name.substr(dash + 1);
    name = name.substr(0, dash);
    return std::all_of(digits.begin(), digits.end(), isHexDigit);
}

} // namespace

std::string workName(std::string_view name, const Maker &maker, std::string_view ending)
{
    std::string text(name);
    text.append(".").append(escaped(maker.station, "-")).append("-").append(uniqueSuffix());
    return text.append("-").append(escaped(maker.role, "")).append(ending);
}

bool isWorkOf(std::string_view name, const Maker &maker)
{
    if (maker.station.empty() || maker.role.empty())
        return false;
    bool ours = takeEnd(name, ".new") || takeEnd(name, ".part");
    ours = ours && takeEnd(name, "-" + escaped(maker.role, ""));
    for (int number = 0; number < kNumbers && ours; ++number)
        ours = takeNumber(name);
    return ours && takeEnd(name, "." + escaped(maker.station, "-")) && !name.empty();
}

Outcome removeWork(Disk &disk, const std::string &folder, const Maker &maker,
                   std::vector<std::string> &removed)
{
    std::vector<std::string> names;
    Outcome outcome = disk.list(folder, names);
    if (outcome == Outcome::NotThere)
        return Outcome::Done;
    std::sort(names.begin(), names.end());
    for (std::string &name : names) {
        if (!isWorkOf(name, maker))
            continue;
        if (const Outcome gone = disk.remove(std::string(folder).append("/").append(name));
            done(gone))
            removed.push_back(std::move(name));
        else if (gone != Outcome::NotThere)
            outcome = gone;
    }
    return outcome;
}

} // namespace platform
