// SPDX-License-Identifier: MIT
#include "streams/Utf8Decoding.h"

#include "streams/LargePages.h"
#include "streams/UnicodeText.h"

#include <emmintrin.h>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long ASCII_RUN = 8;

void Store(__m128i units, void* output)
{
    _mm_storeu_si128(static_cast<__m128i*>(output), units);
}

void WidenRun(__m128i units, unsigned short* output)
{
    Store(units, output);
}

void WidenRun(__m128i units, wchar_t* output)
{
    Store(_mm_unpacklo_epi16(units, _mm_setzero_si128()), output);
    Store(_mm_unpackhi_epi16(units, _mm_setzero_si128()), output + ASCII_RUN / 2);
}

/// Widens one run. @return a bit for every octet that is not ASCII; the output from the first of them on is undefined.
template <class Unit> unsigned DecodeAsciiRun(const unsigned char* data, Unit* output)
{
    const __m128i octets = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(data));
    WidenRun(_mm_unpacklo_epi8(octets, _mm_setzero_si128()), output);
    return static_cast<unsigned>(_mm_movemask_epi8(octets));
}

/// Decodes ASCII up to the first other octet or the last few. @return the number of octets.
template <class Unit> unsigned long DecodeAscii(const unsigned char* data, unsigned long length, Unit* output)
{
    unsigned long at = 0;
    while (length - at >= ASCII_RUN) {
        if (const unsigned others = DecodeAsciiRun(data + at, output + at)) {
            return at + static_cast<unsigned>(__builtin_ctz(others));
        }
        at += ASCII_RUN;
    }
    return at;
}

/// Decodes what most short texts are, with few branches.
/// @return false when it met anything else; the output then is undefined.
template <class Unit> bool DecodeShortAscii(const unsigned char* data, unsigned long length, Unit* output)
{
    if (length < ASCII_RUN) {
        unsigned bits = 0;
        for (unsigned long at = 0; at < length; ++at) {
            bits |= data[at];
            output[at] = static_cast<Unit>(data[at]);
        }
        return bits < 0x80;
    }
    // The last run may begin within the one before.
    return length - DecodeAscii(data, length, output) < ASCII_RUN
        && DecodeAsciiRun(data + length - ASCII_RUN, output + length - ASCII_RUN) == 0;
}

bool IsTail(unsigned char octet)
{
    return (octet & 0xC0) == 0x80;
}

std::uint32_t TailBits(unsigned char octet)
{
    return octet & 0x3FU;
}

struct DecodedSequence {
    std::uint32_t codePoint;
    unsigned long length; // 0: the octets do not begin a well-formed sequence
};

constexpr DecodedSequence ILL_FORMED = {0, 0};

DecodedSequence DecodeThree(const unsigned char* data, unsigned long available)
{
    if (available < 3 || !IsTail(data[1]) || !IsTail(data[2])) {
        return ILL_FORMED;
    }
    const std::uint32_t value = (data[0] & 0x0FU) << 12 | TailBits(data[1]) << 6 | TailBits(data[2]);
    const bool isValid = value >= 0x800 && !IsHighSurrogate(value) && !IsLowSurrogate(value);
    return isValid ? DecodedSequence{value, 3} : ILL_FORMED;
}

DecodedSequence DecodeFour(const unsigned char* data, unsigned long available)
{
    if (available < 4 || !IsTail(data[1]) || !IsTail(data[2]) || !IsTail(data[3])) {
        return ILL_FORMED;
    }
    const std::uint32_t value =
        (data[0] & 0x07U) << 18 | TailBits(data[1]) << 12 | TailBits(data[2]) << 6 | TailBits(data[3]);
    return value >= 0x10000 && value <= LAST_CODE_POINT ? DecodedSequence{value, 4} : ILL_FORMED;
}

/// Decodes the sequence at the beginning of the octets, of which there is at least one.
DecodedSequence DecodeSequence(const unsigned char* data, unsigned long available)
{
    const unsigned char lead = data[0];
    if (lead < 0x80) {
        return {lead, 1};
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return available >= 2 && IsTail(data[1]) ? DecodedSequence{(lead & 0x1FU) << 6 | TailBits(data[1]), 2}
                                                 : ILL_FORMED;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return DecodeThree(data, available);
    }
    return lead >= 0xF0 && lead <= 0xF4 ? DecodeFour(data, available) : ILL_FORMED;
}

// No sequence has more units than octets.
template <class Unit> Unit* Decode(const unsigned char* data, unsigned long length, Unit* output)
{
    constexpr unsigned long SHORT = 128;
    if (length <= SHORT && DecodeShortAscii(data, length, output)) {
        return output + length;
    }
    unsigned long at = 0;
    bool inIllFormedRun = false;
    while (at < length) {
        const unsigned long asciiLength = DecodeAscii(data + at, length - at, output);
        if (asciiLength != 0) {
            at += asciiLength;
            output += asciiLength;
            inIllFormedRun = false;
            continue;
        }
        const DecodedSequence sequence = DecodeSequence(data + at, length - at);
        if (sequence.length == 0) {
            if (!inIllFormedRun) {
                *output++ = static_cast<Unit>(REPLACEMENT_CHARACTER);
            }
            inIllFormedRun = true;
            ++at;
            continue;
        }
        inIllFormedRun = false;
        at += sequence.length;
        if (sequence.codePoint < 0x10000) {
            *output++ = static_cast<Unit>(sequence.codePoint);
        } else {
            *output++ = static_cast<Unit>(HighSurrogate(sequence.codePoint));
            *output++ = static_cast<Unit>(LowSurrogate(sequence.codePoint));
        }
    }
    return output;
}

} // namespace

std::wstring DecodeUtf8(const unsigned char* data, unsigned long length)
{
    std::wstring text(length, L'\0');
    const wchar_t* const end = DecodeUtf8(data, length, &text[0]);
    text.resize(static_cast<unsigned long>(end - text.data()));
    return text;
}

WideText DecodeUtf8Text(const unsigned char* data, unsigned long length)
{
    WideText text;
    text.characters.reset(new wchar_t[length + 1]); // left uninitialised
    PreferLargePages(text.characters.get(), (length + 1) * sizeof(wchar_t));
    text.length = static_cast<unsigned long>(DecodeUtf8(data, length, text.characters.get()) - text.characters.get());
    text.characters[text.length] = L'\0';
    return text;
}

wchar_t* DecodeUtf8(const unsigned char* data, unsigned long length, wchar_t* output)
{
    return Decode(data, length, output);
}

unsigned short* DecodeUtf8(const unsigned char* data, unsigned long length, unsigned short* output)
{
    return Decode(data, length, output);
}

} // namespace ZrXmlLib16
