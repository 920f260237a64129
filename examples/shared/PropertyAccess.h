// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_PROPERTYACCESS_H
#define EXAMPLES_SHARED_PROPERTYACCESS_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrVariant.h"

#include <functional>
#include <optional>
#include <string>

namespace Shared {

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

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<bool>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetBoolean, &ZrXmlLib16::ZrVariant::SetBoolean);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<unsigned char>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetUI1, &ZrXmlLib16::ZrVariant::SetUI1);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<unsigned short>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetUI2, &ZrXmlLib16::ZrVariant::SetUI2);
}

/// 32 bits: xs:int and xs:unsignedInt.
inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<long>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetI4, &ZrXmlLib16::ZrVariant::SetI4);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<unsigned long>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetUI4, &ZrXmlLib16::ZrVariant::SetUI4);
}

inline void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<float>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetR4, &ZrXmlLib16::ZrVariant::SetR4);
}

/// The other types of dates share one class of values, so they have functions of their own.
/// @{
inline void AccessDate(bool read, ZrXmlLib16::ZrVariant& value, std::optional<ZrXmlLib16::CDateTime>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetDate, &ZrXmlLib16::ZrVariant::SetDate);
}

inline void AccessYearMonth(bool read, ZrXmlLib16::ZrVariant& value, std::optional<ZrXmlLib16::CDateTime>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetYearMonth, &ZrXmlLib16::ZrVariant::SetYearMonth);
}

inline void AccessYear(bool read, ZrXmlLib16::ZrVariant& value, std::optional<unsigned short>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetYear, &ZrXmlLib16::ZrVariant::SetYear);
}
/// @}

/// The value of an element that may be nil: written, but without a value (xsi:nil). Reading a nil element leaves the
/// property as Init made it; only a class of its own (INillable) remembers that it was nil.
template <class T> struct Nillable {
    std::optional<T> value;
    bool isNil = false;
};

template <class T> void AccessNillable(bool read, ZrXmlLib16::ZrVariant& value, Nillable<T>& property)
{
    if (read && property.isNil) {
        value.SetNil();
        return;
    }
    if (!read) {
        property.isNil = value.IsNil();
    }
    AccessValue(read, value, property.value);
}

/// @tparam E enumeration with the values that the class's converters know.
template <class E> void AccessEnumeration(bool read, ZrXmlLib16::ZrVariant& value, std::optional<E>& property)
{
    AccessWith(read, value, property, &ZrXmlLib16::ZrVariant::GetI4,
        [](ZrXmlLib16::ZrVariant& variant, E number) { variant.SetI4(static_cast<long>(number)); });
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

} // namespace Shared

#endif
