// The reader of the payment application's result file "xResultFile.txt": one item a line, plain
// ("KEY=value") or tagged ("<RESULT_KEY>value"), into the working record.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace tender {

inline constexpr const char *kDefaultResultFile = "c:\\Lumbrio\\xResultFile.Txt";

/// Tries every row of the reader's table on one line (trimmed here; an empty one is skipped) and
/// sets the fields it names. Keys compare exactly. A fixed-length value takes what is there, a
/// closing tag included.
void applyResultLine(std::string_view line, records::CardRecord &CCdata);

/// Reads the file `name` into `CCdata`: keeps a copy as "C:\Lumbrio\ResponseBACKUP.txt" first,
/// sets `GCbalance` to "0", applies every line, traces all of them and writes the debug file
/// "c:\Lumbrio\XLMread.txt". Never deletes the result file. Returns the lines as read. Lines
/// beyond kResultLimit bytes of the file are left out. Errors are ignored: a file that says nothing
/// leaves the fields as they were.
std::vector<std::string> readResultFile(records::App &app, const std::string &name);

/// The 22 lines of "XLMread.txt" in their fixed order.
std::string resultDebugFile(const records::CardRecord &CCdata);

inline constexpr std::size_t kResultLimit = 64U << 10U;

} // namespace tender
