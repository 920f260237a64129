// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_GPXOBJECT_H
#define EXAMPLES_GPX_CLASSES_GPXOBJECT_H

#include "ZrXmlLib16/XmlGeneratedClass.h"

#include <string>

namespace Gpx {

/// Namespace of GPX 1.1, the target namespace of its schema.
constexpr wchar_t NAMESPACE[] = L"http://www.topografix.com/GPX/1/1";

/// Base of the classes of this folder, which have the shape that a code generator gives to the complex types of a
/// schema.
///
/// Each class keeps its properties as optional values: an empty optional is an unset property. Child objects are held
/// in a CSmartPtr, collections always exist. The records that describe the class are made on first use and never
/// change.
class CGpxObject : public ZrXmlLib16::CXmlGeneratedClass {
public:
    std::wstring GetNamespace() const override;
    std::wstring GetTargetNamespace() const override;
    /// The indexes that ReadProperty takes run from 0 to below this number.
    virtual int GetPropertyCount() const = 0;
    /// Element name of a property; "@" for one that is an attribute.
    std::wstring GetPropertyName(int index) const;

    CGpxObject(const CGpxObject&) = delete;
    CGpxObject& operator=(const CGpxObject&) = delete;

protected:
    explicit CGpxObject(const wchar_t* elementName);
    [[noreturn]] static void ThrowUnknownProperty(int index);
};

} // namespace Gpx

#endif
