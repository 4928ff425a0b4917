#include "tender/manager_check.h"

#include "records/text.h"
#include "tender/track.h"

#include <algorithm>

namespace tender {

using namespace records;

namespace {

/// The card numbers of rows without a manager, and of managers who have left.
constexpr std::string_view kNoCards[] = {"", "xxxxxxxxxx", "xxITxx_Not_Valid",
                                         "XXX_Expired_Not_Valid"};
constexpr std::string_view kNoManager = "Not Assigned";

/// The number on a second track that stands by itself or after an unreadable first one ("%E?").
std::string secondTrackNumber(std::string_view swipe)
{
    const std::size_t behindFirst = swipe.find("?;");
    const std::size_t sentinel = behindFirst == std::string_view::npos ? 0 : behindFirst + 1;
    if (sentinel >= swipe.size() || swipe[sentinel] != ';')
        return {};
    const std::string_view track = swipe.substr(sentinel + 1);
    return std::string(track.substr(0, track.find_first_of("=?")));
}

std::string codeOf(std::string_view text)
{
    const std::string swipe = Trim(text);
    if (const auto card = parseTrack(swipe))
        return Trim(card->number);
    const std::string number = Trim(secondTrackNumber(swipe));
    return number.empty() ? Trim(Remove_Swipe(swipe)) : number;
}

/// As dayNumber() of "MM/DD/YYYY" or "MM/DD/YY", a time after it ignored; 0 for a text that
/// is no date.
int endDay(std::string_view date)
{
    const std::size_t first = date.find('/');
    const std::size_t second = first == std::string_view::npos ? first : date.find('/', first + 1);
    if (second == std::string_view::npos)
        return 0;
    platform::DateTime day;
    day.month = wholeNumber(date.substr(0, first));
    day.day = wholeNumber(date.substr(first + 1, second - first - 1));
    day.year = wholeNumber(date.substr(second + 1));
    if (day.year >= 0 && day.year < 100)
        day.year += 2000;
    const bool real = day.month >= 1 && day.month <= 12 && day.day >= 1 && day.day <= 31 &&
                      day.year >= 1900 && day.year <= 9999;
    return real ? dayNumber(day) : 0;
}

bool isManager(const ManagerRow &row, const platform::DateTime &today)
{
    const std::string card = Trim(row.cardNumber);
    return std::find(std::begin(kNoCards), std::end(kNoCards), card) == std::end(kNoCards) &&
           Trim(row.name) != kNoManager && endDay(Trim(row.endDate)) >= dayNumber(today);
}

} // namespace

std::optional<std::string> approvingManager(const ProcessValues &values, std::string_view text,
                                            const platform::DateTime &today)
{
    const std::string code = codeOf(text);
    for (const ManagerRow &row : values.ManagerTable) {
        if (Trim(row.cardNumber) != code || !isManager(row, today))
            continue;
        const std::string name = Trim(row.name);
        return name.empty() || toLower(name) == "no" ? "YES" : name;
    }
    return std::nullopt;
}

ManagerCheck::ManagerCheck(App &theApp) : app(theApp)
{
    app.values.managerResult = "NO";
}

void ManagerCheck::read(std::string_view text)
{
    if (over || isBlank(text))
        return;
    if (const auto manager = approvingManager(app.values, text, app.clock.now())) {
        app.values.managerResult = *manager;
        over = true;
    } else if (--tries == 0) {
        refuse();
    }
}

void ManagerCheck::refuse()
{
    app.values.managerResult = "NO";
    over = true;
}

std::string ManagerCheck::triesLeft() const
{
    if (tries == kTries)
        return {};
    return "Not a manager's card or code. " + std::to_string(tries) +
           (tries == 1 ? " try left." : " tries left.");
}

} // namespace tender
