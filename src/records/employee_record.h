// EmployeeRecord: one 1000-byte record of the point of sale's "Zemployee.dat". Read only.
#pragma once

#include "records/fixed_record.h"

namespace records {

struct EmployeeField : Field {};

using EmployeeRecord = FixedRecord<EmployeeField, 1000>;

/// All 32, in the order of the bytes; fields whose names begin with "reserved" are not used.
// clang-format off
inline constexpr std::array<EmployeeField, 32> kEmployeeFields = {{
    {{"number", 0, 20}},         {{"second identifier", 20, 20}}, {{"name", 40, 30}},
    {{"reserved 4", 70, 30}},    {{"reserved 5", 100, 30}},       {{"reserved 6", 130, 20}},
    {{"reserved 7", 150, 10}},   {{"reserved 8", 160, 10}},       {{"first date", 170, 10}},
    {{"second date", 180, 10}},  {{"reserved 11", 190, 20}},      {{"time sheet text", 210, 10}},
    {{"reserved 13", 220, 10}},  {{"reserved 14", 230, 40}},      {{"reserved 15", 270, 330}},
    {{"reserved 16", 600, 20}},  {{"reserved 17", 620, 20}},      {{"reserved 18", 640, 20}},
    {{"number 19", 660, 5}},     {{"reserved 20", 665, 20}},      {{"reserved 21", 685, 20}},
    {{"reserved 22", 705, 10}},  {{"reserved 23", 715, 10}},      {{"reserved 24", 725, 10}},
    {{"reserved 25", 735, 10}},  {{"reserved 26", 745, 20}},      {{"reserved 27", 765, 20}},
    {{"reserved 28", 785, 20}},  {{"reserved 29", 805, 20}},      {{"reserved 30", 825, 20}},
    {{"time sheet selector", 845, 5}}, {{"reserved 32", 850, 150}},
}};
// clang-format on
static_assert(isContiguous(kEmployeeFields, 1000));

inline constexpr EmployeeField kEmployeeNumber = kEmployeeFields[0];
inline constexpr EmployeeField kEmployeeName = kEmployeeFields[2];

} // namespace records
