// SPDX-License-Identifier: MIT
#ifndef METADATA_RECORDARGUMENTS_H
#define METADATA_RECORDARGUMENTS_H

#include "ZrXmlLib16Data/ElementInfo.h"

// Short names for the parameter types of the record operations, for the three sources that list the record classes.
namespace ZrXmlLib16Data {

using Context = const ZrXmlLib16::CSerializationContext&;
using Object = ZrXmlLib16::CXmlGeneratedClass*;
using ConstObject = const ZrXmlLib16::CXmlGeneratedClass*;
using Writer = ZrXmlLib16::CXmlWriter*;
using Element = ZrXmlLib16::CXmlElement*;
using Cursor = ZrXmlLib16::CXmlElement**;
using Text = const wchar_t*;
using Rule = CWhitespaceUtils::WhitespaceRule;
using Facets = const CPrimitiveRestrictions&;

} // namespace ZrXmlLib16Data

#endif
