// Quick tips: the fifteen tips that the manager is offered for a tab.
#pragma once

#include "records/money.h"

#include <array>
#include <string>

namespace details {

/// For the rates 10, 13, 15, 18 and 20 % three captions each: at r the tip in the mask "######.##";
/// at r + 5 its whole dollars plus 1; at r + 10 its whole dollars plus the cents that the tab lacks
/// to the next dollar (a whole tab lacks 1), so that the total comes out at whole dollars.
std::array<std::string, 15> quickTips(records::Money tab);

} // namespace details
