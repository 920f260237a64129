// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_NODETEXT_H
#define ZRXMLLIB16_NODETEXT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

class CXmlAttribute;
class DocumentStorage;
class ZrVariant;

/// What a node shows to its callers by reference. Made when somebody asks for it, and then the only place of the text.
struct NodeForms {
    std::wstring text;                      ///< in wide characters
    std::vector<CXmlAttribute*> attributes; ///< in document order
    bool listsAttributes;                   ///< whether `attributes` is in use
    DocumentStorage* storage;               ///< whose list of forms this is in; null for none
    NodeForms* next;                        ///< in that list
    NodeForms* previous;                    ///< in that list
};

/// The text of an element or attribute: 16-bit units in the memory of the document as the parser delivered them, or the
/// wide form in a NodeForms of its own. A text with a carriage return is always wide.
///
/// The owner passes its document's storage with every operation, null when it was built by hand.
class ZRXML_API NodeText {
public:
    /// Empty.
    NodeText() noexcept
        : m_units(nullptr)
        , m_length(0)
        , m_capacity(0)
    {
    }
    NodeText(const NodeText&) = delete;
    NodeText& operator=(const NodeText&) = delete;
    /// Forms are freed by Release or with the storage.
    ~NodeText() = default;

    /// Whether there is no text.
    bool IsEmpty() const noexcept { return IsWide() ? m_forms->text.empty() : m_length == 0; }
    /// Appends units, carriage returns left out.
    void AppendUnits(DocumentStorage* storage, const unsigned short* units, std::size_t count);
    /// Appends text as it is; the text becomes wide.
    void AppendWide(DocumentStorage* storage, const wchar_t* text, std::size_t length);
    /// Appends text as it is, in units where it can be.
    void AppendCompact(DocumentStorage* storage, const wchar_t* text, std::size_t length);
    /// Takes the units of the value of an attribute. The text is empty before.
    void AssignParsed(DocumentStorage& storage, const unsigned short* units, std::size_t length);
    /// Takes units that lie in the memory of the document as long as that lives, and of which others may know too:
    /// fewer than 2^32 - 1, none a carriage return. The storage keeps texts, and nothing has been appended before. What
    /// is appended later comes behind the units or makes a copy of them: the others never see it.
    void Adopt(const unsigned short* units, std::size_t length) noexcept
    {
        m_units = const_cast<unsigned short*>(units);
        m_length = static_cast<std::uint32_t>(length);
        m_capacity = m_length;
    }
    /// Whether nothing has been appended so far.
    bool IsUntouched() const noexcept { return m_capacity == 0; }
    /// The units of the text, null when there is only the wide form.
    const unsigned short* GetUnits() const noexcept { return IsWide() ? nullptr : m_units; }
    /// Number of these units.
    std::size_t GetUnitCount() const noexcept { return m_length; }
    /// Whether the forms hold the list of attributes.
    bool ListsAttributes() const noexcept { return IsWide() && m_forms->listsAttributes; }
    /// The wide form, made at the first call; it is then updated in place.
    NodeForms& GetForms(DocumentStorage* storage);
    /// The text; widened into the storage's scratch unless the wide form exists. Valid until either changes.
    /// @param storage may be null when the text is wide or empty.
    const std::wstring& Borrow(DocumentStorage* storage) const;
    /// The text in wide characters.
    std::wstring Copy() const;
    /// Stores the value that the text stands for.
    /// @return false when the text is not in the plainest form of the type; the variant is then invalid.
    bool ReadPlain(ItemType type, ZrVariant& value) const;
    /// Stores the text.
    void ReadString(ZrVariant& value) const;
    /// Calls a function with the text, NUL-terminated.
    int Convert(DocumentStorage* storage, int (*function)(const wchar_t* text)) const;
    /// Whether a carriage return is in the text.
    bool ContainsCR() const noexcept;
    /// Frees the forms, and leaves the text empty.
    void Release() noexcept;

private:
    static constexpr std::uint32_t WIDE = UINT32_MAX;

    bool IsWide() const noexcept { return m_capacity == WIDE; }
    void AppendFurtherUnits(DocumentStorage* storage, const unsigned short* units, std::size_t count);
    unsigned short* MakeRoom(DocumentStorage& storage, std::size_t count);

    union {
        unsigned short* m_units;
        NodeForms* m_forms; // when the capacity is WIDE
    };
    std::uint32_t m_length;
    std::uint32_t m_capacity;
};

} // namespace ZrXmlLib16

#endif
