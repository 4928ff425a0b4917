#include "simulator/records_generator.h"

#include "records/status_words.h"
#include "records/text.h"
#include "simulator/sandbox.h"

#include <algorithm>

namespace simulator {

namespace {

using namespace records;

// Pseudo-random numbers; each record has its own sequence.
class Dice {
public:
    Dice(std::uint32_t seed, std::size_t n)
        : state(seed * 0x9e3779b97f4a7c15ULL + (n + 1) * 0xbf58476d1ce4e5b9ULL)
    {
    }
    /// 0 to sides - 1.
    std::uint64_t roll(std::uint64_t sides)
    {
        state += 0x9e3779b97f4a7c15ULL;
        std::uint64_t mixed = (state ^ (state >> 30U)) * 0xbf58476d1ce4e5b9ULL;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebULL;
        return (mixed ^ (mixed >> 31U)) % sides;
    }
    bool oneIn(std::uint64_t sides) { return roll(sides) == 0; }

private:
    std::uint64_t state;
};

constexpr std::array<const char *, 5> kStations = {"FRONT-BAR", "BAR-2", "TERRACE", "DINING-1",
                                                   "DINING-2"};
constexpr std::array<const char *, 6> kCardTypes = {"VISA", "VISA",     "VISA",
                                                    "AMEX", "DISCOVER", "MASTERCARD"};
constexpr std::array<const char *, 6> kNames = {"WILLOW SAMPLE", "CEDAR SAMPLE",  "HAZEL SAMPLE",
                                                "LINDEN SAMPLE", "MAPLE EXAMPLE", "BIRCH EXAMPLE"};

std::string digits(std::uint64_t number, std::size_t width)
{
    std::string text = std::to_string(number);
    return std::string(width > text.size() ? width - text.size() : 0, '0') + text;
}

/// "86.90", the form of the point of sale and the bank.
std::string amount(Money value)
{
    const auto cents = static_cast<std::uint64_t>(value.rounded(2).tenThousandths() / 100);
    return std::to_string(cents / 100) + "." + digits(cents % 100, 2);
}

platform::DateTime timeOf(const EveningOptions &options, std::size_t n, std::size_t total)
{
    const std::size_t passed = static_cast<std::size_t>(options.minutes) * n / total;
    const int minute =
        options.opening.hour * 60 + options.opening.minute + static_cast<int>(passed);
    platform::DateTime when = options.opening;
    when.hour = std::min(minute / 60, 23);
    when.minute = minute % 60;
    return when;
}

void setCard(CardRecord &record, Dice &dice)
{
    const std::string lastFour = digits(dice.roll(10000), 4);
    record.set(CCNumb, "XAW" + digits(dice.roll(10000000000ULL), 10));
    encodeCardNumber(record);
    record.set(HiddenNumb, "XXXXXXXXXXXX" + lastFour);
    record.set(CCExpDate, digits(dice.roll(12) + 1, 2) + digits(26 + dice.roll(6), 2));
    record.set(CCName, kNames[dice.roll(kNames.size())]);
    record.set(CCtype, kCardTypes[dice.roll(kCardTypes.size())]);
    record.set(CCXcTranID, digits(dice.roll(100000000), 8));
    record.set(CCSwiped, dice.oneIn(20) ? "False" : "True");
    record.set(CCVerify, "000");
}

void setDeclined(CardRecord &record)
{
    record.set(CResponse, "DECLINED");
    record.set(CCstatus, kDeclined);
    record.set(CApprovalCode, "");
    record.set(CCApprovedAmt, "");
}

void setPartial(CardRecord &record, Money sale)
{
    const Money part = (sale / Money::fromWhole(2)).rounded(2);
    record.set(CCApprovedAmt, amount(part));
    record.set(CCaditionalFUNDS, amount(sale - part));
    record.set(CCAdjStatus, kAdjusted);
    record.set(CCAdjAmt, amount(part));
    record.set(CCGiftFlag, "GS   ");
}

void setTip(CardRecord &record, Money sale, Dice &dice)
{
    const Money percent = Money::fromWhole(static_cast<std::int64_t>(10 + dice.roll(16)));
    const Money tip = (sale * percent / Money::fromWhole(100)).rounded(2);
    record.set(CCTip, amount(tip));
    record.set(CCAdjAmt, amount(sale + tip));
    record.set(CCAdjStatus, kAdjusted);
}

void setOutcome(CardRecord &record, Money sale, Dice &dice, const EveningOptions &options)
{
    record.set(CResponse, "SUCCESS");
    record.set(CCstatus, kApproved);
    record.set(CApprovalCode, digits(dice.roll(1000000), 6));
    record.set(CCApprovedAmt, amount(sale));
    const std::uint64_t fate = dice.roll(100);
    if (fate < 4 && options.declines)
        setDeclined(record);
    else if (fate >= 4 && fate < 6)
        setPartial(record, sale);
    else if (fate >= 6 && fate < 40)
        setTip(record, sale, dice);
    if (fate == 99) {
        record.set(CCtype, "GIFT");
        record.set(GCbalance, amount(Money::fromCents(static_cast<std::int64_t>(dice.roll(9000)))));
    }
    if (options.allAdjusted && record.text(CCAdjStatus) != kAdjusted) {
        record.set(CCAdjStatus, kAdjusted);
        record.set(CCAdjAmt, amount(sale));
    }
}

} // namespace

CardRecord Evening::record(std::size_t n) const
{
    Dice dice(options.seed, n);
    CardRecord record;
    Clear_CCdata(record);
    record.set(GCbalance, "0");
    const platform::DateTime when = timeOf(options, n, total);
    const Money sale = Money::fromCents(static_cast<std::int64_t>(800 + dice.roll(24000)));
    const std::uint64_t server = dice.roll(kSandboxEmployees.size());
    setCard(record, dice);
    record.set(CCSaleAmt, amount(sale));
    record.set(CCTabAmt, amount(sale));
    record.set(CCServer, kSandboxEmployees[server].number);
    record.set(CCTable, std::to_string(1 + dice.roll(60)));
    record.set(CCReceipt, std::to_string(1000 + n));
    record.set(CCTip, "0");
    record.set(CCDate, Format(when, "MM/DD/YY"));
    record.set(CCTime, Format(when, "HH:MM ampm "));
    record.set(CCStation, kStations[server % kStations.size()]);
    record.set(CCAdjStatus, kNotAdjusted);
    setOutcome(record, sale, dice, options);
    return record;
}

platform::Outcome writeCardFile(platform::Files &files, const std::string &path,
                                const Evening &evening)
{
    constexpr std::size_t kRecordsAtOnce = 1000;
    platform::Outcome outcome = files.write(path, "");
    std::string slots;
    for (std::size_t n = 0; n < evening.size() && done(outcome); ++n) {
        slots += evening.record(n).view();
        slots.append(kCardSlotLength - CardRecord::kSize, '\0');
        if ((n + 1) % kRecordsAtOnce == 0 || n + 1 == evening.size()) {
            outcome = files.append(path, slots);
            slots.clear();
        }
    }
    return outcome;
}

} // namespace simulator
