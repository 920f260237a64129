// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Encoder.h"

#include "streams/UnicodeText.h"
#include "streams/Utf8Decoding.h"
#include "streams/Utf8Encoding.h"

namespace ZrXmlLib16 {

std::wstring CEncoder::Utf8ToUnicode(const unsigned char* data, unsigned long length)
{
    return DecodeUtf8(data, length);
}

std::wstring CEncoder::Utf8ToUnicode(const CBinaryData& data)
{
    return DecodeUtf8(data.GetData(), data.GetLength());
}

std::wstring CEncoder::Utf8ToUnicode(const std::string& text)
{
    return DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

std::string CEncoder::UnicodeToUtf8(const wchar_t* text, unsigned long length)
{
    const TextPiece piece = {text, length};
    std::string octets(Utf8Length(&piece, 1), '\0');
    WriteUtf8(&piece, 1, reinterpret_cast<unsigned char*>(&octets[0]));
    return octets;
}

std::string CEncoder::UnicodeToUtf8(const std::wstring& text)
{
    return UnicodeToUtf8(text.data(), text.size());
}

CBinaryData CEncoder::UnicodeToUtf8Binary(const wchar_t* text, unsigned long length)
{
    const TextPiece piece = {text, length};
    return EncodeUtf8(&piece, 1);
}

CBinaryData CEncoder::UnicodeToUtf8Binary(const std::wstring& text)
{
    return UnicodeToUtf8Binary(text.data(), text.size());
}

std::wstring CEncoder::Utf16ToUnicode(const unsigned char* data, unsigned long length, bool bigEndian)
{
    const unsigned long unitCount = length / 2;
    std::wstring text;
    text.reserve(unitCount + length % 2);
    for (unsigned long i = 0; i < unitCount; ++i) {
        const unsigned int first = data[2 * i];
        const unsigned int second = data[2 * i + 1];
        text.push_back(static_cast<wchar_t>(bigEndian ? first << 8 | second : second << 8 | first));
    }
    if (length % 2 != 0) {
        text.push_back(static_cast<wchar_t>(REPLACEMENT_CHARACTER));
    }
    return text;
}

void CEncoder::UnicodeToUtf16LE(const wchar_t* text, unsigned long length, std::vector<unsigned char>& out)
{
    unsigned long at = out.size();
    out.resize(at + 2 * length);
    for (unsigned long i = 0; i < length; ++i) {
        const auto unit = static_cast<std::uint32_t>(text[i]);
        out[at++] = static_cast<unsigned char>(unit);
        out[at++] = static_cast<unsigned char>(unit >> 8);
    }
}

std::wstring CEncoder::ToSurrogatePairs(const std::wstring& text)
{
    std::wstring units;
    units.reserve(text.size());
    for (const wchar_t character : text) {
        const auto value = static_cast<std::uint32_t>(character);
        if (value >= 0x10000 && value <= LAST_CODE_POINT) {
            units.push_back(HighSurrogate(value));
            units.push_back(LowSurrogate(value));
        } else {
            units.push_back(character);
        }
    }
    return units;
}

} // namespace ZrXmlLib16
