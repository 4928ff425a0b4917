// The records of a card file as a readable table.
#pragma once

#include "platform/files.h"
#include "records/card_record.h"

#include <string>
#include <vector>

namespace simulator {

/// All records of a card file ("CCPending.dat", a month file) in the order of their slots; empty if
/// there is no file. Reads under the file's lock.
std::vector<records::CardRecord> readCardFile(platform::Files &files, const std::string &path);

/// One row for each record below a row of titles: slot, time, table, money, card, status. Of the
/// card only the masked number is shown.
std::string readableRecords(const std::vector<records::CardRecord> &records);

/// The paths of the month files under `remotedir`, sorted by name ("CCFinal0125.dat").
std::vector<std::string> monthFiles(platform::Files &files, const std::string &remotedir);

} // namespace simulator
