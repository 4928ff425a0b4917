#include "bench/measure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace bench {

double Series::percentile(double percent) const
{
    if (samples.empty())
        return 0;
    std::vector<double> sorted = samples;
    std::sort(sorted.begin(), sorted.end());
    const double rank = std::ceil(percent / 100 * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

Series ratios(const Series &above, const Series &below)
{
    Series result;
    for (std::size_t n = 0; n < std::min(above.size(), below.size()); ++n)
        result.add(above[n] / below[n]);
    return result;
}

Report::Report(const std::string &title)
{
    std::printf("\n%s\n%-46s %10s %10s %10s %10s\n", title.c_str(), "", "median", "10 %", "90 %",
                "95 %");
}

void Report::line(const std::string &name, const Series &series, const std::string &unit)
{
    std::printf("  %-44s %10.2f %10.2f %10.2f %10.2f %s (%zu)\n", name.c_str(), series.median(),
                series.percentile(10), series.percentile(90), series.percentile(95), unit.c_str(),
                series.size());
    std::fflush(stdout);
}

void Report::line(const std::string &name, double value, const std::string &unit)
{
    std::printf("  %-44s %10.2f %s\n", name.c_str(), value, unit.c_str());
    std::fflush(stdout);
}

void Report::atMost(const std::string &name, double value, double limit, const std::string &unit)
{
    char text[64];
    std::snprintf(text, sizeof text, "at most %g", limit);
    demand(name, value, text, value <= limit, unit);
}

void Report::atLeast(const std::string &name, double value, double limit, const std::string &unit)
{
    char text[64];
    std::snprintf(text, sizeof text, "at least %g", limit);
    demand(name, value, text, value >= limit, unit);
}

void Report::demand(const std::string &name, double value, const std::string &limit, bool met,
                    const std::string &unit)
{
    std::printf("%s %-44s %10.2f %s (%s)\n", met ? "ok" : "! ", name.c_str(), value, unit.c_str(),
                limit.c_str());
    std::fflush(stdout);
    missed = missed || !met;
}

void Report::text(const std::string &words)
{
    std::printf("  %s\n", words.c_str());
    std::fflush(stdout);
}

void Report::fail(const std::string &words)
{
    std::printf("!  %s\n", words.c_str());
    std::fflush(stdout);
    missed = true;
}

WorkFolder::WorkFolder()
{
    std::error_code error;
    const char *named = std::getenv("LUMBRIO_BENCH_FOLDER");
    const std::string parent = named != nullptr ? std::string(named) : std::string(PROGRAMS_DIR);
    folder = parent + "/bench-" + std::to_string(::getpid());
    std::filesystem::create_directories(folder, error);
}

WorkFolder::~WorkFolder()
{
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

bool WorkFolder::isOnDisk() const
{
    struct statfs found = {};
    return ::statfs(folder.c_str(), &found) == 0 && found.f_type != TMPFS_MAGIC &&
           found.f_type != RAMFS_MAGIC;
}

int countFromEnvironment(const char *name, int otherwise)
{
    const char *value = std::getenv(name);
    const int count = value == nullptr ? 0 : std::atoi(value);
    return count > 0 ? count : otherwise;
}

} // namespace bench
