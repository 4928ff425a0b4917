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
constexpr std::pair<std::size_t, CardField> kSavedBoxes[] = {
    {0, CCNumb},         {1, CCExpDate},  {2, CCName},    {3, CCDescription}, {4, CCSaleAmt},
    {5, CCServer},       {6, CCTable},    {7, CCTabAmt},  {8, CCApprovedAmt}, {9, CResponse},
    {10, CApprovalCode}, {11, CCstatus},  {12, CCTip},    {13, CCReceipt},    {14, CCDate},
    {15, CCTime},        {16, CCVerify},  {17, CCSwiped}, {18, CCStation},    {19, CCAdjStatus},
    {22, GCbalance},     {24, CCXcTranID}};

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
    fields.Text4 = plainText(tip);
    fields.Text4Wrong = false;
    fields.Label3_0 = Currency(tab);
    fields.Label3_1 = Currency(tab + tip);
    // Yesterday's guest must not be tipped by the captions of today's.
    fields.SSCommand6.fill({});
}

void fillFlags(const CardRecord &record, EntryFields &fields)
{
    const bool additionalFunds = record.text(CCGiftFlag) == "GS";
    const bool hasBalance = record.value(GCbalance) > Money();
    fields.Text4Locked = additionalFunds;
    fields.SSPanel2Visible = !additionalFunds;
    fields.Label12 = hasBalance ? "This is GIFT / DEBIT CARD" : "THIS IS A PARTIAL APPROVAL";
    fields.Label12Visible = additionalFunds || hasBalance;
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
        fields.Text1[box] = boxText(record, field);
    fields.Text1Wrong.fill(false);
    fields.Text1[0] = record.text(CCNumb);
    fields.Text1[13] = Trim(fields.Text1[13]);
    fields.Text1[20] = Format(boxText(record, CCAdjAmt), kTotalMask);
    fields.Text1[21] = "   " + boxText(record, CCtype);
    fields.Text1[23] = Currency(record.value(CCaditionalFUNDS));
    fields.Text1[24] = Clean_Text(record.raw(CCXcTranID));
    fields.Text2 = shownNumber(fields.Text1[0]);
    fields.Text3 = boxText(record, HiddenNumb);
    fillTip(record, fields);
    fillFlags(record, fields);
}

void Save_Fields(const EntryFields &fields, CardRecord &record)
{
    for (const auto &[box, field] : kSavedBoxes)
        record.set(field, fields.Text1[box]);
    // Or a number that stayed on the screen after a save would be plain under a flag of "1".
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
