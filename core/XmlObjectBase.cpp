// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlObjectBase.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "core/CoreMessages.h"
#include "core/TextArgument.h"

namespace ZrXmlLib16 {

CXmlObjectBase::CXmlObjectBase()
    : m_referenceCount(0)
{
}

CXmlObjectBase::CXmlObjectBase(const CXmlObjectBase& other)
    : IEventSink(other)
    , m_elementName(other.m_elementName)
    , m_referenceCount(0)
{
}

CXmlObjectBase& CXmlObjectBase::operator=(const CXmlObjectBase& other)
{
    m_elementName = other.m_elementName;
    return *this;
}

CXmlObjectBase::~CXmlObjectBase() = default;

void CXmlObjectBase::OnEvent(CXmlObjectBase*, IEventSink::MsgType, void*) { }

long CXmlObjectBase::AddRef()
{
    const CZRCriticalSection::CGuard guard(m_lock);
    return ++m_referenceCount;
}

long CXmlObjectBase::Release()
{
    long count = 0;
    {
        const CZRCriticalSection::CGuard guard(m_lock);
        count = --m_referenceCount;
    }
    if (count == 0) {
        delete this;
    }
    return count;
}

void CXmlObjectBase::SetElementName(const wchar_t* name)
{
    m_elementName.Set(name);
}

std::wstring CXmlObjectBase::GetElementName() const
{
    std::wstring name;
    m_elementName.CopyTo(name);
    return name;
}

const std::wstring& CXmlObjectBase::ElementName() const
{
    return m_elementName.Get();
}

void CXmlObjectBase::Throw_IfPropertyIsNull(CXmlObjectBase* value, const wchar_t* propertyName)
{
    if (!value) {
        throw CZrInvalidParamException(FormatString(Message::PROPERTY_IS_NULL, TextOrEmpty(propertyName)));
    }
}

void CXmlObjectBase::Throw_IfElementNameDiffers(CXmlObjectBase* value, const wchar_t* requiredName)
{
    if (value && !value->m_elementName.Is(TextOrEmpty(requiredName))) {
        throw CZrInvalidParamException(
            FormatString(Message::ELEMENT_NAME_DIFFERS, TextOrEmpty(requiredName), value->GetElementName().c_str()));
    }
}

void CXmlObjectBase::AttributesToXml_Int(CXmlWriter*, const CSerializationContext&) const { }

void CXmlObjectBase::ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
    const wchar_t* namespaceUri, const CSerializationContext& context, bool isOptional)
{
    object->ToXml_Int(writer, isRoot, namespaceUri, context, isOptional);
}

void CXmlObjectBase::AttributesToXml_Int(
    const CXmlObjectBase* object, CXmlWriter* writer, const CSerializationContext& context)
{
    object->AttributesToXml_Int(writer, context);
}

CXmlElement* CXmlObjectBase::FromXml_Int(
    CXmlObjectBase* object, CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context)
{
    return object->FromXml_Int(element, firstChild, context, false);
}

bool CXmlObjectBase::DoesElementNameMatch(const CSerializationContext& context, const CXmlElement* element,
    const std::wstring& name, const std::wstring& namespaceUri)
{
    return CXmlObjectHelper::DoesElementNameMatch(context, element, name, namespaceUri);
}

void CXmlObjectBase::FireOnCollectionChangeEvent(IEventSink* listener, CXmlCollectionBase* collection)
{
    listener->OnEvent(collection, IEventSink::CollectionChanged, nullptr);
}

void CXmlObjectBase::FireOnCollectionAddEvent(IEventSink* listener, CXmlCollectionBase* collection, void* item)
{
    listener->OnEvent(collection, IEventSink::BeforeAdd, item);
}

void CXmlObjectBase::FireOnCollectionAddCompleteEvent(IEventSink* listener, CXmlCollectionBase* collection, void* item)
{
    listener->OnEvent(collection, IEventSink::AfterAdd, item);
}

void CXmlObjectBase::FireOnCollectionRemoveEvent(IEventSink* listener, CXmlCollectionBase* collection, int index)
{
    listener->OnEvent(collection, IEventSink::BeforeRemove, index == -1 ? nullptr : &index);
}

void CXmlObjectBase::FireOnCollectionRemoveCompleteEvent(
    IEventSink* listener, CXmlCollectionBase* collection, int index)
{
    listener->OnEvent(collection, IEventSink::AfterRemove, index == -1 ? nullptr : &index);
}

} // namespace ZrXmlLib16
