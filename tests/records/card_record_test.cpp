// The card record's bytes: what a fresh process leaves in every field, and what a reader that knows
// only docs/file-formats.md would find.
#include "records/card_record.h"
#include "support/tender_story.h"
#include "support/test_files.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using support::TenderStory;

TEST(CardRecordBytes, AreTheGoldenOnesAfterATenderOfAFreshProcess)
{
    struct Case {
        const char *golden;
        std::string result;
        bool audited;
    };
    const Case cases[] = {
        {"approval.slot", support::approvedResult(), false},
        {"approval_that_says_only_success.slot", "RESULT=SUCCESS\r\n", false},
        {"decline_without_a_word.slot", "", false},
        {"refused_audit.slot", "", true},
    };
    for (const Case &c : cases) {
        TenderStory story;
        story.paymentAnswers(c.result);
        if (c.audited) {
            story.station.put(TenderStory::kAudit, "99.99\r\n");
            story.station.dialogs.expect(
                "AUDIT FAILED",
                "The amount you are attempting to process does not match the amount the system has "
                "calculated.The system has a purchase amount of $48.50  if this amount is in fact "
                "Correct then press OK otherwise press CANCEL - This station may need a Re-Boot",
                platform::Buttons::OkCancel, platform::Answer::Cancel);
        }
        story.run();
        EXPECT_EQ(story.station.get(TenderStory::kPending),
                  support::testFile(std::string("golden/records/") + c.golden))
            << c.golden;
    }
}

TEST(CardRecordBytes, AreClearedInNineteenFieldsAndNoOther)
{
    CardRecord CCdata;
    std::fill(CCdata.data().begin(), CCdata.data().end(), 'x');
    Clear_CCdata(CCdata);
    const std::string kept = "CCDescription CCXcTranID CCVerify CCSwiped CCAdjStatus CCAdjAmt "
                             "CCReserved1 CCEncoded CCTroutID HiddenNumb CCtype GCbalance ";
    for (const CardField &field : kCardFields) {
        std::string expected(field.length, ' ');
        if (kept.find(std::string(field.name) + " ") != std::string::npos)
            expected.assign(field.length, 'x');
        else if (field.name == std::string("CCaditionalFUNDS"))
            expected[0] = '0';
        EXPECT_EQ(CCdata.raw(field), expected) << field.name;
    }
}

TEST(CardRecordBytes, ArePaddedCutAndReadLikeTheNumberTheyHold)
{
    CardRecord CCdata;
    EXPECT_TRUE(CCdata.isEmpty(CCTip));
    EXPECT_EQ(CCdata.text(CCTip), "");
    EXPECT_EQ(CCdata.value(CCTip), Money());
    CCdata.set(CCNumb, std::string(30, '1') + "2");
    EXPECT_EQ(CCdata.raw(CCNumb), std::string(30, '1'));
    EXPECT_EQ(CCdata.raw(CCExpDate), std::string(10, '\0')) << "the neighbour was written to";
    CCdata.set(CCTabAmt, " 48.50 x");
    EXPECT_EQ(CCdata.raw(CCTabAmt), " 48.50 x  ");
    EXPECT_EQ(CCdata.value(CCTabAmt), Money::fromCents(4850));
}

TEST(FileFormats, TellTheCardRecordFieldByField)
{
    std::string built;
    for (std::size_t i = 0; i < kCardFields.size(); ++i)
        built += std::to_string(i) + " " + std::to_string(kCardFields[i].offset) + " " +
                 std::to_string(kCardFields[i].length) + " " + kCardFields[i].name + "\n";
    EXPECT_EQ(support::documentedFields("Card files"), built);
}

} // namespace
