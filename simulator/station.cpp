#include "simulator/station.h"

#include <cstdio>
#include <filesystem>
#include <utility>

namespace simulator {

namespace {

std::string absolutePath(const std::string &path)
{
    std::error_code error;
    return std::filesystem::absolute(path, error).lexically_normal().string();
}

} // namespace

Station::Station(const std::string &theDrivesFolder, std::string program)
    : drivesFolder(theDrivesFolder.empty() ? platform::Drives::defaultRoot()
                                           : absolutePath(theDrivesFolder))
{
    run.reportFailure = [program = std::move(program)](const std::string &text) {
        std::fprintf(stderr, "%s: %s\n", program.c_str(), text.c_str());
    };
}

} // namespace simulator
