// NotedDialogs: a user who answers every box alike. What was shown is written down, for golden
// stories that tell it.
#pragma once

#include "platform/dialogs.h"

namespace support {

class NotedDialogs : public platform::Dialogs {
public:
    explicit NotedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}

    std::string happened;
    platform::Answer answer = platform::Answer::Ok; // where there is a choice
    std::optional<std::string> typed;

protected:
    /// The loop turns once while a message is open.
    platform::Answer ask(const std::string &title, const std::string &text,
                         platform::Buttons buttons) override
    {
        happened += "[" + title + "] " + text + "\n";
        run.yield();
        return buttons == platform::Buttons::Ok ? platform::Answer::Ok : answer;
    }
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &initial, bool) override
    {
        happened += "[" + title + "] " + text + " (" + initial + ")\n";
        return typed;
    }

private:
    platform::Run &run;
};

} // namespace support
