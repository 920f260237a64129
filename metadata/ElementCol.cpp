// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ElementCol.h"

#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"
#include "metadata/NamespaceRule.h"

namespace ZrXmlLib16 {

namespace Text = ZrXmlLib16Data::Message;

namespace {

/// Whether the caller's reference is the only one.
bool IsHeldOnce(CXmlObjectBase& object)
{
    const bool once = object.AddRef() == 2;
    object.Release();
    return once;
}

} // namespace

CElementCol::CElementCol(const wchar_t* elementName, const wchar_t* namespaceSpecification,
    const wchar_t* targetNamespace, int minOccurs, int maxOccurs)
    : CXmlCollection(elementName, L"", minOccurs, maxOccurs)
    , m_rule(MakeNamespaceRule(namespaceSpecification, targetNamespace))
{
}

CElementCol::CElementCol(std::shared_ptr<const NamespaceRule> rule)
    : CXmlCollection(L"", L"", 0, -1)
    , m_rule(std::move(rule))
{
}

CElementCol::~CElementCol()
{
    // Descendants that would die with this collection become its items, so that each of them is destroyed childless.
    for (CNode* node = GetFirstNode(); node; node = node->GetNext()) {
        CElement& item = static_cast<CElement&>(*node->GetItem());
        if (item.m_elements && IsHeldOnce(item) && IsHeldOnce(*item.m_elements)) {
            Adopt(*item.m_elements);
        }
    }
}

void CElementCol::CheckItem(CXmlObjectBase& item)
{
    CElement* element = dynamic_cast<CElement*>(&item);
    if (!element) {
        throw CZrInvalidParamException(Text::NOT_AN_UNTYPED_ELEMENT);
    }
    element->SetNamespaceRule(m_rule);
}

CElement* CElementCol::Add(const wchar_t* name)
{
    const std::wstring namespaceUri = GetNamespace();
    if (namespaceUri.empty()) {
        throw CZrInvalidStateException(Text::COLLECTION_WITHOUT_NAMESPACE);
    }
    return Add(name, namespaceUri.c_str());
}

CElement* CElementCol::Add(const wchar_t* name, const wchar_t* namespaceUri)
{
    const CSmartPtr<CElement> element = new CElement(name);
    element->SetNamespace(namespaceUri);
    AppendItem(element);
    return element;
}

void CElementCol::Add(CElement* element)
{
    AppendItem(element);
}

CElement* CElementCol::Item(int index) const
{
    return static_cast<CElement*>(GetNodeAtIndex(index)->GetItem());
}

CElementCol::iterator CElementCol::begin() const
{
    return iterator(GetFirstNode());
}

CElementCol::iterator CElementCol::end() const
{
    return iterator();
}

std::wstring CElementCol::GetNamespace() const
{
    const std::wstring& target = TargetNamespaceOf(m_rule.get());
    return Accepts(m_rule.get(), target) ? target : std::wstring();
}

std::wstring CElementCol::GetTargetNamespace() const
{
    return TargetNamespaceOf(m_rule.get());
}

void CElementCol::SetNamespaceRestrictions(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace)
{
    const std::shared_ptr<const NamespaceRule> rule = MakeNamespaceRule(namespaceSpecification, targetNamespace);
    for (const CElement* item : *this) {
        if (!Accepts(rule.get(), item->m_namespace)) {
            ThrowNamespaceInvalid(item->m_namespace, L"CElementCol", WildcardOf(rule.get()));
        }
    }
    for (CElement* item : *this) {
        item->m_rule = rule;
    }
    m_rule = rule;
}

CXmlElement* CElementCol::FromXml_Int(CXmlElement*, CXmlElement* firstChild, const CSerializationContext& context, bool)
{
    CXmlElement* cursor = firstChild;
    while (cursor && Accepts(m_rule.get(), cursor->GetNamespaceURI())) {
        cursor = ReadItem(cursor, context);
    }
    return cursor;
}

CXmlElement* CElementCol::FromXmlLockElementName_Int(const wchar_t* name, const wchar_t* namespaceUri, CXmlElement*,
    CXmlElement* cursor, const CSerializationContext& context)
{
    const std::wstring localName = TextOrEmpty(name);
    const std::wstring uri = TextOrEmpty(namespaceUri);
    const bool isAnyNamespace = uri == L"##any";
    while (cursor && Accepts(m_rule.get(), cursor->GetNamespaceURI())
        && (isAnyNamespace ? cursor->GetLocalName() == localName
                           : DoesElementNameMatch(context, cursor, localName, uri))) {
        cursor = ReadItem(cursor, context);
    }
    return cursor;
}

CXmlElement* CElementCol::ReadItem(CXmlElement* element, const CSerializationContext& context)
{
    const CSmartPtr<CElement> item = new CElement(m_rule);
    CXmlElement* next = CXmlObjectBase::FromXml_Int(item, element, element->GetFirstElement(), context);
    AppendItem(item);
    return next;
}

// No schema tells which children repeat: those of one name that stand together are a collection.
void CElementCol::WriteChildren(CXmlWriter& writer, const CSerializationContext& context) const
{
    bool isRepeated = false;
    for (auto position = begin(); position != end();) {
        const CElement* const item = *position;
        const CElement* const next = ++position == end() ? nullptr : *position;
        const bool continues = next && next->HasSameName(*item);
        if (continues && !isRepeated) {
            writer.SetContextState(CXmlWriter::ContextState_CollectionStart);
        }
        CXmlObjectBase::ToXml_Int(item, &writer, false, L"", context, false);
        if (isRepeated && !continues) {
            writer.SetContextState(CXmlWriter::ContextState_CollectionEnd);
        }
        isRepeated = continues;
    }
}

} // namespace ZrXmlLib16
