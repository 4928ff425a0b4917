#include "support/tender_stage.h"

namespace support {

TenderStage::TenderStage() : Stage(story.station)
{
    word("cards are taken here", [this](Words) { story.takeCardsHere(); });
    word("bank approves",
         [this](Words rest) { bankAnswers(rest, approvedResult(), "\"YA12345\"\r\n"); });
    word("bank declines",
         [this](Words rest) { bankAnswers(rest, "RESULT=DECLINED\r\n", "\"NDECLINED\""); });
    word("payment answers", [this](std::string rest) {
        const std::optional<std::uint64_t> after = takeDelay(rest);
        answer(story::bytesOf(rest), story::bytesOf(rest), after);
    });
    word("bank approves now", [this](Words) { approveNow(); });
    word("payment keeps silent", [this](Words) {
        story.reply.reset();
        story.paymentKeepsSilent();
    });
    word("approve", [this](Words name) { story.app.values.managerResult = name; });
}

std::optional<std::uint64_t> TenderStage::takeDelay(std::string &words)
{
    if (!words.starts_with("after "))
        return {};
    words.erase(0, 6);
    return story::takeTime(words);
}

void TenderStage::bankAnswers(std::string rest, std::string result, const std::string &reply)
{
    const std::optional<std::uint64_t> after = takeDelay(rest);
    rest.erase(0, rest.starts_with(", ") ? 2 : 0);
    while (!rest.empty())
        result += story::takeUntil(rest, ", ") + "\r\n";
    answer(result, reply, after);
}

void TenderStage::answer(const std::string &result, const std::string &reply,
                         std::optional<std::uint64_t> after)
{
    story.paymentAnswers(result, after.value_or(3000));
    story.reply = reply;
    story.replyAfter = after.value_or(2000);
}

void TenderStage::approveNow()
{
    const std::vector<std::string> requests = story.left();
    if (story.station.has(TenderStory::kModeFlag))
        story.station.put(TenderStory::kResult, approvedResult());
    else if (requests.empty())
        complain("there is no request");
    else
        story.station.put(TenderStory::kLocalTran + requests[0].substr(0, requests[0].size() - 3) +
                              "ans",
                          "\"YA12345\"\r\n");
}

} // namespace support
