// The colours that card lists give their rows by what their statuses begin with.
#pragma once

#include "reports/card_list.h"

#include <optional>

namespace reports {

/// By `CCAdjStatus`: "Not..." white, "Com..." light green, any other the button's colour.
RowColour tipStatusColour(std::string_view status);

/// By `CCstatus`, over the other: "Dec..." red, "Com..." light green, any other none.
std::optional<RowColour> statusColour(std::string_view status);

} // namespace reports
