// SPDX-License-Identifier: MIT
#include "XmlFormat.h"

#include "ElementText.h"
#include "Prefixes.h"
#include "ZrXmlLib16/XmlDocument.h"

namespace Convert {

Document ReadTree(Document document, const Bytes& bytes, const TextRules& texts)
{
    ZrXmlLib16::CXmlDocument source(document.context);
    source.LoadXmlStream(bytes.data(), bytes.size());
    document.root = new ZrXmlLib16::CElement;
    document.root->FromXmlElement(source.GetDocumentElement(), document.context);
    PrepareTexts(*source.GetDocumentElement(), *document.root, texts);
    TakeOverPrefixes(source, document.context);
    return document;
}

Document ReadXml(const Bytes& bytes, const Settings& settings)
{
    Document document;
    document.context.SetStripCDATA(!settings.keepSections);
    return ReadTree(document, bytes, settings.texts);
}

ZrXmlLib16::CBinaryData WriteXml(const Document& document, const Settings& settings)
{
    return document.root->ToXmlStream(
        true, settings.format, ZrXmlLib16::Encoding_UTF8, settings.endOfLine, document.context, settings.compression);
}

} // namespace Convert
