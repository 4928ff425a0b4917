// Golden tables: files of rows "input|output|output" below a line of headings, below tests/golden/.
// \r and \n in a row stand for those bytes.
#pragma once

#include "support/test_files.h"

#include <functional>

namespace support {

/// Computes each row again, where `outputs` gives the other columns for an input. The table must
/// stay the same.
void expectTable(const std::string &name,
                 const std::function<std::vector<std::string>(const std::string &input)> &outputs);

} // namespace support
