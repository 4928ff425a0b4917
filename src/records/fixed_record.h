// FixedRecord: fixed-length text fields one after the other, one byte per character, as in the
// shared files.
#pragma once

#include "records/money.h"
#include "records/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace records {

/// Where a field stands. Each kind of record derives its own type from this, so that a field cannot
/// be used with the wrong record.
struct Field {
    const char *name;
    std::size_t offset;
    std::size_t length;
};

/// True when the fields of a table follow each other without a gap and end at `size`.
template <class Table> constexpr bool isContiguous(const Table &fields, std::size_t size)
{
    std::size_t at = 0;
    for (const auto &field : fields) {
        if (field.offset != at)
            return false;
        at += field.length;
    }
    return at == size;
}

/// The working copy of one record. Fields never assigned are NUL bytes.
template <class FieldType, std::size_t Size> class FixedRecord {
public:
    static constexpr std::size_t kSize = Size;

    /// The field's bytes as they stand, padding and NULs included.
    std::string raw(const FieldType &field) const { return std::string(view(field)); }
    /// Trimmed; empty for a field of blanks or NULs.
    std::string text(const FieldType &field) const { return Trim(view(field)); }
    Money value(const FieldType &field) const { return Val(view(field)); }
    bool isEmpty(const FieldType &field) const { return isBlank(view(field)); }

    /// Left-justified, padded with blanks, cut at the right.
    void set(const FieldType &field, std::string_view text)
    {
        char *const from = bytes.data() + field.offset;
        const std::size_t used = std::min(text.size(), field.length);
        std::copy_n(text.begin(), used, from);
        std::fill_n(from + used, field.length - used, ' ');
    }

    std::span<char> data() { return bytes; }
    std::string_view view() const { return std::string_view(bytes.data(), Size); }
    bool operator==(const FixedRecord &) const = default;

private:
    std::string_view view(const FieldType &field) const
    {
        return std::string_view(bytes.data() + field.offset, field.length);
    }

    std::array<char, Size> bytes{};
};

} // namespace records
