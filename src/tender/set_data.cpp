#include "records/card_helpers.h"
#include "tender/tender.h"

namespace tender {

using namespace records;

/// Fills the record from the screen.
void Tender::Set_Data()
{
    // Kept: a tender that is past its own look at the marker takes the manager's marker away.
    app.files.removeIfThere(app.values.Remotedir + "ServerISBatching.dat");

    CardRecord &CCdata = app.values.CCdata;
    const platform::DateTime now = app.clock.now();
    const std::string number = Trim(fields.Label3[0]);
    CCdata.set(HiddenNumb, maskedNumber(number));
    CCdata.set(CCNumb, number);
    encodeCardNumber(CCdata);
    CCdata.set(CCExpDate, turnedExpiry(Trim(fields.Label3[1])));
    CCdata.set(CCName, Trim(fields.Label3[2]) + " " + Trim(fields.Label3[3]));
    CCdata.set(CCSaleAmt, fields.Text4);
    CCdata.set(CCServer, Trim(fields.Label3[4]));
    CCdata.set(CCTable, Trim(fields.Label3[5]));
    CCdata.set(CCTabAmt, fields.Text4);
    for (const CardField &field : {CCApprovedAmt, CResponse, CApprovalCode, CCstatus})
        CCdata.set(field, " ");
    CCdata.set(CCTip, "0");
    CCdata.set(CCReceipt, Trim(fields.Label3[6]));
    CCdata.set(CCDate, Format(now, "MM/DD/YY"));
    CCdata.set(CCTime, Format(now, "HH:MM ampm "));
    CCdata.set(CCStation, app.values.StationName);
    CCdata.set(CCAdjStatus, "Not Adjusted");
    CCdata.set(CCGiftFlag, " ");
    CCdata.set(CCReserved2, " ");
}

} // namespace tender
