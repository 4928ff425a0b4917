// ScriptedDialogs: the user of the tests, a person who reads each box and answers it.
#pragma once

#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <vector>

namespace support {

class ScriptedDialogs : public platform::Dialogs {
public:
    using Captions = std::vector<std::string>;
    using Text = const std::string &;

    explicit ScriptedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}

    /// Who answers a box, told as "[title] text (Ok, Cancel)", by one of its captions, "" being no
    /// answer; one without captions by "with " and the text that is typed into it. While there is
    /// nobody no box may come up.
    std::function<std::string(Text box, const Captions &captions)> person;
    /// A person who notes each box, a line each, and says Ok when the loop has turned.
    void noteIn(std::string &boxes)
    {
        person = [this, &boxes](Text box, const Captions &) {
            boxes += box + "\n";
            run.yield();
            return "Ok";
        };
    }

protected:
    using Answer = platform::Answer;
    using Buttons = platform::Buttons;

    Answer ask(Text title, Text text, Buttons buttons) override
    {
        const Captions captions = buttons == Buttons::Ok         ? Captions{"Ok"}
                                  : buttons == Buttons::OkCancel ? Captions{"Ok", "Cancel"}
                                                                 : Captions{"Yes", "No"};
        const std::string last = captions.size() > 1 ? ", " + captions[1] : "";
        const std::string said = answerTo(title, text, captions[0] + last, captions);
        return said == "Ok"                ? Answer::Ok
               : said == "Yes"             ? Answer::Yes
               : buttons == Buttons::YesNo ? Answer::No
                                           : Answer::Cancel;
    }
    std::optional<std::string> askText(Text title, Text text, Text initial, bool) override
    {
        const std::string said = answerTo(title, text, initial, {});
        return said.starts_with("with ") ? std::optional(said.substr(5)) : std::nullopt;
    }

private:
    std::string answerTo(Text title, Text text, Text offered, const Captions &captions)
    {
        const std::string box = "[" + title + "] " + text + " (" + offered + ")";
        EXPECT_TRUE(person) << "nobody expects " << box;
        return person ? person(box, captions) : "";
    }

    platform::Run &run;
};

} // namespace support
