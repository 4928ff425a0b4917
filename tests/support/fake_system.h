// FakeSystem: starts and kills nothing, and writes down what was asked. A test plays the payment
// application in onStart.
#pragma once

#include "platform/program_search.h"
#include "platform/system.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace support {

class FakeSystem : public platform::System {
public:
    struct Started {
        std::string commandLine;
        platform::WindowStyle style = platform::WindowStyle::Normal;
    };

    /// `isFile` says whether a program is there, by its contract path.
    explicit FakeSystem(std::function<bool(const std::string &)> isFile)
        : programIsThere(std::move(isFile))
    {
    }

    std::string computer = "FRONT-BAR";
    std::string executable = "TndrCC";
    bool connected = true;
    std::optional<platform::Outcome> startRefusal; // of a program that is there
    std::function<void(const Started &)> onStart;
    std::function<void(const std::string &imageName)> onKill;

    std::vector<Started> started; // those that were there and were not refused
    std::vector<std::string> killed;
    std::vector<std::string> edited;
    std::vector<std::string> browsed;
    std::vector<std::string> played;
    int connectionTests = 0;

    platform::Outcome start(const std::string &commandLine, platform::WindowStyle style) override
    {
        if (!platform::findProgram(commandLine, programIsThere))
            return platform::Outcome::NotThere;
        if (startRefusal)
            return *startRefusal;
        started.push_back({commandLine, style});
        if (onStart)
            onStart(Started(started.back())); // a copy: onStart may lead to another start
        return platform::Outcome::Done;
    }

    void killImage(const std::string &imageName) override
    {
        killed.push_back(imageName);
        if (onKill)
            onKill(imageName);
    }

    std::string computerName() override { return computer; }
    std::string executableName() override { return executable; }

    platform::Outcome openEditor(const std::string &path) override
    {
        edited.push_back(path);
        return platform::Outcome::Done;
    }

    platform::Outcome openBrowser(const std::string &address) override
    {
        browsed.push_back(address);
        return platform::Outcome::Done;
    }

    bool connectionTest() override
    {
        ++connectionTests;
        return connected;
    }

    void playSound(const std::string &path) override { played.push_back(path); }

private:
    std::function<bool(const std::string &)> programIsThere;
};

} // namespace support
