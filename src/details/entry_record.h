// Between a card record and the boxes of its screen: what filling shows and settles, and what a
// save takes back.
#pragma once

#include "details/entry_fields.h"
#include "records/card_record.h"

#include <string>
#include <string_view>

namespace details {

inline constexpr const char *kAdjusted = "Adjusted - Pending";
inline constexpr const char *kNotAdjusted = "Not Adjusted";

/// What filling settles in the working copy, and a later save writes: a plain number, a brand where
/// there was none, the approved amount as the tab, "0" for additional funds of nothing.
void settleRecord(records::CardRecord &record);

/// Shows a settled record: all boxes, tab and total, card flags. The quick tips are cleared.
void fillBoxes(const records::CardRecord &record, EntryFields &fields);

/// The boxes go back into the record, but those that are shown only; the number is plain then, and
/// its flag says so.
void Save_Fields(const EntryFields &fields, records::CardRecord &record);

/// Scrambles the number unless `CCEncoded` is "1" already.
void encodePlainNumber(records::CardRecord &record);

/// "XXXX XXXX XXXX " and the last four of a number of 16 characters or more.
/// Kept: a shorter one shows in full, and so do 15 digits and tokens of the command-line mode.
std::string shownNumber(std::string_view number);

/// New totals as their box shows them.
std::string totalText(records::Money total);

} // namespace details
