// What every benchmark needs: series of samples, their medians and spreads, and a report that
// compares figures with their limits.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace bench {

using Instant = std::chrono::steady_clock::time_point;

inline Instant now()
{
    return std::chrono::steady_clock::now();
}

inline double millisecondsBetween(Instant from, Instant to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

inline double millisecondsSince(Instant start)
{
    return millisecondsBetween(start, now());
}

/// Samples of one figure. Without samples every result is 0.
class Series {
public:
    void add(double sample) { samples.push_back(sample); }
    std::size_t size() const { return samples.size(); }
    /// The smallest sample that `percent` of all are not above.
    double percentile(double percent) const;
    double median() const { return percentile(50); }
    double operator[](std::size_t n) const { return samples[n]; }

private:
    std::vector<double> samples;
};

/// The differences of two series, sample by sample: both samples of a pair were taken at the same
/// time, so that a disturbance affects both.
Series ratios(const Series &above, const Series &below);

/// The lines of a benchmark on standard output.
class Report {
public:
    explicit Report(const std::string &title);
    /// Median, 10th, 90th and 95th percentile.
    void line(const std::string &name, const Series &series, const std::string &unit);
    void line(const std::string &name, double value, const std::string &unit);
    /// A figure that must not be above (or below) a limit.
    void atMost(const std::string &name, double value, double limit, const std::string &unit);
    void atLeast(const std::string &name, double value, double limit, const std::string &unit);
    void text(const std::string &words);
    /// What main returns: 1 if a limit was missed or something did not work.
    int result() const { return missed ? 1 : 0; }
    void fail(const std::string &words);

private:
    void demand(const std::string &name, double value, const std::string &limit, bool met,
                const std::string &unit);
    bool missed = false;
};

/// A folder for this process's files beside the executable, which a build puts on a real disk;
/// `LUMBRIO_BENCH_FOLDER` names another place. Removed at the end.
class WorkFolder {
public:
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;
    const std::string &path() const { return folder; }
    /// False for a folder that is kept in memory, where a flush costs nothing.
    bool isOnDisk() const;

private:
    std::string folder;
};

/// A number from the environment, to make runs longer or shorter.
int countFromEnvironment(const char *name, int otherwise);

} // namespace bench
