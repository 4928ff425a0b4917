// LumbrioConfig: the single 2300-byte record of the point of sale's "LumbrioINI.dat", 191 fixed
// text fields. Read only; reserved fields are not used.
#pragma once

#include "records/fixed_record.h"

namespace records {

struct ConfigField : Field {};

using LumbrioConfig = FixedRecord<ConfigField, 2300>;

namespace detail {

/// Fields `first` to `last` that follow each other with the same length.
struct ConfigRun {
    int first;
    int last;
    std::size_t length;
};

inline constexpr ConfigRun kConfigRuns[] = {
    {1, 3, 40},     {4, 4, 20},     {5, 5, 50},    {6, 6, 40},     {7, 7, 10},     {8, 8, 20},
    {9, 9, 200},    {10, 21, 1},    {22, 22, 28},  {23, 23, 5},    {24, 27, 20},   {28, 28, 1},
    {29, 29, 20},   {30, 32, 2},    {33, 33, 288}, {34, 34, 5},    {35, 35, 20},   {36, 36, 2},
    {37, 39, 5},    {40, 40, 40},   {41, 41, 5},   {42, 42, 1},    {43, 48, 5},    {49, 49, 40},
    {50, 50, 20},   {51, 52, 40},   {53, 54, 10},  {55, 72, 5},    {73, 73, 20},   {74, 74, 2},
    {75, 101, 5},   {102, 102, 20}, {103, 104, 5}, {105, 105, 20}, {106, 129, 5},  {130, 135, 20},
    {136, 159, 5},  {160, 160, 10}, {161, 164, 5}, {165, 165, 10}, {166, 166, 50}, {167, 181, 5},
    {182, 183, 10}, {184, 189, 5},  {190, 190, 2}, {191, 191, 248}};

constexpr std::array<ConfigField, 191> configFields()
{
    std::array<ConfigField, 191> fields{};
    std::size_t at = 0;
    for (const ConfigRun &run : kConfigRuns) {
        for (int number = run.first; number <= run.last; ++number) {
            fields[static_cast<std::size_t>(number - 1)] = ConfigField{{"", at, run.length}};
            at += run.length;
        }
    }
    return fields;
}

} // namespace detail

/// Field N stands at index N - 1.
inline constexpr std::array<ConfigField, 191> kConfigFields = detail::configFields();
static_assert(isContiguous(kConfigFields, 2300));

constexpr const ConfigField &configField(int number)
{
    return kConfigFields[static_cast<std::size_t>(number - 1)];
}

inline constexpr ConfigField kBusinessName = configField(1);
inline constexpr ConfigField kAddressLine1 = configField(2);
inline constexpr ConfigField kAddressLine2 = configField(3);
inline constexpr ConfigField kBusinessLine4 = configField(4);
inline constexpr ConfigField kMaindir = configField(6);
inline constexpr ConfigField kReceiptPrinterName = configField(8);
inline constexpr ConfigField kSlipFontFamily = configField(22);
inline constexpr ConfigField kSlipFontSize = configField(23);
inline constexpr ConfigField kOwnerCode = configField(27);
inline constexpr ConfigField kReceiptAutocut = configField(30);
inline constexpr ConfigField kTimeClockDirectory = configField(40);
inline constexpr ConfigField kRemotedir = configField(49);
inline constexpr ConfigField kGratuityPercent = configField(95);
static_assert(kSlipFontFamily.offset == 472 && kReceiptAutocut.offset == 606);
static_assert(kRemotedir.offset == 1018 && kGratuityPercent.offset == 1390);
static_assert(configField(128).offset == 1585 && configField(174).offset == 1960);
static_assert(configField(191).offset == 2052);

} // namespace records
