// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/NameText.h"

#include "core/TextArgument.h"

#include <algorithm>
#include <new>
#include <utility>

#include <emmintrin.h>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t BLOCK = 4; // characters that are compared at a time

bool IsBlockSame(const unsigned short* units, const wchar_t* text) noexcept
{
    const __m128i narrow = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(units));
    const __m128i wide = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    const __m128i same = _mm_cmpeq_epi32(_mm_unpacklo_epi16(narrow, _mm_setzero_si128()), wide);
    return _mm_movemask_epi8(same) == 0xFFFF;
}

/// The last block may overlap the one before.
bool AreSame(const unsigned short* units, const wchar_t* text, std::size_t length) noexcept
{
    if (length < BLOCK) {
        return std::equal(units, units + length, text,
            [](unsigned short unit, wchar_t c) { return static_cast<wchar_t>(unit) == c; });
    }
    for (std::size_t at = 0; at + BLOCK < length; at += BLOCK) {
        if (!IsBlockSame(units + at, text + at)) {
            return false;
        }
    }
    return IsBlockSame(units + length - BLOCK, text + length - BLOCK);
}

} // namespace

NameText::NameText(const unsigned short* units, std::size_t length)
    : NameText()
{
    if (length <= CAPACITY) {
        std::copy_n(units, length, m_units);
        m_length = static_cast<unsigned char>(length);
    } else {
        MakeWide(std::wstring(units, units + length));
    }
}

NameText::NameText(const std::wstring& text)
    : NameText()
{
    const auto isUnit = [](wchar_t c) { return static_cast<unsigned int>(c) - 1 < 0xFFFF; };
    if (text.size() <= CAPACITY && std::all_of(text.begin(), text.end(), isUnit)) {
        std::transform(text.begin(), text.end(), m_units, [](wchar_t c) { return static_cast<unsigned short>(c); });
        m_length = static_cast<unsigned char>(text.size());
    } else {
        MakeWide(text);
    }
}

NameText::NameText(const NameText& other)
    : NameText()
{
    *this = other;
}

NameText& NameText::operator=(const NameText& other)
{
    if (this == &other) {
        return *this;
    }
    if (IsWide() || other.IsWide()) {
        std::wstring text;
        other.CopyTo(text);
        Set(text.c_str());
    } else {
        std::memcpy(m_units, other.m_units, sizeof(m_units));
        m_length = other.m_length;
    }
    return *this;
}

void NameText::Set(const wchar_t* text)
{
    text = TextOrEmpty(text);
    if (IsWide()) {
        m_wide = text;
        return;
    }
    m_length = 0;
    std::memset(m_units, 0, sizeof(m_units));
    unsigned char length = 0;
    while (text[length] != 0) {
        if (length == CAPACITY || static_cast<unsigned int>(text[length]) > 0xFFFF) {
            MakeWide(text);
            return;
        }
        m_units[length] = static_cast<unsigned short>(text[length]);
        ++length;
    }
    m_length = length;
}

bool NameText::Is(const std::wstring& text) const noexcept
{
    if (IsWide()) {
        return m_wide == text;
    }
    return text.size() == m_length && AreSame(m_units, text.data(), m_length);
}

void NameText::CopyTo(std::wstring& text) const
{
    if (IsWide()) {
        text = m_wide;
    } else {
        wchar_t wide[CAPACITY];
        std::copy_n(m_units, m_length, wide);
        text.assign(wide, m_length);
    }
}

const std::wstring& NameText::Get()
{
    if (!IsWide()) {
        MakeWide(std::wstring(m_units, m_units + m_length));
    }
    return m_wide;
}

/// The name is not wide before.
void NameText::MakeWide(std::wstring text) noexcept
{
    new (&m_wide) std::wstring(std::move(text));
    m_length = WIDE;
}

} // namespace ZrXmlLib16
