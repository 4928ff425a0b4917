// The payment server's answer file: only one whose value begins with a capital Y approves, and the
// record takes what fits of it.
#include "memory_station.h"
#include "records/text.h"
#include "tender/local_request.h"
#include "tender/request.h"

using namespace records;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string content = fuzz::textOf(data, size);
    const std::string answer = tender::answerText(content);
    const std::string word = tender::outcomeWord(answer);
    const std::size_t first = content.find_first_not_of(" \"");
    const bool capitalY = first != std::string::npos && content[first] == 'Y';
    fuzz::require(word == "Approved" ? capitalY : word == "Declined");
    fuzz::require(answer.find_first_of("\r\n") == std::string::npos);
    CardRecord CCdata;
    Clear_CCdata(CCdata);
    CCdata.set(CCReceipt, "1043");
    CCdata.set(CResponse, answer);
    CCdata.set(CApprovalCode, answer.substr(answer.empty() ? 0 : 1));
    fuzz::require(CCdata.text(CCReceipt) == "1043");
    fuzz::require(platform::splitLines(tender::answerBlock(word, CCdata)).size() == 10);
    return 0;
}
