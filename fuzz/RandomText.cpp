// SPDX-License-Identifier: MIT
#include "fuzz/RandomObject.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

#include <cstring>

using namespace ZrXmlLib16;

namespace Fuzz {

namespace {

// All of them may stand in XML. No carriage return, which readers and writers drop.
const wchar_t CHARACTERS[] = L"abcXYZ012 .,:-+<>&'/{}[]()%$#@!=;?*~`^_|\t\n\x85\xA0\xE9\x3B1\x2028\x20AC\xFEFF\xFFFD";

std::wstring RandomString(InputReader& input, const Restrictions& restrictions)
{
    std::wstring text;
    const unsigned kind = input.Octet();
    const unsigned length = kind % 64 == 63 ? 300 : kind % 8;
    for (unsigned i = 0; i < length; ++i) {
        const unsigned choice = input.Octet();
        if (choice >= 250)
            text += L"\xD83D\xDE00";
        else if (choice >= 240 && !restrictions.unwritableInJson)
            text += choice % 2 ? L'"' : L'\\';
        else
            text += CHARACTERS[choice % (sizeof(CHARACTERS) / sizeof(wchar_t) - 1)];
    }
    return text.empty() && restrictions.unwritableInJson ? L"-" : text;
}

std::wstring RandomBinary(ItemType type, InputReader& input, const Restrictions& restrictions)
{
    CBinaryData binary;
    for (unsigned n = input.Below(40) + (restrictions.unwritableInJson ? 1 : 0); n > 0; --n)
        binary.Append(static_cast<unsigned char>(input.Octet()));
    return type == ItemType_hexBinary ? binary.GetAsHexString() : binary.GetAsBase64();
}

std::wstring RandomDigits(InputReader& input)
{
    std::wstring digits;
    for (unsigned n = 1 + input.Below(30); n > 0; --n)
        digits += static_cast<wchar_t>(L'0' + input.Below(10));
    return digits;
}

std::wstring RandomReal(ItemType type, InputReader& input, const Restrictions& restrictions)
{
    const std::uint64_t bits = input.Bits64();
    ZrVariant value;
    double wide;
    float narrow;
    std::memcpy(&wide, &bits, sizeof wide);
    std::memcpy(&narrow, &bits, sizeof narrow);
    if (type == ItemType_r4)
        value.SetR4(narrow);
    else
        value.SetR8(wide);
    // The largest numbers, rounded to the digits that are written, read back as infinite.
    value.FromString(value.ToString(nullptr), type, CWhitespaceUtils::Rule_None);
    const std::wstring text = value.ToString(nullptr);
    return restrictions.unwritableInJson && text.find_first_of(L"NI") != std::wstring::npos ? L"0" : text;
}

std::wstring RandomZone(InputReader& input)
{
    switch (input.Below(4)) {
    case 0:
        return L"Z";
    case 1:
        return (input.Flag() ? L"+" : L"-") + PadZero(static_cast<int>(input.Below(14)), 2) + L":"
            + PadZero(static_cast<int>(input.Below(60)), 2);
    default:
        return L"";
    }
}

std::wstring RandomDateText(ItemType type, InputReader& input)
{
    const std::wstring year = PadZero(static_cast<int>(1 + input.Below(9999)), 4);
    const std::wstring month = PadZero(static_cast<int>(1 + input.Below(12)), 2);
    const std::wstring day = PadZero(static_cast<int>(1 + input.Below(28)), 2);
    std::wstring time = PadZero(static_cast<int>(input.Below(24)), 2) + L":"
        + PadZero(static_cast<int>(input.Below(60)), 2) + L":" + PadZero(static_cast<int>(input.Below(60)), 2);
    if (input.Flag())
        time +=
            L"." + PadZero(static_cast<int>(input.Below(1000)), 3) + PadZero(static_cast<int>(input.Below(1000)), 3);
    switch (type) {
    case ItemType_yearMonth:
        return year + L"-" + month + RandomZone(input);
    case ItemType_monthDay:
        return L"--" + month + L"-" + day + RandomZone(input);
    case ItemType_date:
        return year + L"-" + month + L"-" + day + RandomZone(input);
    case ItemType_time:
        return time + RandomZone(input);
    default:
        return year + L"-" + month + L"-" + day + L"T" + time + RandomZone(input);
    }
}

// Of some length: the text of the others cannot be read.
std::wstring RandomDuration(InputReader& input)
{
    std::wstring text = input.Flag() ? L"-P" : L"P";
    for (const wchar_t unit : {L'Y', L'M', L'D'})
        text += std::to_wstring(1 + input.Below(100)) + unit;
    text += L'T';
    for (const wchar_t unit : {L'H', L'M', L'S'})
        text += std::to_wstring(input.Below(100)) + unit;
    return text;
}

std::wstring RandomInteger(InputReader& input, bool isSigned, int bits)
{
    const std::uint64_t value = input.Bits64() >> (64 - bits);
    if (!isSigned)
        return std::to_wstring(value);
    return std::to_wstring(static_cast<std::int64_t>(value) - (1LL << (bits - 1)));
}

} // namespace

std::wstring RandomText(ItemType type, InputReader& input, const Restrictions& restrictions)
{
    switch (type) {
    case ItemType_hexBinary:
    case ItemType_base64Binary:
        return RandomBinary(type, input, restrictions);
    case ItemType_i1:
        return RandomInteger(input, true, 8);
    case ItemType_i2:
        return RandomInteger(input, true, 16);
    case ItemType_i4:
    case ItemType_i8:
        return std::to_wstring(static_cast<std::int64_t>(input.Bits64()));
    case ItemType_ui1:
        return RandomInteger(input, false, 8);
    case ItemType_ui2:
    case ItemType_year:
        return RandomInteger(input, false, 16);
    case ItemType_ui4:
    case ItemType_ui8:
        return std::to_wstring(input.Bits64());
    case ItemType_r4:
    case ItemType_r8:
        return RandomReal(type, input, restrictions);
    case ItemType_duration:
        return RandomDuration(input);
    case ItemType_month:
        return L"--" + PadZero(static_cast<int>(1 + input.Below(12)), 2);
    case ItemType_day:
        return L"---" + PadZero(static_cast<int>(1 + input.Below(31)), 2);
    case ItemType_char:
        return std::wstring(1, static_cast<wchar_t>(L'a' + input.Below(26)));
    case ItemType_boolean:
        return input.Flag() ? L"true" : L"false";
    case ItemType_decimal:
        return (input.Flag() ? L"-" : L"") + RandomDigits(input) + (input.Flag() ? L"." + RandomDigits(input) : L"");
    case ItemType_integer:
        return (input.Flag() ? L"-" : L"") + RandomDigits(input);
    case ItemType_string:
        return RandomString(input, restrictions);
    default:
        return RandomDateText(type, input);
    }
}

} // namespace Fuzz
