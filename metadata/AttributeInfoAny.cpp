// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/AttributeInfoAny.h"

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "core/TextArgument.h"
#include "metadata/MetadataMessages.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

CAttributeInfoAny::CAttributeInfoAny(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional,
    const wchar_t* defaultValue, const wchar_t* namespaceSpecification, const wchar_t* targetNamespace)
    : CAttributeInfo(name, namespaceUri, propertyId, optional, defaultValue)
    , m_namespaceSpecification(TextOrEmpty(namespaceSpecification))
    , m_targetNamespace(TextOrEmpty(targetNamespace))
{
}

CAttributeInfoAny::~CAttributeInfoAny() = default;

void CAttributeInfoAny::AttributeToXml(
    const CSerializationContext& context, const CXmlGeneratedClass* object, CXmlWriter* writer) const
{
    ZrVariant value;
    ReadProperty(object, value);
    if (const CXmlCollectionBase* attributes = value.BorrowXmlCollection()) {
        ToXml_Int(attributes, writer, false, GetTargetNamespace(object).c_str(), context);
    }
}

bool CAttributeInfoAny::AttributeFromXml(
    const CSerializationContext&, CXmlGeneratedClass* object, CXmlAttribute* attribute)
{
    if (!attribute || !IsNamespaceValid(attribute->GetNamespaceURI(), m_namespaceSpecification, m_targetNamespace)) {
        return false;
    }
    ZrVariant value;
    InvokePropertyGet(object, value);
    CAttributeCol* attributes = dynamic_cast<CAttributeCol*>(value.BorrowXmlCollection());
    if (!attributes) {
        throw CZrException(Message::NOT_AN_ATTRIBUTE_COLLECTION);
    }
    attributes->Add(attribute->GetNamespaceURI().c_str(), NodeAccess::GetValue(*attribute).c_str(),
        attribute->GetLocalName().c_str());
    return true;
}

void CAttributeInfoAny::Validate(const CSerializationContext&, bool) const { }

} // namespace ZrXmlLib16Data
