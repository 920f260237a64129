// SPDX-License-Identifier: MIT
#include "fastinfoset/EncodedString.h"

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/FIVocabulary.h"
#include "fastinfoset/EncodingAlgorithms.h"
#include "streams/Utf8Decoding.h"
#include "xml/Utf16Text.h"

namespace ZrXmlLib16 {

namespace {

bool HasTableNumber(EncodedString::Encoding encoding)
{
    return encoding >= EncodedString::RestrictedAlphabet;
}

[[noreturn]] void ThrowInvalidAlphabet()
{
    ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_ALPHABET);
}

void AppendNibbles(std::wstring& text, OctetString content, const std::wstring& alphabet)
{
    constexpr unsigned FILLER = 0x0F;
    ReserveAmortised(text, 2 * content.length);
    const std::size_t before = text.size();
    text.resize(before + 2 * content.length);
    wchar_t* output = &text[before];
    for (unsigned long i = 0; i < 2 * content.length; ++i) {
        const unsigned octet = content.octets[i / 2];
        const unsigned code = i % 2 == 0 ? octet >> 4 : octet & FILLER;
        if (code == FILLER) {
            break;
        }
        if (code >= alphabet.size()) {
            ThrowInvalidAlphabet();
        }
        *output++ = alphabet[code];
    }
    text.resize(static_cast<std::size_t>(output - text.data()));
}

void AppendOctets(std::wstring& text, OctetString content, const std::wstring& alphabet)
{
    ReserveAmortised(text, content.length);
    for (unsigned long i = 0; i < content.length; ++i) {
        const unsigned code = content.octets[i];
        if (code >= alphabet.size()) {
            ThrowInvalidAlphabet();
        }
        text += alphabet[code];
    }
}

} // namespace

EncodedString ReadEncodedStringOnBit3(OctetReader& input, unsigned char first)
{
    const auto encoding = static_cast<EncodedString::Encoding>(first >> 4 & 3);
    if (!HasTableNumber(encoding)) {
        return {encoding, 0, input.ReadStringOnBit5(first)};
    }
    const unsigned char second = input.Fetch();
    const unsigned number = ((first & 0x0Fu) << 4 | second >> 4) + 1;
    return {encoding, number, input.ReadStringOnBit5(second)};
}

EncodedString ReadEncodedStringOnBit5(OctetReader& input, unsigned char first)
{
    const auto encoding = static_cast<EncodedString::Encoding>(first >> 2 & 3);
    if (!HasTableNumber(encoding)) {
        return {encoding, 0, input.ReadStringOnBit7(first)};
    }
    const unsigned char second = input.Fetch();
    const unsigned number = ((first & 3u) << 6 | second >> 2) + 1;
    return {encoding, number, input.ReadStringOnBit7(second)};
}

void AppendEncodedString(std::wstring& text, const EncodedString& string, const CFIVocabulary& vocabulary)
{
    const OctetString content = string.content;
    switch (string.encoding) {
    case EncodedString::Utf8:
        text += DecodeUtf8(content.octets, content.length);
        break;
    case EncodedString::Utf16BE:
        text += CEncoder::Utf16ToUnicode(content.octets, content.length, true);
        break;
    case EncodedString::RestrictedAlphabet:
        AppendRestrictedAlphabet(text, content, vocabulary.GetRestrictedAlphabet(string.number));
        break;
    case EncodedString::EncodingAlgorithm:
        EncodingAlgorithms::AppendDecoded(string.number, content.octets, content.length, text);
        break;
    }
}

void AppendRestrictedAlphabet(std::wstring& text, OctetString content, const std::wstring& alphabet)
{
    if (alphabet.size() >= 8 && alphabet.size() <= 15) {
        AppendNibbles(text, content, alphabet);
    } else if (alphabet.size() >= 128 && alphabet.size() <= 255) {
        AppendOctets(text, content, alphabet);
    } else {
        ThrowInvalidAlphabet();
    }
}

} // namespace ZrXmlLib16
