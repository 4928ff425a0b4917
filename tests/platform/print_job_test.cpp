// A print job in words: the text file of a spool printer, and what golden slips compare.
#include "platform/print_job.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Kind = PrintOperation::Kind;

PrintJob jobOfEveryKind()
{
    PrintJob job{"Slip \"7\"", false, {}};
    job.operations = {
        {Kind::Picture, "Picture2", {}},
        {Kind::Font, {}, {"Arial", 10.5, true, false}},
        {Kind::Line, "Name: ANN", {}},
        {Kind::Line, "", {}},
        {Kind::Font, {}, {"", 8, false, true}},
        {Kind::Line, std::string("a\0b\r\nc", 6), {}},
        {Kind::Line, "x\ty\tz", {}},
        {Kind::Tabs, "60, 20,oops,40.9", {}},
        {Kind::Line, "x\ty\tz", {}},
        {Kind::Line, "0123456789ABC\tbehind its stop", {}},
        {Kind::Line, "\t\t\t\tbehind all", {}},
        {Kind::Cut, {}, {}},
        {Kind::NewPage, {}, {}},
        {Kind::Picture, "Picture9", {}},
    };
    return job;
}

TEST(PrintJobTest, plainTextShowsTheLinesAsPrinted)
{
    EXPECT_EQ(plainText(jobOfEveryKind()), "[MERCHANT COPY]\r\n"
                                           "Name: ANN\r\n"
                                           "\r\n"
                                           "a b  c\r\n"
                                           "x     y     z\r\n"
                                           "x         y         z\r\n"
                                           "0123456789ABC       behind its stop\r\n"
                                           "                               behind all\r\n"
                                           "- - - cut - - -\r\n"
                                           "\f\r\n"
                                           "[Picture9]\r\n");
}

TEST(PrintJobTest, bannersFitAnEightyMillimetreSlip)
{
    for (const char *name :
         {"Picture1", "Picture2", "Picture3", "Picture4", "Picture5", "Picture8"}) {
        EXPECT_NE(bannerText(name), name);
        EXPECT_LE(bannerText(name).size(), 42U) << name;
    }
}

} // namespace
} // namespace platform
