#include "tender/tender_words.h"

#include "records/text.h"

#include <algorithm>

namespace tender {

namespace {

StateWords resultWords(const TenderFields &fields)
{
    if (fields.partial)
        return {StateColour::Attention, "Partial approval",
                "The bank approved a part. The guest still owes the balance."};
    if (fields.Text1 == "Approved")
        return {StateColour::Approved, "Approved", {}};
    return {StateColour::Declined, "Declined", {}};
}

} // namespace

StateWords stateWords(const TenderFields &fields)
{
    if (fields.result)
        return resultWords(fields);
    if (fields.SSPanel4Visible)
        return {StateColour::Attention, "No answer yet",
                "The payment application has not answered."};
    if (fields.Label7Visible)
        return {StateColour::Waiting, "Waiting", "The payment window takes the card."};
    return {StateColour::Waiting, fields.X1009 ? "Just a moment" : "Ready for the card", {}};
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
