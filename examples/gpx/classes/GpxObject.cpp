// SPDX-License-Identifier: MIT
#include "classes/GpxObject.h"

#include "ZrXmlLib16/Version.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace Gpx {
namespace {

bool RegisterGenerator()
{
    ZrXmlLib16::Register(16, 1, "", "", "");
    return true;
}

} // namespace

CGpxObject::CGpxObject(const wchar_t* elementName)
{
    static const bool registered = RegisterGenerator();
    static_cast<void>(registered);
    SetElementName(elementName);
}

std::wstring CGpxObject::GetNamespace() const
{
    return NAMESPACE;
}

std::wstring CGpxObject::GetTargetNamespace() const
{
    return NAMESPACE;
}

std::wstring CGpxObject::GetPropertyName(int index) const
{
    for (ZrXmlLib16Data::CElementInfo** record = GetClassElementInfo(); *record; ++record) {
        if ((*record)->GetPropertyId() == index) {
            return (*record)->GetElementName();
        }
    }
    return L"@";
}

void CGpxObject::ThrowUnknownProperty(int index)
{
    throw ZrXmlLib16::CZrInvalidParamException(L"There is no property " + std::to_wstring(index));
}

} // namespace Gpx
