// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_PREFIXES_H
#define ZRCONVERT_PREFIXES_H

namespace ZrXmlLib16 {
class CSerializationContext;
class CXmlDocument;
}

namespace Convert {

/// Has the context declare, on the root element, every namespace that the document declares or uses: under the
/// document's own prefix where it has one, else under an invented one, so that writing invents none further down.
///
/// The document's default namespace stays the default, unless an element is in no namespace, which an unprefixed name
/// could then not express.
void TakeOverPrefixes(const ZrXmlLib16::CXmlDocument& document, ZrXmlLib16::CSerializationContext& context);

} // namespace Convert

#endif
