#include "support/tender_story.h"

#include "platform/print_job.h"
#include "records/employee_record.h"

namespace support {

std::string approvedResult()
{
    return "RESULT=SUCCESS\r\nAPPROVALCODE=012345\r\nSWIPED=True\r\nNAME=ROSALIND/TEST\r\n"
           "XCACCOUNTID=7401234567890\r\nXCTRANSACTIONID=00002154\r\nACCOUNT=XXXXXXXXXXXX1234\r\n"
           "ACCOUNTTYPE=VISA\r\nEXPIRATION=0928\r\nAPPROVEDAMOUNT=48.50\r\n";
}

TenderStory::TenderStory()
{
    station.folder("F:\\Lumbrio\\data");
    station.put(TestStation::kXcharge, "program");
    station.put(kModeFlag, "");
    station.put("C:\\Lumbrio\\CCard.dat",
                "\"Xcharge.exe\"\r\n\"c:\\Program Files\\X-Charge\\\"\r\n\"-1\"\r\n\"-1\"\r\n"
                "\"-1\"\r\n\"-1\"\r\n\"-1\"\r\n\"-1\"\r\n\"0\"\r\n\"0\"\r\n");
    for (const auto &[field, text] : {std::pair(1, "The Harbour Table"),
                                      {2, "1 Quay Street"},
                                      {3, "Port Town"},
                                      {6, "C:\\Lumbrio\\"},
                                      {8, "Receipt"},
                                      {22, "DejaVu Sans"},
                                      {23, "9"},
                                      {30, "-1"},
                                      {40, "F:\\Lumbrio\\"},
                                      {49, "F:\\Lumbrio\\"},
                                      {95, "18"}})
        configure(field, text);
    records::EmployeeRecord employee;
    employee.set(records::kEmployeeNumber, "7");
    employee.set(records::kEmployeeName, "Rosalind Test");
    station.put("F:\\Lumbrio\\Data\\Zemployee.dat", std::string(employee.view()));
    request("\"12\",\"1043\",\"7\",\"48.50\"\r\n");
    paymentAnswers(approvedResult());
}

TenderStory::TenderStory(TenderStory &earlier, int lives) : station(&earlier.station)
{
    if (lives == 0)
        earlier.app.roleLock.release();
    paymentAnswers(approvedResult());
}

void TenderStory::configure(int field, const std::string &text)
{
    config.set(records::configField(field), text);
    station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
}

void TenderStory::paymentAnswers(const std::string &result, std::uint64_t afterMilliseconds)
{
    station.system.onStart = [this, result, afterMilliseconds](const FakeSystem::Started &) {
        station.time.after(afterMilliseconds, [this, result] { station.put(kResult, result); });
    };
}

void TenderStory::takeCardsHere()
{
    station.erase(kModeFlag);
    station.folder(kLocalTran);
    serve();
}

void TenderStory::serve()
{
    for (const std::string &name : left()) {
        if (!name.ends_with(".req"))
            continue;
        const std::string request = kLocalTran + name;
        EXPECT_TRUE(station.get(request).ends_with("\r\n")) << "seen before it was whole";
        if (!reply)
            continue;
        requests.push_back(station.get(request));
        station.erase(request);
        station.time.after(replyAfter, [this, request] {
            station.put(request.substr(0, request.size() - 3) + "ans", *reply);
        });
    }
    station.time.after(100, [this] { serve(); });
}

void TenderStory::swipe(const std::string &first, const std::string &second, std::uint64_t at)
{
    station.time.at(at, [this, first, second] {
        tender.takeFirstTrack(first);
        if (!second.empty())
            tender.takeSecondTrack(second);
    });
}

void TenderStory::run(std::uint64_t limit)
{
    tender.Form_Load();
    const std::uint64_t until = station.time.milliseconds() + limit;
    running = true;
    station.time.after(limit + station.time.maxStep, [this] {
        stillWaiting = running; // a wait inside the loop below would never give control back
        if (running)
            station.run.end();
    });
    while (!station.run.ending() && station.time.milliseconds() < until)
        station.run.yield();
    running = false;
}

std::string TenderStory::slips() const
{
    std::string text;
    for (const FakePrinters::Collected &printed : station.printers.collected)
        text += "[[" + printed.printer + "]]\r\n" + platform::plainText(printed.job);
    return text;
}

} // namespace support
