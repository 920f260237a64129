// SPDX-License-Identifier: MIT
#ifndef XML_TREEBUILDER_H
#define XML_TREEBUILDER_H

#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "xml/DocumentStorage.h"

namespace ZrXmlLib16 {

/// The operations of a CXmlDocument that build its tree, for readers, which have the names and texts in the memory of
/// the document. They run for every node and are therefore in line; what is rare is not.
///
/// Borrows the document, which keeps its storage meanwhile.
class TreeBuilder {
public:
    explicit TreeBuilder(CXmlDocument& document)
        : m_document(document)
        , m_storage(document.GetStorage())
    {
    }

    static constexpr std::size_t READ_BEHIND = UTF16_RUN * sizeof(Utf16Unit);

    DocumentStorage& GetStorage() const noexcept { return m_storage; }

    bool HasOpenElement() const noexcept { return !m_document.m_elementStack.empty(); }
    /// The innermost open element.
    /// @throws CZrInvalidStateException when no element is open; so do OpenChild and EndElement.
    CXmlElement& RequireOpenElement() const
    {
        if (!HasOpenElement()) {
            ThrowNoElementOpen();
        }
        return *m_document.m_elementStack.back();
    }
    [[noreturn]] static void ThrowNoElementOpen();

    /// @{
    /// @throws CZrException above the limits of the context.
    /// Replaces the tree.
    CXmlElement& OpenRoot(const XmlName& name);
    CXmlElement& OpenChild(const XmlName& name)
    {
        CXmlElement& parent = RequireOpenElement();
        CXmlElement* const child = parent.AppendChild(NewElement(&parent, name));
        m_document.m_elementStack.push_back(child);
        return *child;
    }
    /// Before the name becomes that of a node; for elements that is done when they are opened.
    void CountName(const XmlName& name)
    {
        if (name.isLong) {
            CountLongName(name);
        }
    }
    /// @}
    void EndElement()
    {
        CXmlElement& element = RequireOpenElement();
        m_document.m_elementStack.pop_back();
        if (m_document.m_elementEnd) {
            OfferElement(element);
        }
    }

    /// Appends an attribute to an element whose attributes nobody has asked for.
    /// @param value in the memory of the document, without carriage returns.
    void AddSharedAttribute(CXmlElement& element, const XmlName& name, const Utf16Unit* value, std::size_t length)
    {
        if (!m_storage.KeepsTexts()) {
            AddParsedAttribute(element, name, value, length);
            return;
        }
        auto* const attribute = new (m_storage.GetAttributePool()) CXmlAttribute(&element, name);
        attribute->m_value.Adopt(value, length);
        element.LinkAttribute(attribute);
    }
    /// The same for a value that is somewhere else and ends with NUL. READ_BEHIND octets behind it can be read.
    void AddAttribute(CXmlElement& element, const XmlName& name, const Utf16Unit* value)
    {
        Arena& arena = m_storage.GetArena();
        if (Utf16Unit* const room =
                m_storage.KeepsTexts() ? arena.FindRoom<Utf16Unit>(LONGEST_SHORT_TEXT + 1) : nullptr) {
            const std::size_t length = CopyShortText(room, value);
            if (length <= LONGEST_SHORT_TEXT) {
                arena.Take(room + length);
                AddSharedAttribute(element, name, room, length);
                return;
            }
        }
        AddParsedAttribute(element, name, value, Utf16Length(value));
    }
    /// The same for a value in which anything may be.
    static void AddParsedAttribute(
        CXmlElement& element, const XmlName& name, const Utf16Unit* value, std::size_t length)
    {
        element.AddParsedAttribute(name, value, length);
    }
    static void AddWideAttribute(CXmlElement& element, const XmlName& name, const std::wstring& value)
    {
        element.AddNamedAttribute(name, value);
    }

    /// Whether the text of an element can be one that lies in the memory of the document already: nothing was appended
    /// so far.
    bool CanShareText(const CXmlElement& element) const noexcept
    {
        return m_storage.KeepsTexts() && element.m_text.IsUntouched();
    }
    /// @param text without carriage returns.
    static void ShareText(CXmlElement& element, const Utf16Unit* text, std::size_t length) noexcept
    {
        element.m_text.Adopt(text, length);
    }
    /// Appends text that is somewhere else, carriage returns left out.
    void AppendText(CXmlElement& element, const Utf16Unit* text, std::size_t length)
    {
        if (CanShareText(element)) { // most texts come in one piece
            Arena& arena = m_storage.GetArena();
            Utf16Unit* const room = arena.FindRoom<Utf16Unit>(length);
            if (room && CopyWithoutCR(room, text, length)) {
                arena.Take(room + length);
                ShareText(element, room, length);
                return;
            }
        }
        element.m_text.AppendUnits(&m_storage, text, length);
    }
    static void SetPosition(CXmlElement& element, TextPosition position) noexcept { element.m_position = position; }

private:
    CXmlElement* NewElement(CXmlElement* parent, const XmlName& name)
    {
        if (m_document.m_elementCount >= m_document.m_maximumElements) {
            ThrowTooManyElements();
        }
        ++m_document.m_elementCount;
        CountName(name);
        return new (m_storage.GetElementPool()) CXmlElement(parent, name);
    }
    [[noreturn]] void ThrowTooManyElements() const;
    void CountLongName(const XmlName& name);
    void OfferElement(CXmlElement& element);

    CXmlDocument& m_document;
    DocumentStorage& m_storage;
};

} // namespace ZrXmlLib16

#endif
