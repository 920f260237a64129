// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_PROPERTYACCESS_H
#define EXAMPLES_GPX_CLASSES_PROPERTYACCESS_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrVariant.h"

#include <functional>
#include <optional>
#include <string>

namespace Gpx {

/// The bodies of AccessProperty, one per kind of property. Reading an unset property gives an invalid variant; storing
/// an invalid variant unsets the property.
template <class T, class Getter, class Setter>
void AccessWith(bool read, ZrXmlLib16::ZrVariant& value, std::optional<T>& property, Getter getter, Setter setter)
{
    if (!read) {
        if (value.IsValid() && !value.IsNil()) {
            property = static_cast<T>(std::invoke(getter, value));
        } else {
            property.reset();
        }
    } else if (property) {
        std::invoke(setter, value, *property);
    } else {
        value.SetInvalid();
    }
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<std::wstring>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetString,
        [](ZrXmlLib16::ZrVariant& variant, const std::wstring& text) { variant.SetString(text); });
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<ZrXmlLib16::CDecimal>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetDecimal, &ZrXmlLib16::ZrVariant::SetDecimal);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<ZrXmlLib16::CBigInteger>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetInteger, &ZrXmlLib16::ZrVariant::SetInteger);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<ZrXmlLib16::CDateTime>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetDateTime, &ZrXmlLib16::ZrVariant::SetDateTime);
}

inline void AccessYear(bool read, ZrXmlLib16::ZrVariant& value, std::optional<unsigned short>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetYear, &ZrXmlLib16::ZrVariant::SetYear);
}

/// @tparam E enumeration with the values that the class's converters know.
template <class E> void AccessEnumeration(bool read, ZrXmlLib16::ZrVariant& value, std::optional<E>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetI4, &ZrXmlLib16::ZrVariant::SetI4);
}

template <class T> void AccessObject(bool read, ZrXmlLib16::ZrVariant& value, ZrXmlLib16::CSmartPtr<T>& property)
{
    if (read) {
        value.SetXmlObject(property);
        return;
    }
    const ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> object = value.GetXmlObject();
    T* typed = dynamic_cast<T*>(object.GetPtr());
    if (object && !typed) {
        throw ZrXmlLib16::CZrInvalidParamException(L"The object is of another class than the property");
    }
    property = typed;
}

/// A collection is filled in place and never replaced.
template <class T> void AccessCollection(bool read, ZrXmlLib16::ZrVariant& value, ZrXmlLib16::CSmartPtr<T>& property)
{
    if (read) {
        value.SetXmlCollection(property);
    } else if (value.IsValid()) {
        throw ZrXmlLib16::CZrInvalidParamException(L"A collection cannot be replaced");
    } else {
        property->Clear();
    }
}

} // namespace Gpx

#endif
