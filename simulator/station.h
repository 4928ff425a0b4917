// Station: the files of one station, opened by one of the stand-ins.
#pragma once

#include "platform/files.h"

#include <memory>
#include <string>

namespace simulator {

class Station {
public:
    /// `theDrivesFolder` empty: the drives folder that the programs find. A failed operation is
    /// told on the error output in the name of `program`.
    Station(const std::string &theDrivesFolder, std::string program);

private:
    /// Never turns: nothing here waits in the file layer.
    class NoTime : public platform::EventLoop, public platform::Clock {
    public:
        void turn() override {}
        platform::DateTime now() const override { return {}; }
        std::uint64_t milliseconds() const override { return 0; }
    };
    NoTime time;

public:
    const std::string drivesFolder;
    platform::Run run{time, time};
    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    platform::Drives drives{*disk, drivesFolder};
    platform::Files files{*disk, drives, run};
};

} // namespace simulator
