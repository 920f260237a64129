// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/BinaryDataHolder.h"
#include "values/BinaryMessages.h"

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

std::wstring CBinaryData::GetAsHexString() const
{
    return GetAsHexString(GetData(), GetLength());
}

std::wstring CBinaryData::GetAsHexString(unsigned char* data, unsigned long length)
{
    if (data == nullptr) {
        return std::wstring();
    }
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    std::wstring text(2 * length, L'0');
    for (unsigned long i = 0; i < length; ++i) {
        text[2 * i] = digits[data[i] >> 4];
        text[2 * i + 1] = digits[data[i] & 0x0F];
    }
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
    if (digitCount % 2 != 0) {
        throw CZrInvalidValueException(Message::HEX_LENGTH_ODD);
    }
    if (digitCount == 0) {
        return 0;
    }
    const unsigned long length = digitCount / 2;
    std::unique_ptr<unsigned char[]> octets(new unsigned char[length]);
    for (unsigned long i = 0; i < length; ++i) {
        const unsigned int high = HexDigitValue(text[2 * i]);
        octets[i] = static_cast<unsigned char>(high << 4 | HexDigitValue(text[2 * i + 1]));
    }
    *data = octets.release();
    return length;
}

} // namespace ZrXmlLib16
