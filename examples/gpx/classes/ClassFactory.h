// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_CLASSFACTORY_H
#define EXAMPLES_GPX_CLASSES_CLASSFACTORY_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlObjectBase.h"

namespace Gpx {

/// The classes that records create by number.
enum ClassId : int {
    ClassId_MetadataType,
    ClassId_PersonType,
    ClassId_CopyrightType,
    ClassId_BoundsType,
    ClassId_EmailType,
    ClassId_LinkType,
    ClassId_ExtensionsType
};

/// A new object of a class, under an element name; null for an unknown class.
ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateObject(int classId, const wchar_t* name);

} // namespace Gpx

#endif
