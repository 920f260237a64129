// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/NameText.h"

#include "core/TextArgument.h"

#include <algorithm>
#include <new>
#include <utility>

namespace ZrXmlLib16 {

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
    return text.size() == m_length
        && std::equal(m_units, m_units + m_length, text.data(),
            [](unsigned short unit, wchar_t c) { return static_cast<wchar_t>(unit) == c; });
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
