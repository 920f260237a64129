// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Base64.h"

#include "streams/Base64Codec.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t ALPHABET[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr signed char INVALID = -2;
constexpr signed char SKIPPED = -1;

/// Value, SKIPPED or INVALID of every 7-bit character.
constexpr std::array<signed char, 128> MakeDecodingTable()
{
    std::array<signed char, 128> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = INVALID;
    }
    for (signed char value = 0; value < 64; ++value) {
        table[static_cast<std::size_t>(ALPHABET[value])] = value;
    }
    for (const wchar_t skipped : {L'=', L' ', L'\t', L'\r'}) {
        table[static_cast<std::size_t>(skipped)] = SKIPPED;
    }
    return table;
}

constexpr std::array<signed char, 128> DECODING_TABLE = MakeDecodingTable();

int DecodedValue(wchar_t character)
{
    return DECODING_TABLE[static_cast<std::uint32_t>(character) & 0x7F];
}

/// Writes the first groups of 6 bits of a 24-bit number.
wchar_t* PutGroups(int bits, int groupCount, wchar_t* out)
{
    for (int shift = 18; groupCount > 0; --groupCount, shift -= 6) {
        *out++ = ALPHABET[bits >> shift & 0x3F];
    }
    return out;
}

/// Decodes whole quartets of alphabet characters; advances both positions.
void DecodeQuartets(const wchar_t*& text, const wchar_t* end, unsigned char*& out)
{
    for (; end - text >= 4; text += 4, out += 3) {
        const int first = DecodedValue(text[0]);
        const int second = DecodedValue(text[1]);
        const int third = DecodedValue(text[2]);
        const int fourth = DecodedValue(text[3]);
        if ((first | second | third | fourth) < 0) {
            return;
        }
        out[0] = static_cast<unsigned char>(first << 2 | second >> 4);
        out[1] = static_cast<unsigned char>(second << 4 | third >> 2);
        out[2] = static_cast<unsigned char>(third << 6 | fourth);
    }
}

} // namespace

std::wstring EncodeBase64(const unsigned char* bytes, unsigned long length)
{
    if (bytes == nullptr) {
        return std::wstring();
    }
    const unsigned long tail = length % 3;
    std::wstring text((length / 3 + (tail != 0 ? 1 : 0)) * 4, L'=');
    wchar_t* out = &text[0];
    for (const unsigned char* const end = bytes + (length - tail); bytes != end; bytes += 3) {
        out = PutGroups(bytes[0] << 16 | bytes[1] << 8 | bytes[2], 4, out);
    }
    if (tail == 2) {
        PutGroups(bytes[0] << 16 | bytes[1] << 8, 3, out);
    } else if (tail == 1) {
        PutGroups(bytes[0] << 16, 2, out);
    }
    return text;
}

unsigned long DecodedBase64Bound(unsigned long textLength)
{
    return textLength / 4 * 3 + textLength % 4;
}

unsigned long DecodeBase64(const wchar_t* text, unsigned long length, unsigned char* out)
{
    // kept: required behaviour. An invalid character at the beginning, a line feed included, leaves nothing of the
    // text.
    if (length == 0 || DecodedValue(text[0]) == INVALID) {
        return 0;
    }
    const unsigned char* const begin = out;
    const wchar_t* const end = text + length;
    std::uint32_t bits = 0;
    unsigned int bitCount = 0;
    while (text != end) {
        if (bitCount == 0) {
            DecodeQuartets(text, end, out);
        }
        const int value = text == end ? SKIPPED : DecodedValue(*text++);
        if (value < 0) {
            continue;
        }
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        bitCount += 6;
        if (bitCount >= 8) {
            bitCount -= 8;
            *out++ = static_cast<unsigned char>(bits >> bitCount);
        }
    }
    return static_cast<unsigned long>(out - begin);
}

std::wstring CBase64::Encode(unsigned char* bytes, int length)
{
    return length < 1 ? std::wstring() : EncodeBase64(bytes, static_cast<unsigned long>(length));
}

int CBase64::Decode(const wchar_t* text, unsigned char* out)
{
    if (text == nullptr || out == nullptr || *text == L'\0') {
        return 0;
    }
    const unsigned long length = std::wcslen(text);
    std::memset(out, 0, length + 1);
    return static_cast<int>(DecodeBase64(text, length, out));
}

} // namespace ZrXmlLib16
