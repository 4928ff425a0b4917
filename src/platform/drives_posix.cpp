#include "platform/drives.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace platform {

namespace {

std::string environment(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string homeFolder()
{
    std::string home = environment("HOME");
    if (home.empty()) {
        const passwd *user = ::getpwuid(::getuid());
        home = user == nullptr ? "/" : user->pw_dir;
    }
    return home;
}

std::string absolute(const std::string &path)
{
    char here[4096];
    if (path.front() == '/' || ::getcwd(here, sizeof here) == nullptr)
        return path;
    return std::string(here) + "/" + path;
}

} // namespace

std::string Drives::defaultRoot()
{
    if (const std::string named = environment("LUMBRIO_DRIVES"); !named.empty())
        return absolute(named);
    if (const std::string data = environment("XDG_DATA_HOME"); !data.empty())
        return absolute(data + "/lumbrio/drives");
    return absolute(homeFolder() + "/.local/share/lumbrio/drives");
}

Drives::Paths Drives::systemPaths()
{
    return Paths::BelowRoot;
}

} // namespace platform
