// TenderStage: the words of stories in which a card is taken, for the procedures and for the
// windows. What the payment application and the bank say has the same words in both modes.
#pragma once

#include "story/stage.h"
#include "support/tender_story.h"

namespace support {

struct HasTenderStory {
    TenderStory story;
};

class TenderStage : protected HasTenderStory, public story::Stage {
protected:
    TenderStage();

    void configure(int field, Words text) override { story.configure(field, text); }
    void boxShown(Words box) override { boxLines += box + "\n"; }
    /// All that came up.
    story::Lines boxes() const { return platform::splitLines(boxLines); }

private:
    static std::optional<std::uint64_t> takeDelay(std::string &words);
    void bankAnswers(std::string rest, std::string result, const std::string &reply);
    void answer(const std::string &result, const std::string &reply,
                std::optional<std::uint64_t> after); // ms
    void approveNow();

    std::string boxLines;
};

} // namespace support
