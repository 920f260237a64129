// SPDX-License-Identifier: MIT
#ifndef XML_NODEACCESS_H
#define XML_NODEACCESS_H

#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16/XmlElement.h"
#include "xml/DocumentStorage.h"

namespace ZrXmlLib16 {

class CXmlGeneratedClass;
class INillable;
class NameText;
class ZrVariant;

/// How the walks and the builders of trees reach nodes without the public forms, which take memory of their own as soon
/// as somebody asks for them.
class NodeAccess {
public:
    static constexpr std::size_t NO_TAKER = static_cast<std::size_t>(-1);

    /// What is known about the class of an object that is read from the element; null for an element that was built by
    /// hand.
    static ClassMemory::Entry* FindClass(const CXmlElement& element, const std::type_info& type, const void* classInfo)
    {
        const XmlName& name = *element.m_name;
        ClassMemory::Entry* const last = name.objectClass;
        const bool isSame = last && last->type == &type && last->classInfo == classInfo;
        return isSame ? last : LookUpClass(name, type, classInfo);
    }
    /// Memory of the document of an element that was not built by hand.
    static Arena& GetArena(const CXmlElement& element);
    /// The object as INillable, null when it is none.
    static INillable* FindNillable(const CXmlElement& element, CXmlGeneratedClass& object, const void* classInfo);

    /// The local name in the form in which objects keep theirs.
    static const NameText& GetObjectName(const CXmlElement& element) { return element.m_name->objectName; }
    static const NameText& GetObjectName(const CXmlAttribute& attribute) { return attribute.m_name->objectName; }

    /// Says that another walk over the element's document begins, with records of its own.
    static void BeginWalk(const CXmlElement& element);
    /// Whether the record is known to have the name and namespace of the element.
    static bool IsKnownAs(const CXmlElement& element, const void* record)
    {
        const XmlName& name = *element.m_name;
        return name.element.record == record && name.element.walk == name.storage->GetWalk();
    }
    /// Remembers that it has, for this walk.
    static void KnowAs(const CXmlElement& element, const void* record);
    /// Whether the record took an attribute of this name earlier in this walk.
    static bool IsTaker(const CXmlAttribute& attribute, const void* record)
    {
        const XmlName& name = *attribute.m_name;
        return name.attribute.record == record && name.attribute.walk == name.storage->GetWalk();
    }
    /// The index of the record of a list that took an attribute of this name earlier in this walk; NO_TAKER when none
    /// did.
    static std::size_t FindTaker(const CXmlAttribute& attribute, const void* records)
    {
        const XmlName& name = *attribute.m_name;
        const bool isKnown = name.attribute.records == records && name.attribute.record
            && name.attribute.walk == name.storage->GetWalk();
        return isKnown ? name.attribute.index : NO_TAKER;
    }
    /// Remembers it, for this walk.
    static void RememberTaker(
        const CXmlAttribute& attribute, const void* record, const void* records, std::size_t index);
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
    [[gnu::always_inline]] static void ParseText(
        const CXmlElement& element, ItemType type, CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
    {
        Parse(element.m_text, element.GetStorage(), type, rule, result);
    }
    [[gnu::always_inline]] static void ParseValue(
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
    /// Appends units of UTF-16, carriage returns left out.
    static void AppendUnits(CXmlElement& element, const unsigned short* units, std::size_t count)
    {
        element.m_text.AppendUnits(element.GetStorage(), units, count);
    }

private:
    static ClassMemory::Entry* LookUpClass(const XmlName& name, const std::type_info& type, const void* classInfo);
    [[gnu::always_inline]] static void Parse(const NodeText& text, DocumentStorage* storage, ItemType type,
        CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
    {
        if (type == ItemType_string && KeepsText(text, rule)) {
            text.ReadString(result);
        } else if (!text.ReadPlain(type, result)) {
            ParseLonger(text, storage, type, rule, result);
        }
    }
    static void ParseLonger(const NodeText& text, DocumentStorage* storage, ItemType type,
        CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result);
    static bool KeepsText(const NodeText& text, CWhitespaceUtils::WhitespaceRule rule)
    {
        return rule == CWhitespaceUtils::Rule_None || (rule == CWhitespaceUtils::Rule_Preserve && !text.ContainsCR());
    }
};

} // namespace ZrXmlLib16

#endif
