// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "lexical/NumberText.h"
#include "lexical/ValueText.h"

#include <cmath>

namespace ZrXmlLib16 {

namespace {

void AppendReal(double value, int defaultPrecision, const wchar_t* format, std::wstring& text)
{
    if (std::isnan(value)) {
        text += L"NaN";
    } else if (std::isinf(value)) {
        text += value < 0 ? L"-INF" : L"INF";
    } else if (format == nullptr || *format == L'\0') {
        NumberText::AppendGeneral(value, defaultPrecision, text);
    } else {
        NumberText::AppendFormatted(value, format, text);
    }
}

void AppendTwoDigits(unsigned char value, std::wstring& text)
{
    if (value < 10) {
        text += L'0';
    }
    NumberText::AppendUnsigned(value, text);
}

template <class Append> std::wstring TextOf(Append append)
{
    std::wstring text;
    append(text);
    return text;
}

std::wstring SignedText(long long value)
{
    return TextOf([value](std::wstring& text) { NumberText::AppendInteger(value, text); });
}

std::wstring UnsignedText(unsigned long long value)
{
    return TextOf([value](std::wstring& text) { NumberText::AppendUnsigned(value, text); });
}

} // namespace

// kept: required behaviour. Seven and sixteen digits do not always read back as the same value.
void ValueText::AppendR4(float value, const wchar_t* format, std::wstring& text)
{
    AppendReal(static_cast<double>(value), 7, format, text);
}

void ValueText::AppendR8(double value, const wchar_t* format, std::wstring& text)
{
    AppendReal(value, 16, format, text);
}

void ValueText::AppendMonth(unsigned char value, std::wstring& text)
{
    text += L"--";
    AppendTwoDigits(value, text);
}

void ValueText::AppendDay(unsigned char value, std::wstring& text)
{
    text += L"---";
    AppendTwoDigits(value, text);
}

void ValueText::AppendBoolean(bool value, std::wstring& text)
{
    text += value ? L"true" : L"false";
}

std::wstring CConversions::i1ToString(signed char value)
{
    return SignedText(value);
}

std::wstring CConversions::i2ToString(short value)
{
    return SignedText(value);
}

std::wstring CConversions::i4ToString(long value)
{
    return SignedText(value);
}

std::wstring CConversions::i8ToString(long long value)
{
    return SignedText(value);
}

std::wstring CConversions::ui1ToString(unsigned char value)
{
    return UnsignedText(value);
}

std::wstring CConversions::ui2ToString(unsigned short value)
{
    return UnsignedText(value);
}

std::wstring CConversions::ui4ToString(unsigned long value)
{
    return UnsignedText(value);
}

std::wstring CConversions::ui8ToString(unsigned long long value)
{
    return UnsignedText(value);
}

std::wstring CConversions::r4ToString(float value)
{
    return r4ToString(value, L"");
}

std::wstring CConversions::r4ToString(float value, const wchar_t* format)
{
    return TextOf([=](std::wstring& text) { ValueText::AppendR4(value, format, text); });
}

std::wstring CConversions::r8ToString(double value)
{
    return r8ToString(value, L"");
}

std::wstring CConversions::r8ToString(double value, const wchar_t* format)
{
    return TextOf([=](std::wstring& text) { ValueText::AppendR8(value, format, text); });
}

std::wstring CConversions::booleanToString(bool value)
{
    return TextOf([value](std::wstring& text) { ValueText::AppendBoolean(value, text); });
}

std::wstring CConversions::charToString(wchar_t value)
{
    return std::wstring(1, value);
}

std::wstring CConversions::stringToString(const std::wstring& value)
{
    return value;
}

std::wstring CConversions::decimalToString(const CDecimal& value)
{
    return decimalToString(value, L"");
}

std::wstring CConversions::decimalToString(const CDecimal& value, const wchar_t* format)
{
    return value.ToString(format);
}

std::wstring CConversions::integerToString(const CBigInteger& value)
{
    return value.ToString();
}

std::wstring CConversions::hexBinaryToString(const CBinaryData& value)
{
    return value.GetAsHexString();
}

std::wstring CConversions::base64BinaryToString(const CBinaryData& value)
{
    return value.GetAsBase64();
}

std::wstring CConversions::durationToString(const CDateTimeSpan& value)
{
    return value.ToString();
}

std::wstring CConversions::dateToString(const CDateTime& value)
{
    return value.ToString();
}

std::wstring CConversions::datetimeToString(const CDateTime& value)
{
    return value.ToString();
}

std::wstring CConversions::timeToString(const CDateTime& value)
{
    return value.ToString();
}

std::wstring CConversions::yearMonthToString(const CDateTime& value)
{
    return value.ToString();
}

std::wstring CConversions::monthDayToString(const CDateTime& value)
{
    return value.ToString();
}

// kept: required behaviour. No leading zeros and, like month and day, no time zone.
std::wstring CConversions::yearToString(unsigned short value)
{
    return UnsignedText(value);
}

std::wstring CConversions::monthToString(unsigned char value)
{
    return TextOf([value](std::wstring& text) { ValueText::AppendMonth(value, text); });
}

std::wstring CConversions::dayToString(unsigned char value)
{
    return TextOf([value](std::wstring& text) { ValueText::AppendDay(value, text); });
}

} // namespace ZrXmlLib16
