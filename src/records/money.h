// Money: amounts as fixed-point numbers with four decimals. No binary fraction ever holds money.
#pragma once

#include <compare>
#include <cstdint>

namespace records {

/// An amount in ten-thousandths. Sums, differences and products saturate at the ends of 64 bits
/// instead of wrapping; products and quotients are rounded half away from zero.
class Money {
public:
    constexpr Money() = default;
    static constexpr Money fromTenThousandths(std::int64_t units) { return Money(units); }
    static Money fromCents(std::int64_t cents);
    static Money fromWhole(std::int64_t whole);

    constexpr std::int64_t tenThousandths() const { return units; }
    constexpr bool isZero() const { return units == 0; }
    /// The whole part, cut towards zero.
    constexpr std::int64_t whole() const { return units / kScale; }
    /// Rounded to 0 to 4 decimals, half away from zero.
    Money rounded(int decimals) const;

    friend Money operator+(Money a, Money b);
    friend Money operator-(Money a, Money b);
    friend Money operator*(Money a, Money b);
    /// Dividing by zero gives zero.
    friend Money operator/(Money a, Money b);
    Money operator-() const { return Money() - *this; }
    friend constexpr auto operator<=>(Money, Money) = default;

    static constexpr std::int64_t kScale = 10000;

private:
    constexpr explicit Money(std::int64_t theUnits) : units(theUnits) {}
    std::int64_t units = 0;
};

} // namespace records
