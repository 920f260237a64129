// SPDX-License-Identifier: MIT
#include "FastInfosetFormat.h"

#include "XmlFormat.h"
#include "ZrXmlLib16/FastInfosetReader.h"
#include "ZrXmlLib16/ZrException.h"

namespace Convert {

bool IsFastInfoset(const Bytes& bytes)
{
    return ZrXmlLib16::CFastInfosetReader::HasHeader(bytes.data(), bytes.size());
}

Document ReadFastInfoset(const Bytes& bytes, const Settings& settings)
{
    if (!IsFastInfoset(bytes)) {
        throw ZrXmlLib16::CZrException(L"This is not a Fast Infoset document.");
    }
    return ReadTree(Document(), bytes, settings.texts);
}

ZrXmlLib16::CBinaryData WriteFastInfoset(const Document& document, const Settings& settings)
{
    return document.root->ToFastInfosetStream(ZrXmlLib16::FInfoDecl_None, document.context, settings.compression);
}

} // namespace Convert
