// A program without windows for the benchmarks: the real file layer on a drives folder, without
// questions and without printers.
#pragma once

#include "records/app.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace bench {

class NoLoop : public platform::EventLoop {
public:
    void turn() override {}
};

class NoClock : public platform::Clock {
public:
    platform::DateTime now() const override { return {}; }
    std::uint64_t milliseconds() const override { return 0; }
};

class NoDialogs : public platform::Dialogs {
public:
    using Dialogs::Dialogs;

protected:
    platform::Answer ask(const std::string &, const std::string &, platform::Buttons) override
    {
        return platform::Answer::Cancel;
    }
    std::optional<std::string> askText(const std::string &, const std::string &,
                                       const std::string &, bool) override
    {
        return std::nullopt;
    }
};

class NoPrinters : public platform::Printers {
public:
    std::vector<std::string> names() override { return {}; }
    std::string defaultName() override { return {}; }
    platform::Outcome submit(const std::string &, const platform::PrintJob &) override
    {
        return platform::Outcome::NotThere;
    }
    int paperWidth(const std::string &) override { return 0; }
    void warmUp(const platform::PrintFont &) override {}
};

struct Headless {
    explicit Headless(const std::string &drivesFolder)
        : drives(*disk, drivesFolder, platform::Drives::Paths::BelowRoot)
    {
        run.reportFailure = [](const std::string &text) {
            std::fprintf(stderr, "%s\n", text.c_str());
        };
    }

    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    platform::Drives drives;
    platform::Installation installation;
    NoLoop loop;
    NoClock clock;
    NoPrinters printers;
    platform::Run run{loop, clock};
    platform::Files files{*disk, drives, run};
    NoDialogs dialogs{run};
    std::unique_ptr<platform::System> system = platform::runningSystem(drives, installation);
    records::App app{{run, files, clock, dialogs, *system, printers, installation}};
};

} // namespace bench
