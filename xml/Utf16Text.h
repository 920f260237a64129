// SPDX-License-Identifier: MIT
#ifndef XML_UTF16TEXT_H
#define XML_UTF16TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

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

/// Whether the octets at two places, which need no alignment, are the same.
template <std::size_t Count> bool SameBytes(const void* left, const void* right) noexcept
{
    return std::memcmp(left, right, Count) == 0;
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

/// Copies the units, carriage returns left out. Short texts are the rule, and their lengths cannot be foretold: words
/// that overlap need few branches.
/// @return the end of what was written.
inline Utf16Unit* CopyExcludingCR(Utf16Unit* output, const Utf16Unit* units, std::size_t length)
{
    constexpr Utf16Unit CARRIAGE_RETURN = 13;
    std::uint64_t found = 0;
    if (length >= 4) {
        for (std::size_t position = 0; position + 4 < length; position += 4) {
            found |= CopyWord<std::uint64_t>(output + position, units + position);
        }
        found |= CopyWord<std::uint64_t>(output + length - 4, units + length - 4);
    } else if (length >= 2) {
        found =
            CopyWord<std::uint32_t>(output, units) | CopyWord<std::uint32_t>(output + length - 2, units + length - 2);
    } else if (length == 1) {
        *output = *units;
        found = *units == CARRIAGE_RETURN;
    }
    if (found == 0) { // nearly always: the parser normalises line ends
        return output + length;
    }
    return std::copy_if(units, units + length, output, [](Utf16Unit unit) { return unit != CARRIAGE_RETURN; });
}

/// Whether every character is a single unit.
inline bool IsUtf16(const wchar_t* text, std::size_t length) noexcept
{
    return std::all_of(text, text + length, [](wchar_t c) { return static_cast<unsigned int>(c) <= 0xFFFF; });
}

} // namespace ZrXmlLib16

#endif
