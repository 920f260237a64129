// SPDX-License-Identifier: MIT
#include "lexical/PlainValue.h"

#include "ZrXmlLib16/ZrVariant.h"
#include "lexical/ShortText.h"
#include "streams/LargePages.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <limits>
#include <string_view>

namespace ZrXmlLib16 {

namespace {

static_assert(PlainValue::OVERREAD >= ShortText<wchar_t>::OVERREAD);

bool Equals(const unsigned short* units, std::size_t length, std::string_view text)
{
    return length == text.length() && std::equal(units, units + length, text.begin());
}

} // namespace

template <class T, class Stored> bool PlainValue::ReadInteger(
    const unsigned short* units, std::size_t length, ItemType type, Stored ZrVariant::Value::*member, ZrVariant& value)
{
    constexpr std::size_t MOST_DIGITS = 18; // of any value that cannot overflow
    const bool negative = std::numeric_limits<T>::is_signed && *units == '-';
    units += negative;
    length -= negative;
    if (length == 0 || length > MOST_DIGITS) {
        return false;
    }
    long long number = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned digit = units[i] - unsigned{'0'};
        if (digit > 9) {
            return false;
        }
        number = number * 10 + static_cast<int>(digit);
    }
    number = negative ? -number : number;
    const T result = static_cast<T>(number);
    if (static_cast<long long>(result) != number) {
        return false;
    }
    value.Begin(type, member) = static_cast<Stored>(result);
    return true;
}

bool PlainValue::ReadReal(const unsigned short* units, std::size_t length, ZrVariant& value)
{
    const bool negative = *units == '-';
    const bool isAscii = std::all_of(units, units + length, [](unsigned short unit) { return unit < 0x80; });
    const unsigned short first = units[negative];
    if (!isAscii || first < '0' || first > '9') {
        return false;
    }
    const ShortText<char> text(units, length);
    const char* const end = text.Get() + length;
    double number = 0;
    const std::from_chars_result result = std::from_chars(text.Get(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return false;
    }
    value.Begin(ItemType_r8, &ZrVariant::Value::r8) = number;
    return true;
}

bool PlainValue::ReadBoolean(const unsigned short* units, std::size_t length, ZrVariant& value)
{
    const bool isTrue = Equals(units, length, "true") || Equals(units, length, "1");
    if (!isTrue && !Equals(units, length, "false") && !Equals(units, length, "0")) {
        return false;
    }
    value.Begin(ItemType_boolean, &ZrVariant::Value::boolean) = isTrue;
    return true;
}

bool PlainValue::ReadDecimal(const unsigned short* units, std::size_t length, ZrVariant& value)
{
    const ShortText<wchar_t> text(units, length);
    if (value.Begin(ItemType_decimal, &ZrVariant::Value::decimal).TryParse(text.Get(), length)) {
        return true;
    }
    value.Clear();
    return false;
}

bool PlainValue::ReadDateTime(
    const unsigned short* units, std::size_t length, ItemType type, int dateType, ZrVariant& value)
{
    const ShortText<wchar_t> text(units, length);
    CDateTime& dateTime = value.Begin(type, &ZrVariant::Value::dateTime);
    if (dateTime.TryParse(text.Get(), length, static_cast<CDateTime::DateType>(dateType))) {
        return true;
    }
    value.Clear();
    return false;
}

void PlainValue::ReadString(const unsigned short* units, std::size_t length, ZrVariant& value)
{
    if (length <= ShortText<wchar_t>::LONGEST) {
        const ShortText<wchar_t> text(units, length);
        value.Begin(ItemType_string, &ZrVariant::Value::string, text.Get(), length);
    } else {
        ReadLongString(units, length, value);
    }
}

void PlainValue::ReadLongString(const unsigned short* units, std::size_t length, ZrVariant& value)
{
    std::wstring& text = value.Begin(ItemType_string, &ZrVariant::Value::string);
    text.reserve(length);
    PreferLargePages(text.data(), length * sizeof(wchar_t));
    // Block by block: to resize the text first would write all of it twice.
    wchar_t block[512];
    for (std::size_t done = 0; done < length;) {
        const std::size_t count = std::min(length - done, std::size(block));
        std::copy_n(units + done, count, block);
        text.append(block, count);
        done += count;
    }
}

bool PlainValue::Read(const unsigned short* units, std::size_t length, ItemType type, ZrVariant& value)
{
    if (length == 0 || length > ShortText<wchar_t>::LONGEST) {
        return false;
    }
    switch (type) {
    case ItemType_i1:
        return ReadInteger<signed char>(units, length, type, &ZrVariant::Value::i1, value);
    case ItemType_i2:
        return ReadInteger<short>(units, length, type, &ZrVariant::Value::i2, value);
    case ItemType_i4:
        return ReadInteger<long>(units, length, type, &ZrVariant::Value::i4, value);
    case ItemType_i8:
        return ReadInteger<long long>(units, length, type, &ZrVariant::Value::i8, value);
    case ItemType_ui1:
        return ReadInteger<unsigned char>(units, length, type, &ZrVariant::Value::ui1, value);
    case ItemType_ui2:
        return ReadInteger<unsigned short>(units, length, type, &ZrVariant::Value::ui2, value);
    case ItemType_ui4:
        return ReadInteger<unsigned long>(units, length, type, &ZrVariant::Value::ui4, value);
    case ItemType_ui8:
        return ReadInteger<unsigned long long>(units, length, type, &ZrVariant::Value::ui8, value);
    case ItemType_r8:
        return ReadReal(units, length, value);
    case ItemType_boolean:
        return ReadBoolean(units, length, value);
    case ItemType_decimal:
        return ReadDecimal(units, length, value);
    case ItemType_date:
        return ReadDateTime(units, length, type, CDateTime::dt_date, value);
    case ItemType_datetime:
        return ReadDateTime(units, length, type, CDateTime::dt_dateTime, value);
    case ItemType_time:
        return ReadDateTime(units, length, type, CDateTime::dt_time, value);
    case ItemType_yearMonth:
        return ReadDateTime(units, length, type, CDateTime::dt_gYearMonth, value);
    case ItemType_monthDay:
        return ReadDateTime(units, length, type, CDateTime::dt_gMonthDay, value);
    default:
        return false;
    }
}

} // namespace ZrXmlLib16
