#include "platform/drives.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace platform {

namespace {

bool isSeparator(char c)
{
    return c == '\\' || c == '/';
}

char small(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isLetter(char c)
{
    return small(c) >= 'a' && small(c) <= 'z';
}

bool sameName(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return small(a) == small(b); });
}

/// Takes the drive off the path: "c", another small letter, or "unc".
std::string takeDrive(std::string_view &path)
{
    if (path.size() >= 2 && path[1] == ':' && isLetter(path[0])) {
        const char letter = small(path[0]);
        path.remove_prefix(2);
        return std::string(1, letter);
    }
    const bool onServer =
        path.size() >= 3 && isSeparator(path[0]) && isSeparator(path[1]) && !isSeparator(path[2]);
    return onServer ? "unc" : "c";
}

std::vector<std::string> namesOf(std::string_view path)
{
    std::vector<std::string> names;
    while (!path.empty()) {
        const auto end = std::find_if(path.begin(), path.end(), isSeparator);
        const std::string_view name = path.substr(0, static_cast<std::size_t>(end - path.begin()));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (name == "..") {
            if (!names.empty())
                names.pop_back();
        } else if (!name.empty() && name != ".") {
            names.emplace_back(name);
        }
    }
    return names;
}

} // namespace

Drives::Drives(Disk &theDisk, std::string root, Paths paths)
    : disk(theDisk), folder(std::move(root)), kind(paths)
{
    while (folder.size() > 1 && isSeparator(folder.back()))
        folder.pop_back();
}

std::string Drives::driveOf(std::string_view &path) const
{
    return folder + "/" + takeDrive(path);
}

std::string Drives::resolve(std::string_view path) const
{
    std::string real;
    resolve(path, real);
    return real;
}

Outcome Drives::resolve(std::string_view path, std::string &real) const
{
    path = path.substr(0, path.find('\0')); // every system call would end it there too
    real = path;
    if (kind == Paths::AsTheyStand)
        return Outcome::Done;
    const std::string drive = driveOf(path);
    const std::vector<std::string> names = namesOf(path);
    real = drive;
    for (const std::string &name : names)
        real.append("/").append(name);
    bool there = false;
    Outcome outcome = fits(real, true, there);
    if (!done(outcome) || there || names.empty())
        return outcome;
    // The usual path that is not there yet: its folder is, as spelled.
    const std::string parent = real.substr(0, real.size() - names.back().size() - 1);
    outcome = fits(parent, false, there);
    if (!done(outcome))
        return outcome;
    return there ? walk(parent, names, names.size() - 1, real) : walk(drive, names, 0, real);
}

/// Matches one name after the other from `next` on, below the folder `at`.
Outcome Drives::walk(std::string at, const std::vector<std::string> &names, std::size_t next,
                     std::string &real) const
{
    bool there = true;
    for (; next < names.size(); ++next) {
        std::string name = names[next];
        if (there) { // below a missing folder everything is missing
            const Outcome outcome = match(at, next + 1 == names.size(), name, there);
            if (!done(outcome))
                return outcome;
        }
        at.append("/").append(name);
    }
    real = std::move(at);
    return Outcome::Done;
}

/// All but the last name of a path must be folders.
Outcome Drives::fits(const std::string &path, bool last, bool &there) const
{
    Found found = Found::Nothing;
    const Outcome outcome = disk.look(path, found);
    there = found == Found::Folder || (last && found == Found::File);
    return outcome;
}

/// The name in the folder that `name` means: as spelled, else the first in another case, else
/// `name` itself, which is not there.
Outcome Drives::match(const std::string &parent, bool last, std::string &name, bool &there) const
{
    Outcome outcome = fits(parent + "/" + name, last, there);
    if (!done(outcome) || there)
        return outcome;
    std::vector<std::string> *names = nullptr;
    if (outcome = namesIn(parent, names); !done(outcome))
        return outcome;
    std::vector<std::string> others;
    std::copy_if(names->begin(), names->end(), std::back_inserter(others),
                 [&](const std::string &other) { return sameName(other, name); });
    std::sort(others.begin(), others.end());
    for (const std::string &other : others) {
        outcome = fits(std::string(parent).append("/").append(other), last, there);
        if (there)
            name = other;
        if (!done(outcome) || there)
            return outcome;
    }
    return Outcome::Done;
}

Outcome Drives::namesIn(const std::string &directory, std::vector<std::string> *&names) const
{
    const std::uint64_t stamp = disk.changeStamp(directory);
    Listing &listing = listings[directory];
    names = &listing.names;
    if (stamp != 0 && stamp == listing.stamp)
        return Outcome::Done;
    Outcome outcome = disk.list(directory, listing.names);
    if (outcome == Outcome::NotThere) // no folder, no names
        outcome = Outcome::Done;
    listing.stamp = done(outcome) ? stamp : 0;
    return outcome;
}

} // namespace platform
