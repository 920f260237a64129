// SPDX-License-Identifier: MIT
#include "fastinfoset/EncodingAlgorithms.h"

#include "ZrXmlLib16/Conversions.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "fastinfoset/FastInfosetMessages.h"
#include "lexical/LexicalMessages.h"
#include "lexical/NumberText.h"
#include "lexical/ValueText.h"
#include "streams/Base64Codec.h"
#include "streams/Utf8Encoding.h"
#include "values/HexText.h"

#include <cstdint>
#include <cstring>

namespace ZrXmlLib16::EncodingAlgorithms {

namespace {

using Octets = std::vector<unsigned char>;

constexpr CWhitespaceUtils::WhitespaceRule UNTRIMMED = CWhitespaceUtils::Rule_None;

// An octet of one boolean: the high half counts the unused bits at the end, the next bit is the value.
constexpr unsigned char ENCODED_FALSE = 0x30;
constexpr unsigned char ENCODED_TRUE = 0x38;
constexpr unsigned long BITS_OF_UNUSED_COUNT = 4;

constexpr unsigned long UUID_LENGTH = 16;

template <class Unsigned> void PutBigEndian(Unsigned value, Octets& octets)
{
    octets.resize(sizeof value);
    for (std::size_t i = 0; i < sizeof value; ++i) {
        octets[i] = static_cast<unsigned char>(value >> 8 * (sizeof value - 1 - i));
    }
}

template <class Unsigned> Unsigned GetBigEndian(const unsigned char* octets)
{
    Unsigned value = 0;
    for (std::size_t i = 0; i < sizeof value; ++i) {
        value = static_cast<Unsigned>(value << 8 | octets[i]);
    }
    return value;
}

/// The bits of a floating-point number, or the number of the bits.
template <class To, class From> To BitCast(From from)
{
    static_assert(sizeof(To) == sizeof(From), "same size");
    To to;
    std::memcpy(&to, &from, sizeof to);
    return to;
}

std::int32_t ParseInt(const std::wstring& text)
{
    const long value = CConversions::i4FromString(text, UNTRIMMED);
    if (value < INT32_MIN || value > INT32_MAX) {
        throw CZrInvalidValueException(FormatString(LexicalMessages::TooLarge, text.c_str(), L"i4"));
    }
    return static_cast<std::int32_t>(value);
}

void EncodeHex(const std::wstring& text, Octets& octets)
{
    octets.resize(DecodedHexLength(text.size()));
    DecodeHex(text.data(), text.size(), octets.data());
}

void EncodeBase64(const std::wstring& text, Octets& octets)
{
    octets.resize(DecodedBase64Bound(text.size()));
    octets.resize(DecodeBase64(text.data(), text.size(), octets.data()));
}

void EncodeUtf8(const std::wstring& text, Octets& octets)
{
    const TextPiece piece{text.data(), text.size()};
    octets.resize(Utf8Length(&piece, 1));
    WriteUtf8(&piece, 1, octets.data());
}

/// Cuts the octets into items and appends the text of each.
template <class AppendItem> void AppendItems(const unsigned char* octets, unsigned long length,
    unsigned long itemLength, const wchar_t* message, std::wstring& text, AppendItem appendItem)
{
    if (length % itemLength != 0) {
        throw CZrException(message);
    }
    for (unsigned long position = 0; position < length; position += itemLength) {
        if (position != 0) {
            text += L' ';
        }
        appendItem(octets + position);
    }
}

template <class Signed>
void AppendIntegers(const unsigned char* octets, unsigned long length, const wchar_t* message, std::wstring& text)
{
    AppendItems(octets, length, sizeof(Signed), message, text, [&text](const unsigned char* item) {
        NumberText::AppendInteger(static_cast<Signed>(GetBigEndian<std::make_unsigned_t<Signed>>(item)), text);
    });
}

void AppendBooleans(const unsigned char* octets, unsigned long length, std::wstring& text)
{
    const unsigned long unused = length == 0 ? 0 : octets[0] >> 4;
    for (unsigned long bit = BITS_OF_UNUSED_COUNT; bit + unused < 8 * length; ++bit) {
        if (bit != BITS_OF_UNUSED_COUNT) {
            text += L' ';
        }
        ValueText::AppendBoolean((octets[bit / 8] >> (7 - bit % 8) & 1) != 0, text);
    }
}

} // namespace

void Encode(unsigned long algorithm, const std::wstring& text, Octets& octets)
{
    octets.clear();
    switch (algorithm) {
    case Hexadecimal:
    case Uuid: // kept: required behaviour. Any even number of digits, without hyphens.
        return EncodeHex(text, octets);
    case Base64:
        return EncodeBase64(text, octets);
    case Short:
        return PutBigEndian(static_cast<std::uint16_t>(CConversions::i2FromString(text, UNTRIMMED)), octets);
    case Int:
        return PutBigEndian(static_cast<std::uint32_t>(ParseInt(text)), octets);
    case Long:
        return PutBigEndian(static_cast<std::uint64_t>(CConversions::i8FromString(text, UNTRIMMED)), octets);
    case Boolean:
        return octets.push_back(CConversions::booleanFromString(text, UNTRIMMED) ? ENCODED_TRUE : ENCODED_FALSE);
    case Float:
        return PutBigEndian(BitCast<std::uint32_t>(CConversions::r4FromString(text, UNTRIMMED)), octets);
    case Double:
        return PutBigEndian(BitCast<std::uint64_t>(CConversions::r8FromString(text, UNTRIMMED)), octets);
    case Cdata:
        return EncodeUtf8(text, octets);
    default:
        throw CZrException(Message::UNKNOWN_BYTE_ENCODING);
    }
}

void AppendDecoded(unsigned long algorithm, const unsigned char* octets, unsigned long length, std::wstring& text)
{
    switch (algorithm) {
    case Hexadecimal:
        return AppendHex(octets, length, text);
    case Base64:
        text += ZrXmlLib16::EncodeBase64(octets, length);
        return;
    case Short:
        return AppendIntegers<std::int16_t>(octets, length, Message::SHORT_OCTETS_INVALID, text);
    case Int:
        return AppendIntegers<std::int32_t>(octets, length, Message::INT_OCTETS_INVALID, text);
    case Long:
        return AppendIntegers<std::int64_t>(octets, length, Message::LONG_OCTETS_INVALID, text);
    case Boolean:
        return AppendBooleans(octets, length, text);
    case Float:
        return AppendItems(
            octets, length, sizeof(float), Message::FLOAT_OCTETS_INVALID, text, [&text](const unsigned char* item) {
                ValueText::AppendR4(BitCast<float>(GetBigEndian<std::uint32_t>(item)), L"", text);
            });
    case Double:
        return AppendItems(
            octets, length, sizeof(double), Message::DOUBLE_OCTETS_INVALID, text, [&text](const unsigned char* item) {
                ValueText::AppendR8(BitCast<double>(GetBigEndian<std::uint64_t>(item)), L"", text);
            });
    case Uuid:
        return AppendItems(octets, length, UUID_LENGTH, Message::UUID_OCTETS_INVALID, text,
            [&text](const unsigned char* item) { AppendHex(item, UUID_LENGTH, text); });
    default: // kept: required behaviour. Character data in CDATA form is written but not read.
        throw CZrException(Message::UNKNOWN_BYTE_ENCODING);
    }
}

} // namespace ZrXmlLib16::EncodingAlgorithms
