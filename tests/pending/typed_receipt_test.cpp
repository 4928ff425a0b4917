// Which entry a typed receipt number opens: a wrong one is a tip on another guest's card.
#include "pending/typed_receipt.h"

#include <gtest/gtest.h>

namespace {

using namespace pending;

/// Types at a list of these receipts: \n is Enter, \b Backspace, \x1b Escape, \t another order of
/// the rows. Gives what opened (> and the index of the row) or was chosen, and the last hint.
std::string typedAt(const std::vector<const char *> &receipts, const std::string &keys)
{
    reports::ListRows rows;
    for (const char *receipt : receipts)
        rows.push_back({std::string(receipt) + "|12|40.00"});
    TypedReceipt receipt;
    std::string told;
    long current = 1; // an entry chosen before
    for (const char key : keys) {
        if (key == '\n') {
            const TypedReceipt::Entered entered = receipt.enter(rows, current);
            told += (entered.opens ? ">" : "") + std::to_string(entered.row) + " ";
            if (entered.row >= 0)
                current = entered.row;
            if (entered.opens)
                receipt.clear();
        } else if (key == '\b') {
            receipt.backspace();
        } else if (key == '\x1b') {
            receipt.clear();
        } else if (key == '\t') {
            receipt.rowsMoved();
        } else {
            receipt.type(std::string(1, key));
        }
    }
    const std::string hint = receipt.hint();
    return told + hint.substr(0, hint.find('.'));
}

TEST(TypedReceipt, OpensTheEntryOfThatNumberAndNoOther)
{
    const std::vector<const char *> evening = {"1043", "420", "007", "104", "042",
                                               "5000", "104", "000", "12.5"};
    const std::pair<const char *, const char *> cases[] = {
        {"42\n", ">4 "},
        {"7\n", ">2 "},
        {"000\n", ">7 "}, // of a receipt with letters
        {"99\n", "-1 No entry has receipt 99"},
        {"99\n42\n", "-1 >4 "},
        {"99\n\b", "-1 Receipt 9"},
        {"104\n", "3 2 entries have receipt 104"},
        {"104\n\n", "3 >3 "},
        {"104\n\t\n", "3 3 2 entries have receipt 104"}, // another one may stand there
        {"4\n\n", "1 >1 "},
        {"10\n", "0 3 entries begin with 10"},
        {"04\n", "4 1 entry begins with 04"},
        {"50\n\x1b\n", "5 >5 "},
        {"\n", ">1 "},
        {"4 2\n", "-1 No entry has receipt 4 2"},
        {"12A\n", "-1 No entry has receipt 12A"},
        {"43\b2\n", ">4 "},
        {"4\b\b\b", ""},
        {"%B4111111111111111^OAK?\n", "-1 This is too long for a receipt number"},
        {"%B4111111111111111^OAK?\b42\n", ">4 "},
    };
    for (const auto &[keys, told] : cases)
        EXPECT_EQ(typedAt(evening, keys), told) << keys;
    EXPECT_EQ(typedAt({}, "7\n"), "-1 No entry has receipt 7");
}

} // namespace
