// SPDX-License-Identifier: MIT
#ifndef METADATA_RECORDACCESS_H
#define METADATA_RECORDACCESS_H

#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/ElementInfo.h"
#include "metadata/NamespaceRule.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

/// The door through which the kinds and policies of this folder reach the protected operations of records, objects and
/// writers.
class CRecordAccess {
public:
    static bool WritePrim(const CElementInfo& record, const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer)
    {
        return record.ElementToXmlPrim(context, object, writer);
    }
    static bool WriteEnum(const CElementInfo& record, const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer)
    {
        return record.ElementToXmlEnum(context, object, writer, record.m_enumToString);
    }
    static bool WriteClass(const CElementInfo& record, const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer)
    {
        return record.ElementToXmlCls(context, object, writer, false);
    }
    static bool WriteItems(const CElementInfo& record, const ZrXmlLib16::CXmlCollectionBase* collection,
        const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlWriter* writer)
    {
        return record.WriteItems(collection, context, writer);
    }
    static void WriteAttributes(const CElementInfo& record, const ZrXmlLib16::CXmlObjectBase* child,
        ZrXmlLib16::CXmlWriter* writer, const ZrXmlLib16::CSerializationContext& context)
    {
        record.AttributesToXml_Int(child, writer, context);
    }

    [[gnu::always_inline]] static void ReadPrim(const CElementInfo& record,
        const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement** current)
    {
        using ZrXmlLib16::NodeAccess;
        ZrXmlLib16::CXmlElement* const element = *current;
        NodeAccess::PrefetchSibling(*element);
        // kept: required behaviour. A nil element neither sets nor clears the member, and facets are not checked on
        // reading.
        if (!NodeAccess::GetFirstAttribute(*element) || !record.ReadNilAttributes(context, *element)) {
            ZrXmlLib16::ZrVariant value;
            if (NodeAccess::HasText(*element)) {
                NodeAccess::ParseText(*element, record.m_itemType, record.m_whitespaceRule, value);
            } else {
                value.FromString(record.m_defaultValue, record.m_itemType, record.m_whitespaceRule);
            }
            SetProperty(record, object, value, *element);
        }
        *current = element->GetNextSiblingElement();
    }
    static void ReadEnum(CElementInfo& record, const ZrXmlLib16::CSerializationContext& context,
        ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlElement** current)
    {
        record.ElementFromXmlEnum(context, object, current);
    }
    static ZrXmlLib16::CXmlElement* ReadChild(CElementInfo& record, ZrXmlLib16::CXmlObjectBase* child,
        ZrXmlLib16::CXmlElement* element, ZrXmlLib16::CXmlElement* firstChild,
        const ZrXmlLib16::CSerializationContext& context)
    {
        return record.FromXml_Int(child, element, firstChild, context, false);
    }

    static void GetProperty(
        const CElementInfo& record, ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::ZrVariant& value)
    {
        record.InvokePropertyGet(object, value);
    }
    [[gnu::always_inline]] static void SetProperty(const CElementInfo& record, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::ZrVariant& value, const ZrXmlLib16::CXmlElement& source)
    {
        try {
            object->AccessProperty(record.m_propertyId, false, value);
        } catch (ZrXmlLib16::CZrException& exception) {
            ThrowSetFailed(exception, source);
        }
    }
    [[noreturn]] static void ThrowSetFailed(ZrXmlLib16::CZrException& exception, const ZrXmlLib16::CXmlElement& source);

    /// The results of an object's last read; objects that are no generated classes always count as satisfied and
    /// touched.
    static bool IsSatisfied(const ZrXmlLib16::CXmlObjectBase& object)
    {
        const auto* generated = dynamic_cast<const ZrXmlLib16::CXmlGeneratedClass*>(&object);
        return !generated || generated->m_satisfied;
    }
    static bool IsTouched(const ZrXmlLib16::CXmlObjectBase& object)
    {
        const auto* generated = dynamic_cast<const ZrXmlLib16::CXmlGeneratedClass*>(&object);
        return !generated || generated->m_touched;
    }
    static void Touch(ZrXmlLib16::CXmlGeneratedClass& object) { object.m_touched = true; }

    /// An untyped element under the wildcard of its record.
    static ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> NewUntypedElement(const CElementInfo& record)
    {
        return new ZrXmlLib16::CElement(record.m_namespaceRule);
    }
    static bool IsUntyped(const CElementInfo& record) { return record.m_isUntyped; }
    static const std::wstring& Wildcard(const CElementInfo& record)
    {
        return ZrXmlLib16::WildcardOf(record.m_namespaceRule.get());
    }

    /// A text that records may use between two calls of the writer; keeps its capacity from one value to the next.
    static std::wstring& Scratch(ZrXmlLib16::CXmlWriter& writer) { return writer.m_scratch; }
    /// Two more, for the name and the namespace of an object. The namespace is mostly that of the object before.
    static std::wstring& NamespaceScratch(ZrXmlLib16::CXmlWriter& writer) { return writer.m_namespaceScratch; }
    static std::wstring& NameScratch(ZrXmlLib16::CXmlWriter& writer) { return writer.m_nameScratch; }
    static bool WriteTextElement(ZrXmlLib16::CXmlWriter& writer, const std::wstring& name,
        const std::wstring& namespaceUri, const std::wstring& text, ZrXmlLib16::ItemType type, bool isDefault)
    {
        return writer.m_joinsCalls && writer.WriteTextElement(name, namespaceUri, text, type, isDefault);
    }
    static ZrXmlLib16::CNillableMemory& Nillables(ZrXmlLib16::CXmlWriter& writer) { return *writer.m_nillables; }
};

} // namespace ZrXmlLib16Data

#endif
