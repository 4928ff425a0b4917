// Card records as tests write them: "CCReceipt=1;CCTip=5".
#pragma once

#include "records/card_helpers.h"
#include "records/card_record.h"

#include <string>
#include <vector>

namespace support {

/// On top of an approved one of tonight over 20.00. "~" is a NUL, "CCTip=~" the NULs of a field
/// never assigned; "CCEncoded=1" scrambles the number.
records::CardRecord recordOf(const std::string &text);
/// "empty" is a slot that was never filled.
std::string slotOf(const std::string &text);
std::vector<records::CardRecord> recordsIn(const std::string &cardFile);

} // namespace support
