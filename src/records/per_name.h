// PerName: one value for each name of an enumeration that counts from 0.
#pragma once

#include <array>
#include <cstddef>

namespace records {

template <class Name, class Value, std::size_t count> struct PerName {
    std::array<Value, count> values{};

    Value &operator[](Name name) { return values[static_cast<std::size_t>(name)]; }
    const Value &operator[](Name name) const { return values[static_cast<std::size_t>(name)]; }
    bool operator==(const PerName &) const = default;
};

} // namespace records
