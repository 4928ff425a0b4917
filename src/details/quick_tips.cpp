#include "details/quick_tips.h"

#include "records/text.h"

namespace details {

using records::Money;

std::array<std::string, 15> quickTips(Money tab)
{
    constexpr std::array<int, 5> kPercents = {10, 13, 15, 18, 20};
    const Money base = tab.rounded(2);
    const Money one = Money::fromWhole(1);
    const Money toNextDollar = one - (base - Money::fromWhole(base.whole()));
    std::array<std::string, 15> captions;
    for (std::size_t r = 0; r < kPercents.size(); ++r) {
        const Money tip = (base * Money::fromCents(kPercents[r])).rounded(2);
        const Money dollars = Money::fromWhole(tip.whole());
        captions[r] = records::Format(tip, "######.##");
        captions[r + 5] = records::plainText(dollars + one);
        captions[r + 10] = records::plainText(dollars + toNextDollar);
    }
    return captions;
}

} // namespace details
