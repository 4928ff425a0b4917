// The records of a card file in a form for people.
#pragma once

#include "platform/files.h"
#include "records/card_record.h"

#include <string>
#include <vector>

namespace simulator {

/// All records of a card file ("CCPending.dat", a month file) in the order of their slots; empty
/// when it is not there. Reads under the file's lock, as every lister does.
std::vector<records::CardRecord> readCardFile(platform::Files &files, const std::string &path);

/// One row a record under a row of titles: slot, time, table, money, card, status. No card
/// reference is shown, only the masked number.
std::string readableRecords(const std::vector<records::CardRecord> &records);

/// The paths of the month files under `remotedir`, sorted by name ("CCFinal0125.dat").
std::vector<std::string> monthFiles(platform::Files &files, const std::string &remotedir);

} // namespace simulator
