// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_PROPERTYACCESS_H
#define ZRXML_BENCHMARKS_PROPERTYACCESS_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/ZrVariant.h"

#include <optional>
#include <string>

/// The kinds of property that AccessProperty moves between an object and a variant.
namespace PurchaseOrders {

/// A value: reading an unset member leaves the variant invalid, storing an invalid variant unsets the member.
template <class T, class Getter, class Setter>
void AccessValue(bool read, ZrXmlLib16::ZrVariant& value, std::optional<T>& member, Getter get, Setter set)
{
    if (!read) {
        if (value.IsValid()) {
            member = static_cast<T>((value.*get)());
        } else {
            member.reset();
        }
    } else if (member) {
        (value.*set)(*member);
    }
}

/// A text.
inline void AccessText(bool read, ZrXmlLib16::ZrVariant& value, std::optional<std::wstring>& member)
{
    if (!read) {
        if (value.IsValid()) {
            member = value.TakeString();
        } else {
            member.reset();
        }
    } else if (member) {
        value.LendString(*member);
    }
}

/// An enumerated value, which travels as an i4.
template <class E> void AccessEnum(bool read, ZrXmlLib16::ZrVariant& value, std::optional<E>& member)
{
    if (!read) {
        if (value.IsValid()) {
            member = static_cast<E>(value.GetI4());
        } else {
            member.reset();
        }
    } else if (member) {
        value.SetI4(static_cast<long>(*member));
    }
}

/// A child object.
template <class T> void AccessObject(bool read, ZrXmlLib16::ZrVariant& value, ZrXmlLib16::CSmartPtr<T>& member)
{
    if (!read) {
        member = ZrXmlLib16::CSmartPtr<T>::Attach(static_cast<T*>(value.TakeXmlObject().Detach()));
    } else if (member) {
        value.SetXmlObject(member);
    }
}

/// A collection, which always exists and is filled in place.
template <class T> void AccessCollection(bool read, ZrXmlLib16::ZrVariant& value, ZrXmlLib16::CSmartPtr<T>& member)
{
    if (read) {
        value.SetXmlCollection(member);
    }
}

} // namespace PurchaseOrders

#endif
