// SPDX-License-Identifier: MIT
#ifndef XML_NODEACCESS_H
#define XML_NODEACCESS_H

#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16/XmlElement.h"

namespace ZrXmlLib16 {

class ClassMemory;
class CXmlGeneratedClass;
class INillable;
class ZrVariant;

/// How the walks and the builders of trees reach nodes without the public forms, which take memory of their own as soon
/// as somebody asks for them.
class NodeAccess {
public:
    /// Null for an element that was built by hand.
    static ClassMemory* GetClassMemory(const CXmlElement& element);
    /// The object as INillable, null when it is none.
    static INillable* FindNillable(const CXmlElement& element, CXmlGeneratedClass& object, const void* classInfo);

    /// Says that another walk over the element's document begins, with records of its own.
    static void BeginWalk(const CXmlElement& element);
    /// Whether the record is known to have the name and namespace of the element.
    static bool IsKnownAs(const CXmlElement& element, const void* record);
    /// Remembers that it has, for this walk.
    static void KnowAs(const CXmlElement& element, const void* record);
    /// Whether the names are known to be the same; they may be without.
    static bool SharesName(const CXmlElement& left, const CXmlElement& right)
    {
        return left.m_name.get() == right.m_name.get();
    }

    /// @{
    /// Have what a walk comes to next loaded into the cache while something else is done: the content of an element, or
    /// its sibling.
    static void PrefetchContent(const CXmlElement& element)
    {
        __builtin_prefetch(element.m_lastAttribute);
        __builtin_prefetch(element.m_firstChild);
    }
    static void PrefetchSibling(const CXmlElement& element) { __builtin_prefetch(element.m_nextSibling); }
    /// @}

    /// The attributes in document order; null ends them.
    static CXmlAttribute* GetFirstAttribute(const CXmlElement& element)
    {
        return element.m_lastAttribute ? element.m_lastAttribute->m_next : nullptr;
    }
    static CXmlAttribute* GetNextAttribute(const CXmlElement& element, const CXmlAttribute& attribute)
    {
        return &attribute == element.m_lastAttribute ? nullptr : attribute.m_next;
    }

    static bool HasText(const CXmlElement& element) { return !element.m_text.IsEmpty(); }
    /// The text or value, which lies in the document's scratch unless the public form exists: valid until the next call
    /// for the same document.
    static const std::wstring& GetText(const CXmlElement& element)
    {
        return element.m_text.Borrow(element.GetStorage());
    }
    static const std::wstring& GetValue(const CXmlAttribute& attribute)
    {
        return attribute.m_value.Borrow(attribute.GetStorage());
    }
    /// What a function makes of the text or value.
    static int ConvertText(const CXmlElement& element, int (*function)(const wchar_t* text))
    {
        return element.m_text.Convert(element.GetStorage(), function);
    }
    static int ConvertValue(const CXmlAttribute& attribute, int (*function)(const wchar_t* text))
    {
        return attribute.m_value.Convert(attribute.GetStorage(), function);
    }
    static std::wstring CopyText(const CXmlElement& element) { return element.m_text.Copy(); }
    static void ReadString(const CXmlElement& element, ZrVariant& value) { element.m_text.ReadString(value); }
    static std::wstring CopyAttribute(
        const CXmlElement& element, const std::wstring& localName, const std::wstring& namespaceUri)
    {
        const CXmlAttribute* const attribute = element.FindAttribute(localName, namespaceUri);
        return attribute ? attribute->m_value.Copy() : std::wstring();
    }
    /// Parse the text or value and store it.
    static void ParseText(
        const CXmlElement& element, ItemType type, CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
    {
        Parse(element.m_text, element.GetStorage(), type, rule, result);
    }
    static void ParseValue(
        const CXmlAttribute& attribute, ItemType type, CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
    {
        Parse(attribute.m_value, attribute.GetStorage(), type, rule, result);
    }

    /// The text of an element or the value of its last attribute as units in the memory of the document, where it is
    /// just these; null when it is not.
    static const unsigned short* FindTextUnits(const CXmlElement& element, std::size_t length)
    {
        return element.m_text.GetUnitCount() == length ? element.m_text.GetUnits() : nullptr;
    }
    static const unsigned short* FindLastValueUnits(const CXmlElement& element)
    {
        return element.m_lastAttribute->m_value.GetUnits();
    }
    /// Makes units in the memory of the document the text of an element, which has none.
    static void ShareText(CXmlElement& element, const unsigned short* units, std::size_t length)
    {
        element.m_text.Share(*element.GetStorage(), units, length);
    }
    /// Appends units of UTF-16, carriage returns left out.
    static void AppendUnits(CXmlElement& element, const unsigned short* units, std::size_t count)
    {
        element.m_text.AppendUnits(element.GetStorage(), units, count);
    }

private:
    static void Parse(const NodeText& text, DocumentStorage* storage, ItemType type,
        CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result);
};

} // namespace ZrXmlLib16

#endif
