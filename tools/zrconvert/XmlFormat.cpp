// SPDX-License-Identifier: MIT
#include "XmlFormat.h"

#include "ElementText.h"
#include "Prefixes.h"
#include "ZrXmlLib16/XmlDocument.h"

namespace Convert {

Document ReadXml(const Bytes& bytes, const Settings& settings)
{
    Document document;
    document.context.SetStripCDATA(!settings.keepSections);
    ZrXmlLib16::CXmlDocument source(document.context);
    source.LoadXmlStream(bytes.data(), bytes.size());
    document.root = new ZrXmlLib16::CElement;
    document.root->FromXmlElement(source.GetDocumentElement(), document.context);
    PrepareTexts(*source.GetDocumentElement(), *document.root, {settings.format, settings.keepSections});
    TakeOverPrefixes(source, document.context);
    return document;
}

ZrXmlLib16::CBinaryData WriteXml(const Document& document, const Settings& settings)
{
    return document.root->ToXmlStream(
        true, settings.format, ZrXmlLib16::Encoding_UTF8, settings.endOfLine, document.context, settings.compression);
}

} // namespace Convert
