// SPDX-License-Identifier: MIT
#include "shared/orders/Gift.h"

#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Orders {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

struct CGift::Tables {
    CParentElementInfo classInfo = SimpleContentInfo(L"Gift", NAMESPACE, Property_Value, ZrXmlLib16::ItemType_string);

    CAttributeInfoPrimitive from =
        Attribute(L"from", Property_From, Use::Optional, SimpleType(ZrXmlLib16::ItemType_string));
    CAttributeInfo* attributes[2] = {&from, nullptr};
};

CGift::Tables& CGift::GetTables()
{
    static Tables tables;
    return tables;
}

CGift::CGift(const wchar_t* elementName)
    : COrderObject(elementName)
{
}

void CGift::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Value:
        return AccessValue(read, value, m_value);
    case Property_From:
        return AccessValue(read, value, m_from);
    }
}

const CParentElementInfo* CGift::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CAttributeInfo** CGift::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CGift::Init()
{
    m_isNil = false;
    m_value.reset();
    m_from.reset();
}

} // namespace Orders
