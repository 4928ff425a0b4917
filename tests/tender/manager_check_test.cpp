// Who may approve: whatever a reader types for a manager's card, and nobody whose row has ended or
// was never given to anyone.
#include "records/lookups.h"
#include "support/test_station.h"
#include "tender/manager_check.h"

#include <gtest/gtest.h>

namespace {

TEST(ManagerCheck, ApprovesByTheRowsOfTodayAlone)
{
    support::TestStation station({2025, 1, 15, 23, 59, 0, 0});
    records::App app(station.services);
    records::Get_AsstMgr(app); // rows 1 to 10 as they are without a file
    auto &rows = app.values.ManagerTable;
    rows[0] = {"4111111111111111", "Rosalind Oak ", "01/15/2025"};
    rows[2] = {" 7788 ", "Bo", "12/31/2025 11:59:00 PM"};
    rows[3] = {"1111", "Gone", "01/14/2025"};
    rows[4] = {"1111", "Cal", "1/5/26"};
    rows[5] = {"2222", "  ", "01/01/2030"};
    rows[6] = {"3333", "No", "01/01/2030"};
    rows[8] = {"XXX_Expired_Not_Valid", "Trick", "01/01/2030"};
    rows[9] = {"4444", "Not Assigned", "01/01/2030"};
    rows[11] = {"5555", "Undated", ""};
    rows[12] = {"6666", "Misdated", "13/01/2030"};
    rows[13] = {"", "Nameless Card", "01/01/2030"};
    rows[15] = {"9999", "Last", "01/01/2030"};
    const auto answer = [&](const char *text) {
        return tender::approvingManager(app.values, text, station.time.now()).value_or("nobody");
    };
    for (const char *text : {"%B4111111111111111^OAK/ROSALIND^20011010000?", " 4111111111111111 ",
                             " %B4111111111111111^OAK/R^2809101?;4111111111111111=2809101? ",
                             ";4111111111111111=2001101?", "%E?;4111111111111111=2001101?"})
        EXPECT_EQ(answer(text), "Rosalind Oak") << text;
    EXPECT_EQ(answer(":9999?"), "Last");
    EXPECT_EQ(answer("7788") + answer("1111") + answer("2222") + answer("3333"), "BoCalYESYES");
    for (const char *wrong :
         {"411111111111111", "%B41111111111111110^OAK/R^2809?", "%B^OAK/R^2809?", ";=2809?", "?",
          "", "xxxxxxxxxx", "XXX_Expired_Not_Valid", "4444", "5555", "6666"})
        EXPECT_EQ(answer(wrong), "nobody") << wrong;
    station.time.setNow({2025, 1, 16, 0, 0, 0, 0}); // the day after the end of row 0
    EXPECT_EQ(answer("4111111111111111"), "nobody");
}

} // namespace
