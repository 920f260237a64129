// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_NAMETEXT_H
#define ZRXMLLIB16_NAMETEXT_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// The element name of an object. Names of up to 16 units take no memory of their own, until somebody asks for the wide
/// form by reference; from then on that is the only form.
class ZRXML_API NameText {
public:
    NameText() noexcept
        : m_length(0)
    {
    }
    NameText(const NameText& other);
    NameText& operator=(const NameText& other);
    ~NameText()
    {
        if (IsWide()) {
            m_wide.~basic_string();
        }
    }

    /// @param text null is empty; may be part of the name.
    void Set(const wchar_t* text);
    /// Whether the name is the text; never makes the wide form.
    bool Is(const std::wstring& text) const noexcept;
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
        unsigned short m_units[CAPACITY];
        std::wstring m_wide;
    };
    unsigned char m_length;
};

} // namespace ZrXmlLib16

#endif
