// The printed list on real paper: fifty rows, their headings and the page's mark are one page.
#include "pending/pending_story.h"
#include "platform/qt/print_painter.h"

namespace {

using namespace pending;

TEST(PrintedListOnPaper, NeedsNoMorePagesThanItHasMarks)
{
    Story story;
    std::string pending;
    for (int i = 0; i < 101; ++i)
        pending += slotOf("CCTip=12.50");
    story.station.put(Story::kPending, pending);
    story.list.SSCommand3_Click();
    story.list.SSCommand4_Click();
    const platform::PrintJob job = story.station.printers.collected.back().job;
    platform::Banners banners;
    for (const auto &[width, height] : {std::pair(216, 279), {210, 297}}) {
        const QByteArray pdf = platform::paintPdf(job, banners, width, height);
        EXPECT_EQ(pdf.count("/Type /Page\n"), 3) << width;
    }
}

} // namespace
