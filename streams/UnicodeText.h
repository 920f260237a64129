// SPDX-License-Identifier: MIT
#ifndef STREAMS_UNICODETEXT_H
#define STREAMS_UNICODETEXT_H

#include <cstdint>

namespace ZrXmlLib16 {

constexpr std::uint32_t REPLACEMENT_CHARACTER = 0xFFFD;
constexpr std::uint32_t LAST_CODE_POINT = 0x10FFFF;

constexpr bool IsHighSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr std::uint32_t JoinSurrogates(std::uint32_t high, std::uint32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

/// Surrogates of a supplementary character.
constexpr wchar_t HighSurrogate(std::uint32_t codePoint)
{
    return static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
}

constexpr wchar_t LowSurrogate(std::uint32_t codePoint)
{
    return static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
}

} // namespace ZrXmlLib16

#endif
