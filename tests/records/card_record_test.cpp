// The card record's bytes: what a fresh process leaves in every field.
#include "records/card_record.h"
#include "support/tender_story.h"
#include "support/test_files.h"

namespace {

using namespace records;
using support::TenderStory;

TEST(CardRecordBytes, AreTheGoldenOnesAfterATenderOfAFreshProcess)
{
    for (const auto &[golden, result] : {std::pair("approval.slot", support::approvedResult()),
                                         {"decline_without_a_word.slot", ""}}) {
        TenderStory story;
        story.paymentAnswers(result);
        story.run();
        EXPECT_EQ(story.station.get(TenderStory::kPending),
                  support::testFile(std::string("golden/records/") + golden))
            << golden;
    }
}

TEST(CardRecordBytes, AreClearedInNineteenFieldsAndNoOther)
{
    CardRecord CCdata;
    std::fill(CCdata.data().begin(), CCdata.data().end(), 'x');
    Clear_CCdata(CCdata);
    std::string kept;
    for (const CardField &field : kCardFields)
        kept += CCdata.raw(field)[0] == 'x' ? std::string(field.name) + " " : "";
    EXPECT_EQ(kept, "CCDescription CCXcTranID CCVerify CCSwiped CCAdjStatus CCAdjAmt CCReserved1 "
                    "CCEncoded CCTroutID HiddenNumb CCtype GCbalance ");
}

} // namespace
