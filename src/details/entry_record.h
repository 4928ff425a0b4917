// From a card record to the boxes of its screen and back.
#pragma once

#include "details/entry_fields.h"
#include "records/card_record.h"

#include <string>
#include <string_view>

namespace details {

/// What the screen needs changed in its working copy, and a later save writes: the number plain, a
/// brand where there was none, the approved amount as the tab, "0" for no additional funds.
void settleRecord(records::CardRecord &record);

/// Shows a settled record: all boxes, tab and total, card flags. The quick tips are cleared.
void fillBoxes(const records::CardRecord &record, EntryFields &fields);

/// Puts the boxes back into the record, except those that are only shown. The number is plain then,
/// and its flag says so.
void Save_Fields(const EntryFields &fields, records::CardRecord &record);

/// Scrambles the number unless `CCEncoded` is "1" already.
void encodePlainNumber(records::CardRecord &record);

/// "XXXX XXXX XXXX " and the last four of a number of 16 characters or more.
/// Kept: a shorter one shows in full, and so do 15 digits and tokens of the command-line mode.
std::string shownNumber(std::string_view number);

/// New totals as their box shows them.
std::string totalText(records::Money total);

} // namespace details
