// SPDX-License-Identifier: MIT
#ifndef VALUES_VALUEMESSAGES_H
#define VALUES_VALUEMESSAGES_H

namespace ZrXmlLib16 {
namespace ValueMessages {

// Duration
constexpr wchar_t DURATION_NULL[] = L"Invalid XSD Duration (Null String)";
constexpr wchar_t DURATION_EMPTY[] = L"Invalid XSD Duration (Empty String)";
constexpr wchar_t DURATION_FRACTION_TOO_LONG[] = L"Invalid XSD Duration [%ls] Fraction part too long"; // text
constexpr wchar_t DURATION_EXPECTED[] =
    L"Invalid XSD Duration [%ls] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]"; // text

// Date and time
constexpr wchar_t DATE_TIME_NULL[] = L"Invalid XSD %ls (Null String)";                             // kind
constexpr wchar_t DATE_TIME_EMPTY[] = L"Invalid XSD %ls (Empty String)";                           // kind
constexpr wchar_t DATE_TIME_FRACTION_TOO_LONG[] = L"Invalid XSD %ls [%ls] Fraction part too long"; // kind, text
constexpr wchar_t DATE_TIME_EXPECTED[] = L"Invalid XSD %ls [%ls] expected %ls";                    // kind, text, form
constexpr wchar_t DATE_OUT_OF_RANGE[] = L"The date is out of range";
constexpr wchar_t TIME_OUT_OF_RANGE[] = L"The time is out of range";
constexpr wchar_t TIME_ZONE_OUT_OF_RANGE[] = L"The time zone is out of range";
constexpr wchar_t YEAR_OUT_OF_RANGE[] = L"The year %d is out of range"; // int
constexpr wchar_t INVALID_DATE_TYPE[] = L"Invalid date type %d";        // int

// Numbers
constexpr wchar_t NOT_AN_INTEGER[] = L"The value [%ls] can not be converted to a integer"; // text
constexpr wchar_t NOT_A_DECIMAL[] = L"The value [%ls] can not be converted to a decimal";  // text

// Variant
constexpr wchar_t INVALID_TYPE_TO_CONVERT[] = L"Invalid Type %d to convert to string"; // int
constexpr wchar_t INVALID_TYPE[] = L"Invalid Type %d";                                 // int

} // namespace ValueMessages
} // namespace ZrXmlLib16

#endif
