#include "support/card_text.h"

#include <algorithm>
#include <sstream>

namespace support {

using records::CardRecord;

CardRecord recordOf(const std::string &text)
{
    CardRecord record;
    std::istringstream fields(
        "CCNumb=4111111111111111;CCEncoded=0;CCServer=7;CCTabAmt=20.00;CCApprovedAmt=0;CCTip=0;"
        "CCReceipt=1;CCAdjStatus=Not Adjusted;CCstatus=Approved;CApprovalCode=004711;"
        "CCDate=01/15/25;CCTime=01:05 PM;CCStation=FRONT-BAR;" +
        text + ";");
    for (std::string name, value; std::getline(fields, name, '=') && getline(fields, value, ';');)
        for (const records::CardField &field : records::kCardFields) {
            if (field.name != name)
                continue;
            value.resize(value == "~" ? field.length : value.size(), '~');
            std::replace(value.begin(), value.end(), '~', '\0');
            record.set(field, value);
        }
    if (record.text(records::CCEncoded) == "1")
        records::encodeCardNumber(record);
    return record;
}

std::string slotOf(const std::string &text)
{
    return text == "empty" ? std::string(500, '\0')
                           : std::string(recordOf(text).view()) + std::string(10, '\0');
}

std::vector<CardRecord> recordsIn(const std::string &cardFile)
{
    std::vector<CardRecord> all(cardFile.size() / 500);
    for (std::size_t i = 0; i < all.size(); ++i)
        std::copy_n(cardFile.data() + i * 500, 490, all[i].data().data());
    return all;
}

} // namespace support
