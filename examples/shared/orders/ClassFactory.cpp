// SPDX-License-Identifier: MIT
#include "shared/orders/ClassFactory.h"

#include "ZrXmlLib16/ClassfactoryBase.h"
#include "ZrXmlLib16/XmlElement.h"
#include "shared/orders/Address.h"
#include "shared/orders/Gift.h"
#include "shared/orders/Payment.h"
#include "shared/orders/Product.h"

namespace Orders {

ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateObject(int classId, const wchar_t* name)
{
    switch (classId) {
    case ClassId_Address:
        return new CAddress(name);
    case ClassId_Payment:
        return new CPayment(name);
    case ClassId_Card:
        return new CCard(name);
    case ClassId_Gift:
        return new CGift(name);
    default:
        return nullptr;
    }
}

ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateProduct(ZrXmlLib16::CXmlElement* element)
{
    using ZrXmlLib16::CClassfactoryBase;
    const std::wstring type = CClassfactoryBase::GetElementType(element);
    if (CClassfactoryBase::GetElementTypeNamespaceUri(element) != NAMESPACE) {
        return nullptr;
    }
    if (type == L"Book") {
        return new CBook(element->GetLocalName().c_str());
    }
    if (type == L"Device") {
        return new CDevice(element->GetLocalName().c_str());
    }
    return nullptr;
}

} // namespace Orders
