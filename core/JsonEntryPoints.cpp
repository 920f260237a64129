// SPDX-License-Identifier: MIT
// The entry points of CXmlObjectBase for JSON.
#include "ZrXmlLib16/FileTextStream.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/JsonTextWriter.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/CoreMessages.h"
#include "core/EntryPointFiles.h"
#include "core/FormatSettings.h"
#include "core/VersionCheck.h"
#include "streams/Utf8Decoding.h"
#include "xml/ConvertedTextScope.h"

#include <optional>
#include <utility>

namespace ZrXmlLib16 {

void CXmlObjectBase::WriteJson(
    CTextStream& stream, bool formatted, EOLType eol, const CSerializationContext& context, bool isInMemory) const
{
    CJsonTextWriter writer(stream);
    writer.m_flushesOften = isInMemory;
    writer.m_joinsCalls = true;
    writer.Open();
    writer.SetFormat(formatted);
    writer.SetIndentChars(context.GetIndentChars().c_str());
    writer.SetEOLType(eol);
    writer.SetSupportRoundtrip(CFormatSettings::Json(context).GetSupportRoundtrip());
    writer.WriteStartDocument();
    ToXml_Int(&writer, true, GetNamespace().c_str(), context, false);
    writer.WriteEndDocument();
    writer.Close();
}

std::wstring CXmlObjectBase::ToJson(bool formatted, EOLType eol, const CSerializationContext& context) const
{
    CheckVersion();
    CTextStream stream;
    WriteJson(stream, formatted, eol, context, false);
    return std::wstring(stream.GetText(), stream.GetLength());
}

CBinaryData CXmlObjectBase::ToJsonStream(bool formatted, XmlEncoding encoding, EOLType eol,
    const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    return EntryPointFiles::Compressed(
        EntryPointFiles::WriteOctets(
            encoding, [&](CTextStream& stream) { WriteJson(stream, formatted, eol, context, true); }),
        compression);
}

void CXmlObjectBase::ToJsonFile(const wchar_t* fileName, bool formatted, XmlEncoding encoding, EOLType eol,
    const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    EntryPointFiles::RefuseZLib(compression);
    if (EntryPointFiles::IsWrittenDirectly(compression)) {
        CFileTextStream stream(fileName, encoding);
        WriteJson(stream, formatted, eol, context, false);
        return;
    }
    CBinaryData bytes = ToJsonStream(formatted, encoding, eol, context, compression);
    EntryPointFiles::WriteWhole(fileName, encoding, compression, bytes);
}

void CXmlObjectBase::FromJson_Int(const CBinaryData& bytes, const CSerializationContext& context)
{
    ReadConverted(DecodeUtf8Text(bytes.GetData(), bytes.GetLength()), context);
}

void CXmlObjectBase::ReadConverted(const WideText& text, const CSerializationContext& context)
{
    std::optional<CFormatSettings::IgnoringNamespaces> scope;
    if (CFormatSettings::Json(context).GetSupportRoundtrip() != JsonRoundTrip_Full) {
        // kept: required behaviour. The caller's context is altered for the time of the call.
        scope.emplace(context);
    }
    const ConvertedTextScope converted;
    try {
        FromXml(text.characters.get(), context);
    } catch (const CZrException& exception) {
        throw CZrException(
            FormatString(Message::JSON_CONVERSION_FAILED, text.characters.get()), std::wstring(), exception);
    }
}

void CXmlObjectBase::FromJsonFile(const wchar_t* fileName, const CSerializationContext& context)
{
    CheckVersion();
    ReadConverted(CXmlDocument(context).ConvertJsonFile(fileName), context);
}

void CXmlObjectBase::FromJson(const char* text, const CSerializationContext& context)
{
    CheckVersion();
    ReadConverted(CXmlDocument(context).ConvertJson(text), context);
}

void CXmlObjectBase::FromJson(const wchar_t* text, const CSerializationContext& context)
{
    CheckVersion();
    ReadConverted(CXmlDocument(context).ConvertJson(text), context);
}

void CXmlObjectBase::FromJsonStream(
    const unsigned char* bytes, unsigned long length, const CSerializationContext& context)
{
    CheckVersion();
    ReadConverted(CXmlDocument(context).ConvertJsonStream(bytes, length), context);
}

void CXmlObjectBase::FromJsonStream(const CBinaryData& bytes, const CSerializationContext& context)
{
    FromJsonStream(bytes.GetData(), bytes.GetLength(), context);
}

void ReadJson(CXmlDocument& tree, std::string_view document)
{
    const CBinaryData xml =
        tree.LoadJsonStream(reinterpret_cast<const unsigned char*>(document.data()), document.length());
    const ConvertedTextScope converted;
    tree.LoadXmlStream(xml.GetData(), xml.GetLength());
}

} // namespace ZrXmlLib16
