// The manager's list as rules: rows, order, colours, and what they decide.
#include "pending/pending_list.h"
#include "pending/pending_story.h"
#include "support/golden_table.h"

namespace {

using namespace pending;
using records::CardRecord;

constexpr platform::DateTime kToday{2025, 1, 15, 22, 0, 0, 0};

TEST(Rows, AreMadeOfEachRecordAsTheGoldenTableSays)
{
    support::expectTable("pending/rows.txt", [](const std::string &fields) {
        ListBuilder list(kToday);
        list.add(2, recordOf(fields));
        if (list.rows.empty())
            return std::vector<std::string>{"not listed"};
        return std::vector{list.rows[0].text, list.types[0]};
    });
}

TEST(Dates, OfTheListAreTodayOrThoseOfItsRecords)
{
    support::expectTable("pending/dates.txt", [](const std::string &dates) {
        ListBuilder list(kToday);
        std::istringstream each(dates);
        long slot = 0;
        for (std::string date; std::getline(each, date, ',');)
            list.add(++slot, recordOf(date == "hidden" ? "CCstatus=" : "CCDate=" + date));
        return std::vector{list.oldest, list.newest};
    });
}

/// Rows of the records, in the order of the entries.
ListRows rowsOf(const std::string &records)
{
    ListBuilder list(kToday);
    std::istringstream each(records);
    for (std::string record; std::getline(each, record, ',');)
        list.add(list.listed + 1, recordOf(record));
    return list.rows;
}

TEST(Sorting, IsByTheTextOfAColumnAndKeepsTheOrderOfWhatIsAlike)
{
    support::expectTable("pending/sorted.txt", [](const std::string &input) {
        const std::string option = input.substr(0, input.find(' '));
        ListRows rows = rowsOf(input.substr(input.find(' ') + 1));
        ListState state;
        Color_Not_Adjusted(rows, state);
        Sort_List(rows, sortColumnOf(std::stoi(option)));
        std::string order;
        for (const ListRow &row : rows)
            order += std::to_string(row.slot) + (row.colour == RowColour::White ? "w " : " ");
        return std::vector{order};
    });
}

TEST(Colours, SayWhatEachRowWaitsForAndWhetherTheListCanBeProcessed)
{
    support::expectTable("pending/colours.txt", [](const std::string &input) {
        constexpr std::array kLetters = {"-", "W", "G", "R"};
        ListRows rows = rowsOf(input);
        ListState state;
        state.sawDeleted = input.find("Del") != std::string::npos;
        state.processEnabled = !state.sawDeleted; // as the loader leaves it
        state.noticeVisible = true;
        state.notice = "what stood there before";
        Color_Not_Adjusted(rows, state);
        Color_Declines(rows, state);
        std::string colours;
        for (const ListRow &row : rows)
            colours += kLetters[static_cast<std::size_t>(row.colour)];
        return std::vector{colours, std::to_string(state.Label7),
                           std::string(state.processEnabled ? "Process" : "no"),
                           state.noticeVisible ? state.notice : std::string("hidden")};
    });
}

} // namespace
