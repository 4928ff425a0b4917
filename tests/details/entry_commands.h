// The commands of one entry by their names, as golden tables and stories write them.
#pragma once

#include "details/entry_details.h"
#include "records/text.h"

#include <algorithm>

namespace details {

/// "Done", "tip 5.00", "box 2=JANE ROE", "quick 10". False for what is none.
inline bool pressEntry(EntryDetails &entry, const std::string &command)
{
    const std::string word = command.substr(command.find(' ') + 1);
    const auto number = static_cast<std::size_t>(std::max(records::wholeNumber(word), 0));
    const std::pair<const char *, std::function<void()>> commands[] = {
        {"Done", [&] { entry.SSCommand1_Click(); }},
        {"Force NO TIP", [&] { entry.SSCommand2_Click(); }},
        {"Cancel", [&] { entry.SSCommand3_Click(); }},
        {"Undo", [&] { entry.SSCommand4_Click(); }},
        {"Delete and Print", [&] { entry.SSCommand12_Click(); }},
        {"Delete", [&] { entry.SSCommand5_Click(); }},
        {"quick ", [&] { entry.SSCommand6_Click(number); }},
        {"Customer", [&] { entry.SSCommand7_Click(); }},
        {"Merchant", [&] { entry.SSCommand8_Click(); }},
        {"previous", [&] { entry.SSCommand9_Click(0); }},
        {"next", [&] { entry.SSCommand9_Click(1); }},
        {"Save", [&] { entry.SSCommand10_Click(); }},
        {"Force ALL NO TIP", [&] { entry.SSCommand11_Click(); }},
        {"UnDelete", [&] { entry.SSCommand13_Click(); }},
        {"Force ALL to", [&] { entry.SSCommand16_Click(); }},
        {"Force", [&] { entry.SSCommand14_Click(); }},
        {"VOID", [&] { entry.SSCommand15_Click(); }},
        {"Clear", [&] { entry.SSCommand17_Click(); }},
        {"the tab", [&] { entry.Label3_Click(); }},
        {"View Card", [&] { entry.Command2_Click(); }},
        {"View Track", [&] { entry.Command1_Click(); }},
        {"tip ", [&] { entry.Text4_Change(word); }},
        {"box ", [&] { entry.Text1_Change(number, word.substr(word.find('=') + 1)); }},
        {"status ", [&] { entry.setStatus(word); }},
    };
    const auto found =
        std::find_if(std::begin(commands), std::end(commands),
                     [&](const auto &known) { return command.starts_with(known.first); });
    if (found != std::end(commands))
        found->second();
    return found != std::end(commands);
}

} // namespace details
