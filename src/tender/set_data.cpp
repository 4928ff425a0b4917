#include "tender/set_data.h"

#include "records/card_helpers.h"
#include "records/flag_files.h"
#include "records/status_words.h"

namespace tender {

using namespace records;

void Set_Data(App &app, const TenderFields &fields)
{
    // Kept: a tender that is past its own look at the marker takes the manager's marker away.
    app.files.removeIfThere(batchMarker(app.values));

    CardRecord &CCdata = app.values.CCdata;
    const platform::DateTime now = app.clock.now();
    const std::string number = Trim(fields.cardNumber);
    CCdata.set(HiddenNumb, maskedNumber(number));
    CCdata.set(CCNumb, number);
    encodeCardNumber(CCdata);
    CCdata.set(CCExpDate, turnedExpiry(Trim(fields.expiry)));
    CCdata.set(CCName, Trim(fields.firstName) + " " + Trim(fields.lastName));
    CCdata.set(CCSaleAmt, fields.amount);
    CCdata.set(CCServer, Trim(fields.server));
    CCdata.set(CCTable, Trim(fields.table));
    CCdata.set(CCTabAmt, fields.amount);
    for (const CardField &field : {CCApprovedAmt, CResponse, CApprovalCode, CCstatus})
        CCdata.set(field, " ");
    CCdata.set(CCTip, "0");
    CCdata.set(CCReceipt, Trim(fields.receipt));
    CCdata.set(CCDate, Format(now, "MM/DD/YY"));
    CCdata.set(CCTime, Format(now, "HH:MM ampm "));
    CCdata.set(CCStation, app.values.StationName);
    CCdata.set(CCAdjStatus, kNotAdjusted);
    CCdata.set(CCGiftFlag, " ");
    CCdata.set(CCReserved2, " ");
}

} // namespace tender
