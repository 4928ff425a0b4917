#include "reports/row_colours.h"

#include "records/status_words.h"

namespace reports {

RowColour tipStatusColour(std::string_view status)
{
    if (records::beginsNotAdjusted(status))
        return RowColour::White;
    return records::beginsCompleted(status) ? RowColour::LightGreen : RowColour::ButtonFace;
}

std::optional<RowColour> statusColour(std::string_view status)
{
    if (records::beginsDeclined(status))
        return RowColour::Red;
    if (records::beginsCompleted(status))
        return RowColour::LightGreen;
    return std::nullopt;
}

} // namespace reports
