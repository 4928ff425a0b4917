#include "printing/unprinted.h"

namespace printing {

namespace {

std::string reasonOf(const Unprinted &lost)
{
    if (lost.outcome != platform::Outcome::NotThere)
        return platform::textOf(lost.outcome);
    return lost.printer.empty() ? "no printer is installed" : "the printer is not there";
}

/// "the merchant's slip, the customer's slip and the server's notice"
std::string enumerated(const std::vector<std::string> &slips)
{
    std::string text;
    for (std::size_t item = 0; item < slips.size(); ++item) {
        if (item > 0)
            text += item + 1 < slips.size() ? ", " : " and ";
        text += "the " + slips[item];
    }
    return text;
}

} // namespace

std::string unprintedWords(const std::vector<Unprinted> &unprinted)
{
    std::string words;
    for (const Unprinted &lost : unprinted) {
        std::string slips = enumerated(lost.slips);
        slips.front() = 'T';
        words += (words.empty() ? "" : " ") + slips + (lost.slips.size() > 1 ? " were" : " was") +
                 " not printed" + (lost.printer.empty() ? "" : " on " + lost.printer) + ": " +
                 reasonOf(lost) + ".";
    }
    return words;
}

std::vector<std::string> unprintedLines(const std::vector<Unprinted> &unprinted)
{
    std::vector<std::string> lines;
    for (const Unprinted &lost : unprinted)
        for (const std::string &slip : lost.slips)
            lines.push_back("  NOT PRINTED - " + slip + " - " + reasonOf(lost) +
                            (lost.printer.empty() ? "" : " - " + lost.printer));
    return lines;
}

platform::Answer showUnprinted(platform::Dialogs &dialogs, Printer &printer,
                               const std::string &whatNow, platform::Buttons buttons)
{
    const std::vector<Unprinted> unprinted = printer.takeUnprinted();
    if (unprinted.empty())
        return platform::Answer::Ok;
    return dialogs.message("NOT PRINTED", unprintedWords(unprinted) + " " + whatNow, buttons);
}

} // namespace printing
