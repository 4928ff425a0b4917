#include "records/money.h"

#include <limits>

namespace records {

namespace {

__extension__ using Wide = __int128;

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

std::int64_t saturated(Wide value)
{
    if (value > kMost)
        return kMost;
    if (value < kLeast)
        return kLeast;
    return static_cast<std::int64_t>(value);
}

Wide dividedHalfAway(Wide value, Wide divisor)
{
    if (divisor < 0) {
        value = -value;
        divisor = -divisor;
    }
    const Wide rest = value % divisor;
    Wide quotient = value / divisor;
    if (rest * 2 >= divisor)
        ++quotient;
    if (-rest * 2 >= divisor)
        --quotient;
    return quotient;
}

} // namespace

Money Money::fromCents(std::int64_t cents)
{
    return Money(saturated(Wide(cents) * (kScale / 100)));
}

Money Money::fromWhole(std::int64_t whole)
{
    return Money(saturated(Wide(whole) * kScale));
}

Money Money::rounded(int decimals) const
{
    std::int64_t step = kScale;
    for (int i = 0; i < decimals && step > 1; ++i)
        step /= 10;
    if (step == 1)
        return *this;
    const std::int64_t rest = units % step;
    const int away = rest * 2 >= step ? 1 : (-rest * 2 >= step ? -1 : 0);
    return Money(saturated(Wide(units / step + away) * step));
}

Money operator+(Money a, Money b)
{
    return Money(saturated(Wide(a.units) + b.units));
}

Money operator-(Money a, Money b)
{
    return Money(saturated(Wide(a.units) - b.units));
}

Money operator*(Money a, Money b)
{
    return Money(saturated(dividedHalfAway(Wide(a.units) * b.units, Money::kScale)));
}

Money operator/(Money a, Money b)
{
    if (b.units == 0)
        return Money();
    return Money(saturated(dividedHalfAway(Wide(a.units) * Money::kScale, b.units)));
}

} // namespace records
