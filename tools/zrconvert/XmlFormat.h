// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_XMLFORMAT_H
#define ZRCONVERT_XMLFORMAT_H

#include "Formats.h"

namespace Convert {

/// Takes XML text in any encoding the library reads, compressed or not.
/// Reads a document that a CXmlDocument loads, with the settings of the context that is handed in.
Document ReadTree(Document document, const Bytes& bytes, const TextRules& texts);
Document ReadXml(const Bytes& bytes, const Settings& settings);

/// Writes XML text in UTF-8 with an XML declaration.
ZrXmlLib16::CBinaryData WriteXml(const Document& document, const Settings& settings);

} // namespace Convert

#endif
