// SPDX-License-Identifier: MIT
#include "classes/ClassFactory.h"

#include "classes/BoundsType.h"
#include "classes/CopyrightType.h"
#include "classes/EmailType.h"
#include "classes/ExtensionsType.h"
#include "classes/LinkType.h"
#include "classes/MetadataType.h"
#include "classes/PersonType.h"

namespace Gpx {

ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateObject(int classId, const wchar_t* name)
{
    switch (classId) {
    case ClassId_MetadataType:
        return new CMetadataType(name);
    case ClassId_PersonType:
        return new CPersonType(name);
    case ClassId_CopyrightType:
        return new CCopyrightType(name);
    case ClassId_BoundsType:
        return new CBoundsType(name);
    case ClassId_EmailType:
        return new CEmailType(name);
    case ClassId_LinkType:
        return new CLinkType(name);
    case ClassId_ExtensionsType:
        return new CExtensionsType(name);
    default:
        return nullptr;
    }
}

} // namespace Gpx
