// CardRecord: one card transaction, the 490 bytes at the start of each 500-byte slot of
// "CCPending.dat", the month files "data\CCFinalMMYY.dat" and the deleted files.
#pragma once

#include "records/fixed_record.h"

namespace records {

struct CardField : Field {};

// clang-format off
inline constexpr CardField CCNumb          {{"CCNumb", 0, 30}};
inline constexpr CardField CCExpDate       {{"CCExpDate", 30, 10}};
inline constexpr CardField CCName          {{"CCName", 40, 30}};
inline constexpr CardField CCDescription   {{"CCDescription", 70, 80}};
inline constexpr CardField CCXcTranID      {{"CCXcTranID", 150, 20}};
inline constexpr CardField CCSaleAmt       {{"CCSaleAmt", 170, 50}};
inline constexpr CardField CCServer        {{"CCServer", 220, 10}};
inline constexpr CardField CCTable         {{"CCTable", 230, 10}};
inline constexpr CardField CCTabAmt        {{"CCTabAmt", 240, 10}};
inline constexpr CardField CCApprovedAmt   {{"CCApprovedAmt", 250, 10}};
inline constexpr CardField CResponse       {{"CResponse", 260, 20}};
inline constexpr CardField CApprovalCode   {{"CApprovalCode", 280, 10}};
inline constexpr CardField CCstatus        {{"CCstatus", 290, 10}};
inline constexpr CardField CCTip           {{"CCTip", 300, 10}};
inline constexpr CardField CCReceipt       {{"CCReceipt", 310, 20}};
inline constexpr CardField CCDate          {{"CCDate", 330, 10}};
inline constexpr CardField CCTime          {{"CCTime", 340, 10}};
inline constexpr CardField CCVerify        {{"CCVerify", 350, 5}};
inline constexpr CardField CCSwiped        {{"CCSwiped", 355, 5}};
inline constexpr CardField CCStation       {{"CCStation", 360, 10}};
inline constexpr CardField CCAdjStatus     {{"CCAdjStatus", 370, 25}};
inline constexpr CardField CCAdjAmt        {{"CCAdjAmt", 395, 10}};
inline constexpr CardField CCGiftFlag      {{"CCGiftFlag", 405, 5}};
inline constexpr CardField CCReserved1     {{"CCReserved1", 410, 2}};
inline constexpr CardField CCEncoded       {{"CCEncoded", 412, 2}};
inline constexpr CardField CCTroutID       {{"CCTroutID", 414, 10}};
inline constexpr CardField HiddenNumb      {{"HiddenNumb", 424, 30}};
inline constexpr CardField CCtype          {{"CCtype", 454, 10}};
inline constexpr CardField CCaditionalFUNDS{{"CCaditionalFUNDS", 464, 10}};
inline constexpr CardField GCbalance       {{"GCbalance", 474, 10}};
inline constexpr CardField CCReserved2     {{"CCReserved2", 484, 6}};

/// All 31, in the order of the bytes.
inline constexpr std::array<CardField, 31> kCardFields = {
    CCNumb, CCExpDate, CCName, CCDescription, CCXcTranID, CCSaleAmt, CCServer, CCTable,
    CCTabAmt, CCApprovedAmt, CResponse, CApprovalCode, CCstatus, CCTip, CCReceipt, CCDate,
    CCTime, CCVerify, CCSwiped, CCStation, CCAdjStatus, CCAdjAmt, CCGiftFlag, CCReserved1,
    CCEncoded, CCTroutID, HiddenNumb, CCtype, CCaditionalFUNDS, GCbalance, CCReserved2};
// clang-format on
static_assert(isContiguous(kCardFields, 490));

using CardRecord = FixedRecord<CardField, 490>;

/// Slots of the card files; the last 10 bytes of a slot belong to no field and are never read.
inline constexpr std::size_t kCardSlotLength = 500;

/// Blanks the fields of a tender and sets `CCaditionalFUNDS` to "0"; the 12 other fields stay.
void Clear_CCdata(CardRecord &CCdata);

/// `CCNumb` := StrEncode of its trimmed text, `CCEncoded` := "1".
void encodeCardNumber(CardRecord &CCdata);
/// The reverse, for a working copy: if the value of `CCEncoded` is not 0, `CCNumb` := StrDecode of
/// its trimmed text, `CCEncoded` := "0".
void decodeCardNumber(CardRecord &CCdata);

/// An approved amount above 0 replaces the tab, as the plain text of its value.
void takeApprovedAmount(CardRecord &CCdata);

} // namespace records
