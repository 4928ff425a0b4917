#include "support/qt/screens.h"

#include "details/PrinterChoice.h"
#include "details/XchargeEntryDetals.h"
#include "manager/Encript.h"
#include "manager/TndrMgr.h"
#include "pending/XchargePend.h"
#include "support/qt/qt_station.h"
#include "tender/ManagerApproval.h"
#include "tender/XCreader1.h"
#include "tender/Xcharge1.h"
#include "tender/Xcharge2.h"
#include "tender/xcharge3.h"

namespace support {

namespace {

using Made = std::unique_ptr<platform::Screen>;

template <class Screen, class... Arguments> Made filling(Arguments &&...arguments)
{
    auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
    screen->openWhole();
    return screen;
}

Made openedEntry(Evening &e)
{
    auto entry =
        std::make_unique<details::XchargeEntryDetals>(e.app, e.printer, details::EntryCallbacks());
    entry->open(Evening::kPending, 2, "PEND");
    return entry;
}

Made filledList(Evening &e)
{
    auto list = std::make_unique<pending::XchargePend>(e.app, e.printer, pending::EntryWindow());
    list->openWhole();
    list->fillList();
    return list;
}

} // namespace

Evening::Evening()
{
    station.time.everyTurn = [] { QCoreApplication::processEvents(); };
    paymentKeepsSilent();
    app.values.Maindir = "C:\\Lumbrio\\";
    app.values.Remotedir = "F:\\Lumbrio\\";
    const std::string sale = slotOf("CCName=ROSALIND OAK;CCTip=12.50;CCTabAmt=148.50");
    station.put(kPending, sale + sale + slotOf("CCstatus=Declined"));
}

const std::vector<ScreenRow> &allScreens()
{
    static const std::vector<ScreenRow> table = {
        {"Encript", [](Evening &e) -> Made { return std::make_unique<manager::Encript>(e.app); }},
        {"ManagerApproval",
         [](Evening &e) -> Made {
             return std::make_unique<tender::ManagerApproval>(
                 e.app, tender::ManagerQuestion{"Approve this card OFFLINE", "$148.50"});
         }},
        {"PrinterChoice",
         [](Evening &e) -> Made {
             return std::make_unique<details::PrinterChoice>(
                 e.app, std::vector<std::string>{"Bar", "Kitchen"}, "Kitchen");
         }},
        {"TndrMgr",
         [](Evening &e) -> Made {
             return filling<manager::TndrMgr>(e.app, manager::ManagerRoutes());
         }},
        {"XCreader1",
         [](Evening &e) -> Made { return std::make_unique<tender::XCreader1>(e.app); }},
        {"Xcharge1",
         [](Evening &e) -> Made { return filling<tender::Xcharge1>(e.app, e.printer); }},
        {"Xcharge2", [](Evening &e) -> Made { return std::make_unique<tender::Xcharge2>(e.app); }},
        {"XchargeEntryDetals", openedEntry},
        {"XchargePend", filledList},
        {"xcharge3",
         [](Evening &e) -> Made { return std::make_unique<tender::xcharge3>(e.app, [] {}); }},
    };
    return table;
}

} // namespace support
