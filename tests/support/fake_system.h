// FakeSystem: starts and kills nothing, and writes down what was started. A test plays the payment
// application in onStart.
#pragma once

#include "platform/program_search.h"
#include "platform/system.h"

#include <functional>
#include <vector>

namespace support {

class FakeSystem : public platform::System {
public:
    using Outcome = platform::Outcome;

    struct Started {
        std::string commandLine;
        platform::WindowStyle style = platform::WindowStyle::Normal;
    };

    /// `isFile` says whether a program is there, by its Windows path.
    explicit FakeSystem(std::function<bool(const std::string &)> isFile)
        : programIsThere(std::move(isFile))
    {
    }

    std::string executable = "TndrCC";
    std::optional<bool> connected = true; // nothing: the test is under way
    std::function<void(const Started &)> onStart;
    std::function<void(const std::string &imageName)> onKill;

    std::vector<Started> started;    // those that were there
    std::vector<std::string> played; // sound files

    Outcome start(const std::string &commandLine, platform::WindowStyle style) override
    {
        if (!platform::findProgram(commandLine, programIsThere))
            return Outcome::NotThere;
        started.push_back({commandLine, style});
        if (onStart)
            onStart(Started(started.back())); // a copy: onStart may lead to another start
        return Outcome::Done;
    }
    void killImage(const std::string &imageName) override
    {
        if (onKill)
            onKill(imageName);
    }
    std::string computerName() override { return "FRONT-BAR"; }
    std::string executableName() override { return executable; }
    Outcome openEditor(const std::string &) override { return Outcome::Done; }
    Outcome openBrowser(const std::string &) override { return Outcome::Done; }
    void startConnectionTest() override {}
    std::optional<bool> connectionTested() const override { return connected; }
    void playSound(const std::string &path) override { played.push_back(path); }

private:
    std::function<bool(const std::string &)> programIsThere;
};

} // namespace support
