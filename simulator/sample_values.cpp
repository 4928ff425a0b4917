#include "simulator/sample_values.h"

#include "records/money.h"
#include "records/text.h"

namespace simulator {

std::int64_t centsOf(std::string_view amount)
{
    return records::Val(amount).rounded(2).tenThousandths() / 100;
}

std::uint64_t fingerprint(std::initializer_list<std::string_view> texts)
{
    std::uint64_t hash = 0xcbf29ce484222325ULL;
    for (const std::string_view text : texts) {
        for (const char c : text)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
        hash = (hash ^ 0x1fU) * 0x100000001b3ULL;
    }
    return hash;
}

std::string padded(std::uint64_t number, std::size_t width)
{
    std::string digits = std::to_string(number);
    if (digits.size() < width)
        digits.insert(0, width - digits.size(), '0');
    return digits.substr(digits.size() - width);
}

std::string approvalCode(std::uint64_t seed)
{
    return padded(seed % 1000000, 6);
}

std::string garbage()
{
    std::string bytes;
    std::uint32_t state = 0x9e3779b9U;
    while (bytes.size() < 4096) {
        state = state * 1664525U + 1013904223U;
        bytes += static_cast<char>(state >> 24U);
    }
    return bytes;
}

} // namespace simulator
