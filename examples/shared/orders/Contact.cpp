// SPDX-License-Identifier: MIT
#include "shared/orders/Contact.h"

#include "ZrXmlLib16Data/ElementInfoChoicePrimCol.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct CContact::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Contact", NAMESPACE, XmlElementGroup_Choice);

    CElementInfoChoicePrimCol phone{L"phone", NAMESPACE, Property_Phone};
    CElementInfoChoicePrimCol email{L"email", NAMESPACE, Property_Email};
    CElementInfo* elements[3] = {&phone, &email, nullptr};
};

CContact::Tables& CContact::GetTables()
{
    static Tables tables;
    return tables;
}

CContact::CContact(const wchar_t* elementName)
    : COrderObject(elementName)
    , m_phone(new CstringCol(L"phone", NAMESPACE, 1, 3, L"\\+[0-9 ]{6,20}", -1, -1, L"", L"", L"", L"", -1, -1, -1,
          CWhitespaceUtils::Rule_Collapse, L""))
    , m_email(new CstringCol(L"email", NAMESPACE, 1, 3, L"[^@ ]+@[^@ ]+", -1, -1, L"", L"", L"", L"", -1, -1, -1,
          CWhitespaceUtils::Rule_Collapse, L""))
{
}

CstringCol& CContact::GetPhone()
{
    Choice_Read_Collection(m_phone, Property_Phone);
    return static_cast<CstringCol&>(*m_phone);
}

CstringCol& CContact::GetEmail()
{
    Choice_Read_Collection(m_email, Property_Email);
    return static_cast<CstringCol&>(*m_email);
}

void CContact::OnEvent(CXmlObjectBase* sender, MsgType type, void*)
{
    if (type == CollectionChanged && sender == m_phone.GetPtr()) {
        Choice_CollectionChanged(m_phone, Property_Phone);
    } else if (type == CollectionChanged && sender == m_email.GetPtr()) {
        Choice_CollectionChanged(m_email, Property_Email);
    }
}

void CContact::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Phone:
        return AccessCollection(read, value, m_phone);
    case Property_Email:
        return AccessCollection(read, value, m_email);
    }
}

const CParentElementInfo* CContact::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CContact::GetClassElementInfo() const
{
    return GetTables().elements;
}

void CContact::Init()
{
    m_phone->Clear();
    m_email->Clear();
}

} // namespace Orders
