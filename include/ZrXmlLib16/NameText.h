// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_NAMETEXT_H
#define ZRXMLLIB16_NAMETEXT_H

#include "ZrXmlLib16/Export.h"

#include <cstddef>
#include <cstring>
#include <string>

namespace ZrXmlLib16 {

/// The element name of an object. Names of up to 16 units take no memory of their own, until somebody asks for the wide
/// form by reference; from then on that is the only form.
class ZRXML_API NameText {
public:
    NameText() noexcept
        : m_units{}
        , m_length(0)
    {
    }
    /// @{
    /// @param units without NUL.
    NameText(const unsigned short* units, std::size_t length);
    /// The whole text; what is behind a NUL is kept, in the wide form.
    explicit NameText(const std::wstring& text);
    /// @}
    NameText(const NameText& other);
    NameText& operator=(const NameText& other);
    ~NameText()
    {
        if (IsWide()) {
            m_wide.~basic_string();
        }
    }

    /// @param text null is empty; may be part of the name, which is empty after a failure.
    void Set(const wchar_t* text);
    /// @{
    /// Whether the names are the same; never makes the wide form.
    bool Is(const std::wstring& text) const noexcept;
    bool Is(const NameText& other) const noexcept
    {
        if (IsWide() || other.IsWide()) {
            return IsWide() ? other.Is(m_wide) : Is(other.m_wide);
        }
        return m_length == other.m_length && std::memcmp(m_units, other.m_units, sizeof(m_units)) == 0;
    }
    /// @}
    /// The wide form where it exists, else null.
    const std::wstring* FindWide() const noexcept { return IsWide() ? &m_wide : nullptr; }
    /// Replaces the text by the name, reusing its storage.
    void CopyTo(std::wstring& text) const;
    /// The wide form; updated in place when the name changes.
    const std::wstring& Get();

private:
    static constexpr unsigned char CAPACITY = 16;
    static constexpr unsigned char WIDE = 0xFF;

    bool IsWide() const noexcept { return m_length == WIDE; }
    void MakeWide(std::wstring text) noexcept;

    union {
        unsigned short m_units[CAPACITY]; // zero behind the name
        std::wstring m_wide;
    };
    unsigned char m_length;
};

} // namespace ZrXmlLib16

#endif
