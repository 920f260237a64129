// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/BinaryDataHolder.h"
#include "values/BinaryMessages.h"
#include "values/HexText.h"

#include <cwchar>
#include <memory>

namespace ZrXmlLib16 {

namespace {

unsigned int HexDigitValue(wchar_t digit)
{
    if (digit >= L'0' && digit <= L'9') {
        return static_cast<unsigned int>(digit - L'0');
    }
    if (digit >= L'A' && digit <= L'F') {
        return static_cast<unsigned int>(digit - L'A' + 10);
    }
    if (digit >= L'a' && digit <= L'f') {
        return static_cast<unsigned int>(digit - L'a' + 10);
    }
    throw CZrInvalidValueException(FormatString(Message::HEX_DIGIT_INVALID, static_cast<wint_t>(digit)));
}

} // namespace

unsigned long DecodedHexLength(unsigned long digitCount)
{
    if (digitCount % 2 != 0) {
        throw CZrInvalidValueException(Message::HEX_LENGTH_ODD);
    }
    return digitCount / 2;
}

void DecodeHex(const wchar_t* text, unsigned long digitCount, unsigned char* out)
{
    for (unsigned long i = 0; i < digitCount; i += 2) {
        const unsigned int high = HexDigitValue(text[i]);
        *out++ = static_cast<unsigned char>(high << 4 | HexDigitValue(text[i + 1]));
    }
}

void AppendHex(const unsigned char* data, unsigned long length, std::wstring& text)
{
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    const std::size_t begin = text.size();
    text.resize(begin + 2 * length);
    wchar_t* out = text.data() + begin;
    for (unsigned long i = 0; i < length; ++i) {
        *out++ = digits[data[i] >> 4];
        *out++ = digits[data[i] & 0x0F];
    }
}

std::wstring CBinaryData::GetAsHexString() const
{
    return GetAsHexString(GetData(), GetLength());
}

std::wstring CBinaryData::GetAsHexString(unsigned char* data, unsigned long length)
{
    if (data == nullptr) {
        return std::wstring();
    }
    std::wstring text;
    AppendHex(data, length, text);
    return text;
}

void CBinaryData::SetAsHexString(const wchar_t* text)
{
    Clear();
    unsigned char* data = nullptr;
    const unsigned long length = ConvertToHexData(text, &data);
    m_holder = CDataHolder::Adopt(data, length);
}

unsigned long CBinaryData::ConvertToHexData(const wchar_t* text, unsigned char** data)
{
    *data = nullptr;
    const unsigned long digitCount = text == nullptr ? 0 : std::wcslen(text);
    const unsigned long length = DecodedHexLength(digitCount);
    if (length == 0) {
        return 0;
    }
    std::unique_ptr<unsigned char[]> octets(new unsigned char[length]);
    DecodeHex(text, digitCount, octets.get());
    *data = octets.release();
    return length;
}

} // namespace ZrXmlLib16
