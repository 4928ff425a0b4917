#include "details/entry_record.h"

#include "details/hidden_card_data.h"
#include "records/card_helpers.h"

#include <algorithm>
#include <utility>

namespace details {

using namespace records;

namespace {

constexpr const char *kTotalMask = "########.##";

/// Boxes that a save takes back, in its order.
constexpr std::pair<Box, CardField> kSavedBoxes[] = {{Box::Number, CCNumb},
                                                     {Box::Expiry, CCExpDate},
                                                     {Box::Name, CCName},
                                                     {Box::TrackLine, CCDescription},
                                                     {Box::Sale, CCSaleAmt},
                                                     {Box::Server, CCServer},
                                                     {Box::Table, CCTable},
                                                     {Box::Tab, CCTabAmt},
                                                     {Box::Approved, CCApprovedAmt},
                                                     {Box::Response, CResponse},
                                                     {Box::ApprovalCode, CApprovalCode},
                                                     {Box::Status, CCstatus},
                                                     {Box::Tip, CCTip},
                                                     {Box::Receipt, CCReceipt},
                                                     {Box::Date, CCDate},
                                                     {Box::Time, CCTime},
                                                     {Box::Verification, CCVerify},
                                                     {Box::Swiped, CCSwiped},
                                                     {Box::Station, CCStation},
                                                     {Box::TipStatus, CCAdjStatus},
                                                     {Box::Balance, GCbalance},
                                                     {Box::Transaction, CCXcTranID}};

/// A field as a box shows it: NULs as blanks, without the padding.
std::string boxText(const CardRecord &record, const CardField &field)
{
    std::string text = record.raw(field);
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text.erase(text.find_last_not_of(' ') + 1);
}

void fillTip(const CardRecord &record, EntryFields &fields)
{
    const Money tab = record.value(CCTabAmt);
    const Money tip = record.value(CCTip);
    fields.tip = plainText(tip);
    fields.tipWrong = false;
    fields.tab = Currency(tab);
    fields.total = Currency(tab + tip);
    // Captions of the entry before must not become a tip of this one.
    fields.quickTips = {};
}

void fillFlags(const CardRecord &record, EntryFields &fields)
{
    const bool additionalFunds = record.text(CCGiftFlag) == "GS";
    const bool hasBalance = record.value(GCbalance) > Money();
    fields.tipLocked = additionalFunds;
    fields.quickTipsVisible = !additionalFunds;
    fields.cardNotice = hasBalance ? "This is GIFT / DEBIT CARD" : "THIS IS A PARTIAL APPROVAL";
    fields.cardNoticeVisible = additionalFunds || hasBalance;
    fields.fundsNoticesVisible = record.value(CCaditionalFUNDS) > Money();
}

} // namespace

void settleRecord(CardRecord &record)
{
    decodeCardNumber(record);
    const std::string brand = record.text(CCtype);
    if (brand.empty() || brand == "Unknown")
        record.set(CCtype, CreditCardType(record.text(CCNumb)).name);
    // Kept: the approved amount reaches the disk only when somebody saves this record.
    takeApprovedAmount(record);
    if (record.value(CCaditionalFUNDS).isZero())
        record.set(CCaditionalFUNDS, "0");
}

void fillBoxes(const CardRecord &record, EntryFields &fields)
{
    for (const auto &[box, field] : kSavedBoxes)
        fields.boxes[box] = boxText(record, field);
    fields.wrong = {};
    fields.boxes[Box::Number] = record.text(CCNumb);
    fields.boxes[Box::Receipt] = Trim(fields.boxes[Box::Receipt]);
    fields.boxes[Box::NewTotal] = Format(boxText(record, CCAdjAmt), kTotalMask);
    fields.boxes[Box::Brand] = "   " + boxText(record, CCtype);
    fields.boxes[Box::FundsNeeded] = Currency(record.value(CCaditionalFUNDS));
    fields.boxes[Box::Transaction] = Clean_Text(record.raw(CCXcTranID));
    fields.maskedNumber = shownNumber(fields.boxes[Box::Number]);
    fields.slipNumber = boxText(record, HiddenNumb);
    fillTip(record, fields);
    fillFlags(record, fields);
}

void Save_Fields(const EntryFields &fields, CardRecord &record)
{
    for (const auto &[box, field] : kSavedBoxes)
        record.set(field, fields.boxes[box]);
    // The number on the screen is plain, so a flag of "1" would be wrong.
    if (!record.value(CCEncoded).isZero())
        record.set(CCEncoded, "0");
}

void encodePlainNumber(CardRecord &record)
{
    if (record.text(CCEncoded) != "1")
        encodeCardNumber(record);
}

std::string shownNumber(std::string_view number)
{
    return number.size() >= 16 ? maskedNumber(number) : std::string(number);
}

std::string totalText(Money total)
{
    return Format(total, kTotalMask);
}

} // namespace details
