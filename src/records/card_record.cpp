#include "records/card_record.h"

#include "records/card_helpers.h"

namespace records {

void Clear_CCdata(CardRecord &CCdata)
{
    constexpr std::array kCleared = {CCNumb,    CCExpDate,  CCName,        CCSaleAmt, CCServer,
                                     CCTable,   CCTabAmt,   CCApprovedAmt, CResponse, CApprovalCode,
                                     CCstatus,  CCTip,      CCReceipt,     CCDate,    CCTime,
                                     CCStation, CCGiftFlag, CCReserved2};
    for (const CardField &field : kCleared)
        CCdata.set(field, " ");
    CCdata.set(CCaditionalFUNDS, "0");
}

void encodeCardNumber(CardRecord &CCdata)
{
    CCdata.set(CCEncoded, "0");
    CCdata.set(CCNumb, StrEncode(CCdata.text(CCNumb)));
    CCdata.set(CCEncoded, "1");
}

void decodeCardNumber(CardRecord &CCdata)
{
    if (CCdata.value(CCEncoded).isZero())
        return;
    CCdata.set(CCNumb, StrDecode(CCdata.text(CCNumb)));
    CCdata.set(CCEncoded, "0");
}

void takeApprovedAmount(CardRecord &CCdata)
{
    const Money approved = CCdata.value(CCApprovedAmt);
    if (approved > Money())
        CCdata.set(CCTabAmt, plainText(approved));
}

} // namespace records
