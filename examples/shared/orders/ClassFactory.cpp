// SPDX-License-Identifier: MIT
#include "shared/orders/ClassFactory.h"

#include "ZrXmlLib16/ClassfactoryBase.h"
#include "ZrXmlLib16/XmlElement.h"
#include "shared/orders/Address.h"
#include "shared/orders/Contact.h"
#include "shared/orders/Gift.h"
#include "shared/orders/Payment.h"
#include "shared/orders/Product.h"

namespace Orders {

ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateObject(int classId, const wchar_t* name)
{
    switch (classId) {
    case ClassId_Address:
        return new CAddress(name);
    case ClassId_Contact:
        return new CContact(name);
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
    // The local name is enough here, so that documents can be read whose namespaces are to be ignored.
    const std::wstring type = ZrXmlLib16::CClassfactoryBase::GetElementType(element);
    if (type == L"Book") {
        return new CBook(element->GetLocalName().c_str());
    }
    if (type == L"Device") {
        return new CDevice(element->GetLocalName().c_str());
    }
    return nullptr;
}

} // namespace Orders
