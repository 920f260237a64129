// SPDX-License-Identifier: MIT
#ifndef XML_UTF16TEXT_H
#define XML_UTF16TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include <emmintrin.h>

namespace ZrXmlLib16 {

/// Character of the parser: one UTF-16 unit. Wide text holds one unit per character, so surrogate pairs stay two
/// characters.
using Utf16Unit = unsigned short;

inline std::size_t Utf16Length(const Utf16Unit* text) noexcept
{
    const Utf16Unit* end = text;
    while (*end) {
        ++end;
    }
    return static_cast<std::size_t>(end - text);
}

inline wchar_t ToWide(Utf16Unit unit) noexcept
{
    return static_cast<wchar_t>(unit);
}

/// Units that are widened in one go, on the stack.
constexpr std::size_t UTF16_BLOCK_LENGTH = 256;

/// Replaces the wide text by the units.
inline void AssignUtf16(std::wstring& text, const Utf16Unit* units, std::size_t length)
{
    if (length <= UTF16_BLOCK_LENGTH) {
        wchar_t block[UTF16_BLOCK_LENGTH];
        std::transform(units, units + length, block, ToWide);
        text.assign(block, length);
    } else {
        text.resize(length);
        std::transform(units, units + length, text.begin(), ToWide);
    }
}

/// Raises the capacity for `extra` more characters. Once there is text, it at least doubles, so that many small pieces
/// stay cheap.
inline void ReserveAmortised(std::wstring& text, std::size_t extra)
{
    constexpr std::size_t FIRST_STEP = 15;
    const std::size_t total = text.size() + extra;
    if (!text.empty() && total > text.capacity()) {
        text.reserve(std::max({2 * text.capacity(), total, FIRST_STEP}));
    }
}

/// Widens the units into `output`, carriage returns left out.
/// @return the end of what was written.
inline wchar_t* WidenExcludingCR(wchar_t* output, const Utf16Unit* units, std::size_t length)
{
    constexpr Utf16Unit CARRIAGE_RETURN = 13;
    const Utf16Unit* const end = units + length;
    if (length < 16) { // too short for the two vectorised passes
        for (; units != end; ++units) {
            *output = ToWide(*units);
            output += *units != CARRIAGE_RETURN;
        }
        return output;
    }
    if (std::count(units, end, CARRIAGE_RETURN) == 0) { // nearly always: the parser normalises line ends
        return std::transform(units, end, output, ToWide);
    }
    return std::copy_if(units, end, output, [](Utf16Unit unit) { return unit != CARRIAGE_RETURN; });
}

/// The units of one word.
template <class Word> Word LoadWord(const Utf16Unit* units) noexcept
{
    Word word = 0;
    std::memcpy(&word, units, sizeof(word));
    return word;
}

/// Nonzero when one of the units is a carriage return.
template <class Word> Word FindCR(Word word) noexcept
{
    constexpr Word ONES = static_cast<Word>(0x0001000100010001u);
    constexpr Word CARRIAGE_RETURNS = 13 * ONES;
    const Word difference = word ^ CARRIAGE_RETURNS; // a unit is 0 where there is a carriage return
    return (difference - ONES) & ~difference & (ONES << 15);
}

/// Copies the units of one word.
/// @return nonzero when one of them is a carriage return.
template <class Word> Word CopyWord(Utf16Unit* output, const Utf16Unit* units) noexcept
{
    const Word word = LoadWord<Word>(units);
    std::memcpy(output, &word, sizeof(word));
    return FindCR(word);
}

inline bool ContainsCR(const Utf16Unit* units, std::size_t length) noexcept
{
    constexpr Utf16Unit CARRIAGE_RETURN = 13;
    if (length < 4) {
        return std::find(units, units + length, CARRIAGE_RETURN) != units + length;
    }
    std::uint64_t found = FindCR(LoadWord<std::uint64_t>(units + length - 4));
    for (std::size_t position = 0; position + 4 < length; position += 4) {
        found |= FindCR(LoadWord<std::uint64_t>(units + position));
    }
    return found != 0;
}

/// Units that are copied in one go.
constexpr std::size_t UTF16_RUN = 8;

/// The highest bits of the octets tell where the units are that have this value.
inline unsigned FindUnit(__m128i run, Utf16Unit unit) noexcept
{
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi16(run, _mm_set1_epi16(static_cast<short>(unit)))));
}

inline __m128i CopyRun(Utf16Unit* output, const Utf16Unit* units) noexcept
{
    const __m128i run = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(output), run);
    return run;
}

/// Copies the units. Short texts are the rule, and their lengths cannot be foretold: runs that overlap need few
/// branches.
/// @return false when a carriage return is among them.
inline bool CopyWithoutCR(Utf16Unit* output, const Utf16Unit* units, std::size_t length) noexcept
{
    constexpr Utf16Unit CARRIAGE_RETURN = 13;
    if (length >= UTF16_RUN) {
        unsigned found = 0;
        for (std::size_t position = 0; position + UTF16_RUN < length; position += UTF16_RUN) {
            found |= FindUnit(CopyRun(output + position, units + position), CARRIAGE_RETURN);
        }
        const std::size_t last = length - UTF16_RUN;
        return (found | FindUnit(CopyRun(output + last, units + last), CARRIAGE_RETURN)) == 0;
    }
    if (length >= 4) {
        return (CopyWord<std::uint64_t>(output, units)
                   | CopyWord<std::uint64_t>(output + length - 4, units + length - 4))
            == 0;
    }
    if (length >= 2) {
        return (CopyWord<std::uint32_t>(output, units)
                   | CopyWord<std::uint32_t>(output + length - 2, units + length - 2))
            == 0;
    }
    if (length == 1) {
        *output = *units;
    }
    return length == 0 || *units != CARRIAGE_RETURN;
}

/// Copies the units, carriage returns left out.
/// @return the end of what was written.
inline Utf16Unit* CopyExcludingCR(Utf16Unit* output, const Utf16Unit* units, std::size_t length)
{
    if (CopyWithoutCR(output, units, length)) { // nearly always: the parser normalises line ends
        return output + length;
    }
    return std::copy_if(units, units + length, output, [](Utf16Unit unit) { return unit != 13; });
}

/// Length of what CopyShortText copies.
constexpr std::size_t LONGEST_SHORT_TEXT = 63;

/// Copies a text that ends with NUL while it finds its end, if that comes soon.
/// @param output has room for LONGEST_SHORT_TEXT + 1 units.
/// @param text of which whole runs can be read.
/// @return the length; more than LONGEST_SHORT_TEXT when the text is longer or has a carriage return.
inline std::size_t CopyShortText(Utf16Unit* output, const Utf16Unit* text) noexcept
{
    for (std::size_t position = 0; position < LONGEST_SHORT_TEXT; position += UTF16_RUN) {
        const __m128i run = CopyRun(output + position, text + position);
        const unsigned ends = FindUnit(run, 0);
        const unsigned returns = FindUnit(run, 13);
        if ((ends | returns) != 0) {
            const unsigned first = static_cast<unsigned>(__builtin_ctz(ends | returns));
            return ends >> first & 1 ? position + first / sizeof(Utf16Unit) : SIZE_MAX;
        }
    }
    return SIZE_MAX;
}

/// Whether every character is a single unit, and none a carriage return.
inline bool IsUtf16WithoutCR(const wchar_t* text, std::size_t length) noexcept
{
    return std::all_of(
        text, text + length, [](wchar_t c) { return static_cast<unsigned int>(c) <= 0xFFFF && c != L'\r'; });
}

} // namespace ZrXmlLib16

#endif
