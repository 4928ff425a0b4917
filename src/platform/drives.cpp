#include "platform/drives.h"

#include <algorithm>
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

std::string Drives::resolve(std::string_view path) const
{
    path = path.substr(0, path.find('\0')); // where every system call would end it too
    if (kind == Paths::AsTheyStand)
        return std::string(path);
    const std::string drive = folder + "/" + takeDrive(path);
    const std::vector<std::string> names = namesOf(path);

    std::string asSpelled = drive;
    for (const std::string &name : names)
        asSpelled.append("/").append(name);
    if (disk.isFile(asSpelled) || disk.isDirectory(asSpelled))
        return asSpelled;

    // The usual path that is not there yet: its folder is, as spelled.
    std::string at = drive;
    std::size_t next = 0;
    if (!names.empty()) {
        std::string parent = asSpelled.substr(0, asSpelled.size() - names.back().size() - 1);
        if (disk.isDirectory(parent)) {
            at = std::move(parent);
            next = names.size() - 1;
        }
    }
    for (; next < names.size(); ++next) {
        const std::string name = match(at, names[next], next + 1 == names.size());
        at.append("/").append(name);
    }
    return at;
}

/// The name in the folder that `name` means: as spelled, else the first in another case, else
/// `name` itself. All but the last name of a path must be folders.
std::string Drives::match(const std::string &parent, const std::string &name, bool last) const
{
    const auto fits = [&](const std::string &candidate) {
        const std::string path = parent + "/" + candidate;
        return disk.isDirectory(path) || (last && disk.isFile(path));
    };
    if (fits(name))
        return name;
    std::vector<std::string> others;
    for (const std::string &there : namesIn(parent)) {
        if (sameName(there, name))
            others.push_back(there);
    }
    std::sort(others.begin(), others.end());
    const auto found = std::find_if(others.begin(), others.end(), fits);
    return found == others.end() ? name : *found;
}

const std::vector<std::string> &Drives::namesIn(const std::string &directory) const
{
    const std::uint64_t stamp = disk.changeStamp(directory);
    Listing &listing = listings[directory];
    if (stamp == 0 || stamp != listing.stamp) {
        disk.list(directory, listing.names);
        listing.stamp = stamp;
    }
    return listing.names;
}

} // namespace platform
