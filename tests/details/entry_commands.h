// The commands of one entry by their names, as golden tables and stories write them.
#pragma once

#include "details/entry_details.h"
#include "records/text.h"

namespace details {

using Commands = std::vector<std::pair<std::string, std::function<void()>>>;

/// All that a manager can do, by the beginnings of its names; `word` is what is typed or tapped.
inline Commands commandsOf(EntryDetails &entry, const std::string &word)
{
    const auto number = static_cast<std::size_t>(std::max(records::wholeNumber(word), 0));
    return {
        {"Done", [=, &entry] { entry.SSCommand1_Click(); }},
        {"Force NO TIP", [=, &entry] { entry.SSCommand2_Click(); }},
        {"Cancel", [=, &entry] { entry.SSCommand3_Click(); }},
        {"Undo", [=, &entry] { entry.SSCommand4_Click(); }},
        {"Delete and Print", [=, &entry] { entry.SSCommand12_Click(); }},
        {"Delete", [=, &entry] { entry.SSCommand5_Click(); }},
        {"quick ", [=, &entry] { entry.SSCommand6_Click(number); }},
        {"Customer", [=, &entry] { entry.SSCommand7_Click(); }},
        {"Merchant", [=, &entry] { entry.SSCommand8_Click(); }},
        {"previous", [=, &entry] { entry.SSCommand9_Click(0); }},
        {"next", [=, &entry] { entry.SSCommand9_Click(1); }},
        {"Save", [=, &entry] { entry.SSCommand10_Click(); }},
        {"Force ALL NO TIP", [=, &entry] { entry.SSCommand11_Click(); }},
        {"UnDelete", [=, &entry] { entry.SSCommand13_Click(); }},
        {"Force ALL to", [=, &entry] { entry.SSCommand16_Click(); }},
        {"Force", [=, &entry] { entry.SSCommand14_Click(); }},
        {"VOID", [=, &entry] { entry.SSCommand15_Click(); }},
        {"Clear", [=, &entry] { entry.SSCommand17_Click(); }},
        {"the tab", [=, &entry] { entry.Label3_Click(); }},
        {"View Card", [=, &entry] { entry.Command2_Click(); }},
        {"View Track", [=, &entry] { entry.Command1_Click(); }},
        {"tip ", [=, &entry] { entry.Text4_Change(word); }},
        {"box ", [=, &entry] { entry.Text1_Change(number, word.substr(word.find('=') + 1)); }},
        {"status ", [=, &entry] { entry.setStatus(word); }},
    };
}

/// Does the first of those commands with whose name this one begins. False when there is none.
inline bool doFirst(const Commands &commands, const std::string &command)
{
    for (const auto &[name, does] : commands)
        if (command.starts_with(name)) {
            does();
            return true;
        }
    return false;
}

/// "Done", "tip 5.00", "box 2=JANE ROE", "quick 10".
inline bool pressEntry(EntryDetails &entry, const std::string &command)
{
    return doFirst(commandsOf(entry, command.substr(command.find(' ') + 1)), command);
}

inline void pressEverything(EntryDetails &entry)
{
    for (const auto &[name, press] : commandsOf(entry, "2=8"))
        press();
}

} // namespace details
