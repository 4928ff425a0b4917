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
        {"Done", [=, &entry] { entry.saveAndClose(); }},
        {"Force NO TIP", [=, &entry] { entry.forceNoTip(); }},
        {"Cancel", [=, &entry] { entry.cancel(); }},
        {"Undo", [=, &entry] { entry.undoTip(); }},
        {"Delete and Print", [=, &entry] { entry.deleteAndPrint(); }},
        {"Delete", [=, &entry] { entry.deleteEntry(); }},
        {"quick ", [=, &entry] { entry.takeQuickTip(number); }},
        {"Customer", [=, &entry] { entry.reprintCustomer(); }},
        {"Merchant", [=, &entry] { entry.reprintMerchant(); }},
        {"previous", [=, &entry] { entry.step(-1); }},
        {"next", [=, &entry] { entry.step(1); }},
        {"Save", [=, &entry] { entry.save(); }},
        {"Force ALL NO TIP", [=, &entry] { entry.forceAllNoTip(); }},
        {"UnDelete", [=, &entry] { entry.undelete(); }},
        {"Force ALL to", [=, &entry] { entry.forceAllAdjusted(); }},
        {"Force", [=, &entry] { entry.forceAdjusted(); }},
        {"VOID", [=, &entry] { entry.voidEntry(); }},
        {"Clear", [=, &entry] { entry.clearTip(); }},
        {"the tab", [=, &entry] { entry.offerQuickTips(); }},
        {"View Card", [=, &entry] { entry.revealNumber(); }},
        {"View Track", [=, &entry] { entry.revealTrackLine(); }},
        {"tip ", [=, &entry] { entry.typeTip(word); }},
        {"box ",
         [=, &entry] { entry.typeBox(static_cast<Box>(number), word.substr(word.find('=') + 1)); }},
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
