// SPDX-License-Identifier: MIT
// The entry points of CXmlObjectBase that write Fast Infoset documents. Reading has none: the XML entry points find
// out.
#include "ZrXmlLib16/BinaryStream.h"
#include "ZrXmlLib16/FastInfosetWriter.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "core/EntryPointFiles.h"
#include "core/FormatSettings.h"
#include "core/VersionCheck.h"

#include <utility>

namespace ZrXmlLib16 {

CBinaryData CXmlObjectBase::ToFastInfosetStream(
    FInfoDecl declaration, const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    CBinaryStream stream;
    CFastInfosetWriter writer(CFormatSettings::FastInfoset(context), stream);
    writer.m_joinsCalls = true;
    writer.Open();
    writer.WriteStartDocument(declaration);
    ToXml_Int(&writer, true, GetNamespace().c_str(), context, false);
    writer.WriteEndDocument();
    writer.Close();
    return EntryPointFiles::Compressed(std::move(stream.GetBinaryStream()), compression);
}

void CXmlObjectBase::ToFastInfosetFile(const wchar_t* fileName, FInfoDecl declaration,
    const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    EntryPointFiles::RefuseZLib(compression);
    CBinaryData bytes = ToFastInfosetStream(declaration, context, compression);
    EntryPointFiles::WriteWhole(fileName, Encoding_UTF8, compression, bytes);
}

} // namespace ZrXmlLib16
