// SPDX-License-Identifier: MIT
#include "shared/orders/Product.h"

#include "ZrXmlLib16Data/ElementInfoSeqPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct CProduct::Tables {
    CElementInfoSeqPrimMnd title = Primitive<CElementInfoSeqPrimMnd>(
        L"title", NAMESPACE, Property_Title, SimpleType(ItemType_string).LengthFromTo(1, 60));

    CAttributeInfoPrimitive number = Attribute(
        L"number", Property_Number, Use::Required, SimpleType(ItemType_string).Matching(L"[A-Z]{2}-[0-9]{4}"));
    CAttributeInfo* attributes[2] = {&number, nullptr};
};

CProduct::Tables& CProduct::GetTables()
{
    static Tables tables;
    return tables;
}

CProduct::CProduct(const wchar_t* elementName)
    : COrderObject(elementName)
{
}

void CProduct::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Number:
        return AccessValue(read, value, m_number);
    case Property_Title:
        return AccessValue(read, value, m_title);
    }
}

CAttributeInfo** CProduct::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CProduct::Init()
{
    m_number.reset();
    m_title.reset();
}

struct CBook::Tables {
    CParentElementInfo classInfo = DerivedClassInfo(L"Book", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqPrimCol author{L"author", NAMESPACE, Property_Author};
    CElementInfo* elements[3] = {&CProduct::GetTables().title, &author, nullptr};
};

CBook::Tables& CBook::GetTables()
{
    static Tables tables;
    return tables;
}

CBook::CBook(const wchar_t* elementName)
    : CProduct(elementName)
    , m_author(new CstringCol(L"author", NAMESPACE, 0, -1, L"", 1, 60, L"", L"", L"", L"", -1, -1, -1,
          CWhitespaceUtils::Rule_Collapse, L""))
{
}

void CBook::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Author:
        return AccessCollection(read, value, m_author);
    default:
        CProduct::AccessProperty(index, read, value);
    }
}

const CParentElementInfo* CBook::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CBook::GetClassElementInfo() const
{
    return GetTables().elements;
}

void CBook::Init()
{
    CProduct::Init();
    m_author->Clear();
}

struct CDevice::Tables {
    CParentElementInfo classInfo = DerivedClassInfo(L"Device", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqPrimOpt volts = Primitive<CElementInfoSeqPrimOpt>(
        L"volts", NAMESPACE, Property_Volts, SimpleType(ItemType_ui2).FromTo(L"12", L"400"));
    CElementInfo* elements[3] = {&CProduct::GetTables().title, &volts, nullptr};
};

CDevice::Tables& CDevice::GetTables()
{
    static Tables tables;
    return tables;
}

CDevice::CDevice(const wchar_t* elementName)
    : CProduct(elementName)
{
}

void CDevice::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Volts:
        return AccessValue(read, value, m_volts);
    default:
        CProduct::AccessProperty(index, read, value);
    }
}

const CParentElementInfo* CDevice::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CDevice::GetClassElementInfo() const
{
    return GetTables().elements;
}

void CDevice::Init()
{
    CProduct::Init();
    m_volts.reset();
}

} // namespace Orders
