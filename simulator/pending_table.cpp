#include "simulator/pending_table.h"

#include "platform/slot_file.h"

#include <algorithm>

namespace simulator {

namespace {

using records::CardField;
using records::CardRecord;

struct Column {
    const char *title;
    std::size_t width;
    bool money;
    CardField field;
};

// clang-format off
const Column kColumns[] = {
    {"Date", 9, false, records::CCDate},        {"Time", 9, false, records::CCTime},
    {"Table", 6, false, records::CCTable},      {"Receipt", 8, false, records::CCReceipt},
    {"Server", 7, false, records::CCServer},    {"Tab", 9, true, records::CCTabAmt},
    {"Approved", 9, true, records::CCApprovedAmt}, {"Owed", 8, true, records::CCaditionalFUNDS},
    {"Tip", 7, true, records::CCTip},           {"Card", 20, false, records::HiddenNumb},
    {"Type", 11, false, records::CCtype},       {"Result", 9, false, records::CCstatus},
    {"Status", 20, false, records::CCAdjStatus}, {"Station", 11, false, records::CCStation},
};
// clang-format on

std::string cell(std::string text, std::size_t width, bool right)
{
    text.resize(std::min(text.size(), width - 1));
    const std::string blanks(width - 1 - text.size(), ' ');
    return (right ? blanks + text : text + blanks) + ' ';
}

std::string valueOf(const Column &column, const CardRecord &record)
{
    if (!column.money)
        return record.text(column.field);
    const records::Money value = record.value(column.field);
    return value.isZero() ? std::string() : records::Format_Money(value);
}

std::string trimmedRow(std::string row)
{
    row.resize(row.find_last_not_of(' ') + 1);
    return row + "\n";
}

} // namespace

std::vector<CardRecord> readCardFile(platform::Files &files, const std::string &path)
{
    std::vector<CardRecord> result;
    if (!files.exists(path))
        return result;
    platform::SlotFile file(files, path, records::kCardSlotLength);
    if (!done(file.open(platform::SlotUse::Read)) || !done(file.lock()))
        return result;
    const long count = file.count();
    result.resize(static_cast<std::size_t>(count));
    for (long slot = 1; slot <= count; ++slot)
        file.read(slot, result[static_cast<std::size_t>(slot - 1)].data());
    file.unlock();
    file.close();
    return result;
}

std::string readableRecords(const std::vector<CardRecord> &all)
{
    std::string row = cell("Slot", 6, true);
    for (const Column &column : kColumns)
        row += cell(column.title, column.width, column.money);
    std::string text = trimmedRow(row);
    for (std::size_t i = 0; i < all.size(); ++i) {
        row = cell(std::to_string(i + 1), 6, true);
        for (const Column &column : kColumns)
            row += cell(valueOf(column, all[i]), column.width, column.money);
        text += trimmedRow(row);
    }
    return text;
}

std::vector<std::string> monthFiles(platform::Files &files, const std::string &remotedir)
{
    const std::string folder = remotedir + "data\\";
    std::vector<std::string> paths;
    for (const std::string &name : files.list(folder))
        if (records::startsWith(records::toLower(name), "ccfinal"))
            paths.push_back(folder + name);
    return paths;
}

} // namespace simulator
