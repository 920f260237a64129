// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_CLASSFACTORY_H
#define EXAMPLES_SHARED_ORDERS_CLASSFACTORY_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlObjectBase.h"

namespace ZrXmlLib16 {
class CXmlElement;
}

namespace Orders {

/// The classes that records create by number.
enum ClassId : int { ClassId_Address, ClassId_Contact, ClassId_Payment, ClassId_Card, ClassId_Gift };

/// A new object of a class, under an element name; null for an unknown class.
ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateObject(int classId, const wchar_t* name);
/// A new object of the class that the element names with xsi:type; null when that is no product, which the abstract
/// type itself is not either.
ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateProduct(ZrXmlLib16::CXmlElement* element);

} // namespace Orders

#endif
