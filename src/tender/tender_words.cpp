#include "tender/tender_words.h"

#include "records/text.h"

#include <algorithm>

namespace tender {

namespace {

StateWords resultWords(const TenderFields &fields)
{
    if (fields.unknown)
        return {StateColour::Attention, "Outcome unknown",
                "The card may be charged. Tell the manager."};
    if (fields.partial)
        return {StateColour::Attention, "Partial approval",
                "The bank approved a part. The guest still owes the balance."};
    if (fields.approved)
        return {StateColour::Approved, "Approved", {}};
    return {StateColour::Declined, "Declined", {}};
}

std::string waitNotice(const TenderFields &fields)
{
    return fields.X1009
               ? "Still waiting for the payment window. You can go on waiting, or press Cancel."
               : "Still waiting for the bank's answer. You can go on waiting, or press Cancel.";
}

} // namespace

StateWords stateWords(const TenderFields &fields)
{
    if (fields.result)
        return resultWords(fields);
    if (fields.warningVisible)
        return {StateColour::Attention, "No answer yet",
                fields.X1009 ? "The payment application has not answered."
                             : "The payment server has not answered."};
    if (fields.waitCountVisible)
        return {StateColour::Waiting, "Waiting",
                fields.X1009 ? "The payment window takes the card." : "The bank is being asked."};
    const bool ready = !fields.boxesLocked && !fields.cardTaken;
    return {StateColour::Waiting, ready ? "Ready for the card" : "Just a moment", {}};
}

std::string bandNotice(const TenderFields &fields)
{
    if (fields.waitPanelVisible && !fields.result)
        return waitNotice(fields);
    if (fields.waitingRecords == 0)
        return {};
    return (fields.waitingRecords == 1
                ? std::string("A charged card of this station is")
                : std::to_string(fields.waitingRecords) + " charged cards of this station are") +
           " not in the card file yet. Tell the manager.";
}

std::string shownAmount(std::string_view amount)
{
    records::Money value;
    return records::readNumber(amount, value) ? records::Currency(value) : std::string(amount);
}

std::string shownCardNumber(std::string_view number)
{
    std::string shown = records::Trim(number);
    if (shown.size() > 4)
        std::fill(shown.begin(), shown.end() - 4, '*');
    return shown;
}

} // namespace tender
