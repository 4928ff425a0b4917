// PrintJob: a slip or report as data. Rules write jobs, tests compare them, platform/qt/ paints
// them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct PrintFont {
    std::string family; // empty: the system's own
    double size = 10;   // points
    bool bold = false;
    bool italic = false;
    bool operator==(const PrintFont &) const = default;
};

/// One operation. A Line may hold tab characters; they go to the stops set by the last Tabs
/// operation (text "x1,x2,...", in millimetres; without one every 12 mm).
struct PrintOperation {
    enum class Kind {
        Font,    // from here on
        Line,    // one printed line and the step to the next; an empty text is a blank line
        Tabs,    // the tab stops from here on
        Picture, // a banner by its name in assets/banners/, centred, natural size
        Cut,     // the knife
        NewPage,
    };
    Kind kind = Kind::Line;
    std::string text;
    PrintFont font;
};

struct PrintJob {
    std::string title;
    bool landscape = false;
    std::vector<PrintOperation> operations;
};

/// The text in a banner picture ("Picture2" is "MERCHANT COPY"), for plain text and for screen
/// readers; the name itself for an unknown picture.
std::string bannerText(std::string_view pictureName);

/// A job as plain text: the lines as printed (tab stops at 2 mm a column, other control characters
/// as blanks), a picture as its text in brackets, a cut as "- - - cut - - -", a new page as a form
/// feed. Each line ends with CR LF.
std::string plainText(const PrintJob &job);

/// For tests and diagnosis: one line for each operation, including fonts.
std::string describe(const PrintJob &job);

} // namespace platform
