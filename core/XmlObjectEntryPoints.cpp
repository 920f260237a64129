// SPDX-License-Identifier: MIT
// The entry points of CXmlObjectBase for XML, and those that read any document: each checks the version, builds a
// stream and a writer or a document, and starts a walk.
#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/FileTextStream.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/CoreMessages.h"
#include "core/EntryPointFiles.h"
#include "core/ErrorPosition.h"
#include "core/VersionCheck.h"
#include "xml/ConvertedTextScope.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16 {

void CXmlObjectBase::WriteDocument(
    CTextStream& stream, bool includeHeader, bool formatted, EOLType eol, const CSerializationContext& context) const
{
    CXmlTextWriter writer(stream);
    writer.m_joinsCalls = true;
    writer.Open();
    writer.SetFormat(formatted);
    writer.SetIndentChars(context.GetIndentChars().c_str());
    writer.SetEOLType(eol);
    writer.SetWriteDefaultElementValues(context.GetWriteDefaultElementValues());
    if (includeHeader) {
        writer.WriteStartDocument();
    }
    ToXml_Int(&writer, true, GetNamespace().c_str(), context, false);
    writer.Close();
}

std::wstring CXmlObjectBase::ToXml(
    bool includeHeader, bool formatted, EOLType eol, const CSerializationContext& context) const
{
    CheckVersion();
    CTextStream stream;
    WriteDocument(stream, includeHeader, formatted, eol, context);
    return std::wstring(stream.GetText(), stream.GetLength());
}

CBinaryData CXmlObjectBase::ToXmlStream(bool includeHeader, bool formatted, XmlEncoding encoding, EOLType eol,
    const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    return EntryPointFiles::Compressed(
        EntryPointFiles::WriteOctets(
            encoding, [&](CTextStream& stream) { WriteDocument(stream, includeHeader, formatted, eol, context); }),
        compression);
}

void CXmlObjectBase::ToXmlFile(const wchar_t* fileName, bool includeHeader, bool formatted, XmlEncoding encoding,
    EOLType eol, const CSerializationContext& context, CompressionType compression) const
{
    CheckVersion();
    EntryPointFiles::RefuseZLib(compression);
    if (EntryPointFiles::IsWrittenDirectly(compression)) {
        CFileTextStream stream(fileName, encoding);
        WriteDocument(stream, includeHeader, formatted, eol, context);
        return;
    }
    CBinaryData bytes = ToXmlStream(includeHeader, formatted, encoding, eol, context, compression);
    EntryPointFiles::WriteWhole(fileName, encoding, compression, bytes);
}

void CXmlObjectBase::ReadElement(const CXmlElement* element, const CSerializationContext& context)
{
    if (!element) {
        throw CZrException(Message::NO_ROOT_ELEMENT);
    }
    // The walk hands out pointers into the tree that generated code may keep moving along; it never writes through
    // them.
    CXmlElement* root = const_cast<CXmlElement*>(element);
    NodeAccess::BeginWalk(*root);
    ReadingAt(*root, [&] {
        if (FromXml_Int(root, root->GetFirstElement(), context, false) == root) {
            // Nothing but an untyped element refuses the whole of what it is given.
            if (const CElement* untyped = dynamic_cast<const CElement*>(this)) {
                untyped->ThrowNamespaceInvalid(root->GetNamespaceURI());
            }
        }
    });
}

void CXmlObjectBase::FromXmlFile(const wchar_t* fileName, const CSerializationContext& context)
{
    CheckVersion();
    CXmlDocument document(context);
    document.Load(fileName);
    ReadElement(document.GetDocumentElement(), context);
}

void CXmlObjectBase::FromXml(const char* text, const CSerializationContext& context)
{
    CheckVersion();
    CXmlDocument document(context);
    document.LoadXml(text);
    ReadElement(document.GetDocumentElement(), context);
}

void CXmlObjectBase::FromXml(const wchar_t* text, const CSerializationContext& context)
{
    CheckVersion();
    CXmlDocument document(context);
    document.LoadXml(text);
    ReadElement(document.GetDocumentElement(), context);
}

void CXmlObjectBase::FromXmlStream(
    const unsigned char* bytes, unsigned long length, const CSerializationContext& context)
{
    CheckVersion();
    CXmlDocument document(context);
    document.LoadXmlStream(bytes, length);
    ReadElement(document.GetDocumentElement(), context);
}

void CXmlObjectBase::FromXmlStream(const CBinaryData& bytes, const CSerializationContext& context)
{
    FromXmlStream(bytes.GetData(), bytes.GetLength(), context);
}

void CXmlObjectBase::FromXmlElement(const CXmlElement* element, const CSerializationContext& context)
{
    CheckVersion();
    ReadElement(element, context);
}

void CXmlObjectBase::FromXmlElement(const CElement* element, const CSerializationContext& context)
{
    CheckVersion();
    if (!element) {
        throw CZrException(Message::NO_ROOT_ELEMENT);
    }
    const ConvertedTextScope converted;
    FromXml(element->ToXml(false, false, EOL_LF).c_str(), context);
}

} // namespace ZrXmlLib16
