// SPDX-License-Identifier: MIT
#ifndef STREAMS_PLAINTEXT_H
#define STREAMS_PLAINTEXT_H

#include <cstddef>

#include <emmintrin.h>

namespace ZrXmlLib16 {

/// Octets that WidenPlainText reads and writes at a time.
constexpr std::size_t PLAIN_BLOCK = 16;

/// Widens text that is nothing but ASCII without NUL and carriage return, as most is.
/// @param octets of which whole blocks can be read, so up to PLAIN_BLOCK - 1 behind the end.
/// @param length at least 1.
/// @param output has room for whole blocks.
/// @return false for any other text; the output then is undefined.
inline bool WidenPlainText(const unsigned char* octets, std::size_t length, unsigned short* output) noexcept
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i carriageReturns = _mm_set1_epi8('\r');
    for (;;) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(octets));
        auto* const units = reinterpret_cast<__m128i*>(output);
        _mm_storeu_si128(units, _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(units + 1, _mm_unpackhi_epi8(block, zero));
        const __m128i excluded = _mm_or_si128(_mm_cmpeq_epi8(block, zero), _mm_cmpeq_epi8(block, carriageReturns));
        // The highest bit tells what is not ASCII.
        const auto special = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(excluded, block)));
        if (length <= PLAIN_BLOCK) {
            return special << (32 - length) == 0; // what lies behind the end does not count
        }
        if (special != 0) {
            return false;
        }
        octets += PLAIN_BLOCK;
        output += PLAIN_BLOCK;
        length -= PLAIN_BLOCK;
    }
}

/// Narrows text that is nothing but single units without NUL and carriage return.
/// @return false for any other text; the output then is undefined.
inline bool NarrowPlainText(const wchar_t* text, std::size_t length, unsigned short* output) noexcept
{
    bool isPlain = true;
    for (std::size_t i = 0; i < length; ++i) {
        const auto character = static_cast<unsigned>(text[i]);
        output[i] = static_cast<unsigned short>(character);
        isPlain &= character - 1 < 0xFFFF && character != '\r';
    }
    return isPlain;
}

} // namespace ZrXmlLib16

#endif
