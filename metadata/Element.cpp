// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Element.h"

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/CoreMessages.h"
#include "core/DepthGuard.h"
#include "core/ErrorPosition.h"
#include "core/RootPreparation.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"
#include "metadata/NamespaceRule.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace Text = ZrXmlLib16Data::Message;

namespace {

constexpr const wchar_t* WILDCARD_KEYWORDS[] = {L"##any", L"##other", L"##local", L"##targetNamespace"};

void RequireText(const wchar_t* text, const wchar_t* message)
{
    if (!*TextOrEmpty(text)) {
        throw CZrInvalidParamException(message);
    }
}

} // namespace

CElement::CElement() = default;

CElement::CElement(const std::shared_ptr<const NamespaceRule>& rule)
    : m_rule(rule)
{
}

CElement::CElement(const wchar_t* name)
    : CElement(name, L"##any")
{
}

CElement::CElement(const wchar_t* name, const wchar_t* namespaceKeyword)
{
    RequireText(name, Text::ELEMENT_NAME_EMPTY);
    const std::wstring keyword = TextOrEmpty(namespaceKeyword);
    if (std::find(std::begin(WILDCARD_KEYWORDS), std::end(WILDCARD_KEYWORDS), keyword) == std::end(WILDCARD_KEYWORDS)) {
        throw CZrInvalidParamException(FormatString(Text::NOT_A_WILDCARD_KEYWORD, keyword.c_str()));
    }
    SetElementName(name);
    m_rule = MakeNamespaceRule(namespaceKeyword, L"");
}

CElement::CElement(const wchar_t* name, const wchar_t* namespaceUri, const wchar_t* namespaceSpecification,
    const wchar_t* targetNamespace)
{
    Init(name, namespaceUri, namespaceSpecification, targetNamespace);
}

CElement::CElement(CXmlObjectBase* object, const wchar_t* defaultNamespace)
{
    if (!object) {
        throw CZrInvalidParamException(Text::ELEMENT_SOURCE_IS_NULL);
    }
    m_rule = MakeNamespaceRule(L"##any", object->GetTargetNamespace().c_str());
    m_defaultNamespace = TextOrEmpty(defaultNamespace);
    CXmlDocument document;
    document.LoadXml(object->ToXml(false, false).c_str());
    CopyXmlElement(document.GetDocumentElement());
}

CElement::~CElement() = default;

CXmlObjectBase* CElement::GetBase()
{
    return this;
}

void CElement::Init(const wchar_t* name, const wchar_t* namespaceUri, const wchar_t* namespaceSpecification,
    const wchar_t* targetNamespace)
{
    RequireText(name, Text::ELEMENT_NAME_EMPTY);
    RequireText(namespaceSpecification, Text::NAMESPACE_RESTRICTION_EMPTY);
    RequireText(targetNamespace, Text::TARGET_NAMESPACE_EMPTY);
    m_rule = MakeNamespaceRule(namespaceSpecification, targetNamespace);
    m_namespace = TextOrEmpty(namespaceUri);
    SetElementName(name);
}

std::wstring CElement::GetNamespace() const
{
    return m_namespace;
}

std::wstring CElement::GetTargetNamespace() const
{
    return TargetNamespaceOf(m_rule.get());
}

std::wstring CElement::GetText() const
{
    return m_text;
}

void CElement::SetText(const wchar_t* text)
{
    m_text = TextOrEmpty(text);
}

void CElement::SetNamespace(const wchar_t* namespaceUri)
{
    std::wstring uri = TextOrEmpty(namespaceUri);
    if (!Accepts(m_rule.get(), uri)) {
        ThrowNamespaceInvalid(uri);
    }
    m_namespace = std::move(uri);
}

void CElement::SetNamespaceRestrictions(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace)
{
    SetNamespaceRule(MakeNamespaceRule(namespaceSpecification, targetNamespace));
}

void CElement::SetNamespaceRule(std::shared_ptr<const NamespaceRule> rule)
{
    if (!Accepts(rule.get(), m_namespace)) {
        ZrXmlLib16::ThrowNamespaceInvalid(m_namespace, L"CElement", WildcardOf(rule.get()));
    }
    m_rule = std::move(rule);
}

void CElement::ThrowNamespaceInvalid(const std::wstring& namespaceUri) const
{
    ZrXmlLib16::ThrowNamespaceInvalid(namespaceUri, L"CElement", WildcardOf(m_rule.get()));
}

/// What the children are under: a wildcard says nothing about the content of the elements that it accepts.
std::shared_ptr<const NamespaceRule> CElement::ChildRule() const
{
    const bool isFree = WildcardOf(m_rule.get()) == WILDCARD_KEYWORDS[0];
    return isFree ? m_rule : MakeNamespaceRule(WILDCARD_KEYWORDS[0], TargetNamespaceOf(m_rule.get()).c_str());
}

CAttributeCol& CElement::Attributes() const
{
    if (!m_attributes) {
        m_attributes = new CAttributeCol;
    }
    return *m_attributes;
}

CElementCol& CElement::Elements() const
{
    if (!m_elements) {
        m_elements = new CElementCol(ChildRule());
    }
    return *m_elements;
}

CSmartPtr<CAttributeCol> CElement::GetAttributes() const
{
    return &Attributes();
}

CSmartPtr<CElementCol> CElement::GetElements() const
{
    return &Elements();
}

void CElement::FromXml(const wchar_t* text, const CSerializationContext& context)
{
    CXmlObjectBase::FromXml(text, context);
}

void CElement::ToXml_Int(
    CXmlWriter* writer, bool isRoot, const wchar_t*, const CSerializationContext& context, bool) const
{
    const CDepthGuard depth;
    if (depth.IsTooDeep(context)) {
        throw CZrException(Message::NESTING_TOO_DEEP);
    }
    if (ElementName().empty()) {
        throw CZrInvalidParamException(Text::ELEMENT_NAME_EMPTY);
    }
    if (isRoot) {
        WriteBeforeRoot(
            *writer, context, m_defaultNamespace.empty() ? context.GetDefaultNamespaceURI() : m_defaultNamespace);
    }
    writer->WriteStartElement(ElementName(), m_namespace);
    if (m_attributes) {
        CXmlObjectBase::ToXml_Int(m_attributes, writer, false, L"", context, false);
    }
    if (m_elements) {
        m_elements->WriteChildren(*writer, context);
    }
    // kept: required behaviour. All text comes behind the children, indentation included.
    writer->WriteString(m_text, ItemType_string, false);
    writer->WriteEndElement();
}

bool CElement::HasSameName(const CElement& other) const
{
    return ElementName() == other.ElementName() && m_namespace == other.m_namespace;
}

CXmlElement* CElement::FromXml_Int(
    CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool)
{
    if (!Accepts(m_rule.get(), element->GetNamespaceURI())) {
        return element;
    }
    const CDepthGuard depth;
    if (depth.IsTooDeep(context)) {
        ThrowAt(*element, CZrException(Message::NESTING_TOO_DEEP, element->GetXPath()));
    }
    Clear();
    TakeAttributes(*element);
    if (firstChild) {
        if (const CXmlElement* refused = CXmlObjectBase::FromXml_Int(&Elements(), element, firstChild, context)) {
            ThrowAt(*refused,
                CZrValidationException(
                    FormatString(Text::ELEMENT_REFUSED, refused->GetLocalName().c_str()), refused->GetXPath()));
        }
    }
    TakeNameAndText(*element);
    return element->GetNextSiblingElement();
}

} // namespace ZrXmlLib16
