// SPDX-License-Identifier: MIT
#ifndef XML_UTF16TEXT_H
#define XML_UTF16TEXT_H

#include <algorithm>
#include <cstddef>
#include <string>

namespace ZrXmlLib16 {

/// Character of the parser: one UTF-16 unit. Wide text holds one unit per character, so surrogate pairs stay two characters.
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

/// Replaces the wide text by the units.
inline void AssignUtf16(std::wstring& text, const Utf16Unit* units, std::size_t length)
{
    text.resize(length);
    std::transform(units, units + length, text.begin(), ToWide);
}

/// Raises the capacity for `extra` more characters, at least twofold once there is text, so that many small pieces stay cheap.
inline void ReserveAmortised(std::wstring& text, std::size_t extra)
{
    const std::size_t total = text.size() + extra;
    if (total > text.capacity()) {
        text.reserve(text.empty() ? total : std::max(2 * text.capacity(), total));
    }
}

/// Appends the units, carriage returns left out.
inline void AppendUtf16ExcludingCR(std::wstring& text, const Utf16Unit* units, std::size_t length)
{
    constexpr Utf16Unit CARRIAGE_RETURN = 13;
    ReserveAmortised(text, length);
    if (length == 1) {
        if (*units != CARRIAGE_RETURN) {
            text.push_back(ToWide(*units));
        }
        return;
    }
    wchar_t block[256];
    for (const Utf16Unit* const end = units + length; units != end;) {
        const Utf16Unit* const stop = units + std::min<std::ptrdiff_t>(end - units, 256);
        const auto carriageReturns = std::count(units, stop, CARRIAGE_RETURN);
        if (carriageReturns == 0) {
            std::transform(units, stop, block, ToWide);
        } else {
            std::copy_if(units, stop, block, [](Utf16Unit unit) { return unit != CARRIAGE_RETURN; });
        }
        text.append(block, static_cast<std::size_t>(stop - units - carriageReturns));
        units = stop;
    }
}

} // namespace ZrXmlLib16

#endif
