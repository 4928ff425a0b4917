#include "details/hidden_card_data.h"

#include "records/text.h"

namespace details {

namespace {

constexpr const char *kPasswordTitle = "PASSWORD REQUIRED - CALL TECH SUPPORT";
constexpr const char *kProposal = "PASSWORD";
constexpr const char *kPassword = "marlend";

bool isPlain(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool passwordGiven(platform::Dialogs &dialogs, const char *question, const char *failTitle,
                   const char *failText)
{
    const std::string typed = dialogs.input(kPasswordTitle, question, kProposal).value_or("");
    if (!typed.empty() && typed != kPassword)
        dialogs.message(failTitle, failText);
    return typed == kPassword;
}

} // namespace

std::string Clean_Text(std::string_view text)
{
    std::string clean;
    for (const char c : records::Trim(text)) {
        if (isPlain(c))
            clean += c;
        else if (clean.empty() || clean.back() != ' ')
            clean += ' ';
    }
    return clean;
}

bool mayViewNumber(platform::Dialogs &dialogs)
{
    return passwordGiven(
        dialogs,
        "The Card Number has been hidden for your protection. To view the Card Number you must "
        "call Tech Support at 555-010-0199. You will be given a password to enter below.",
        "FAIL", "You have entered an incorrect password.");
}

bool mayViewTrackLine(platform::Dialogs &dialogs)
{
    return passwordGiven(
        dialogs,
        "The Track Read Line has been hidden for your protection. To view the Track Read you must "
        "call Tech Support at 555-010-0199. You will be given a password to enter below. If you "
        "enter a wrong password the ALL Track Reads will be Permanently DELETED",
        "ALL DELETED", "You have entered an incorrect password, ALL TRACK READS have been deleted");
}

} // namespace details
