// SPDX-License-Identifier: MIT
#include "GpxFile.h"

#include "Extensions.h"
#include "Stopwatch.h"
#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"

#include <filesystem>

namespace Demo {

using ZrXmlLib16::CSerializationContext;
using ZrXmlLib16::CXmlElement;
using ZrXmlLib16::CZrException;

namespace {

constexpr wchar_t INSTANCE_NAMESPACE[] = L"http://www.w3.org/2001/XMLSchema-instance";
constexpr wchar_t SCHEMA_LOCATION[] = L"http://www.topografix.com/GPX/1/1 http://www.topografix.com/GPX/1/1/gpx.xsd";

/// Reading takes any root element, because the object takes the name that it is read under.
void RequireGpxRoot(const CXmlElement& root)
{
    if (root.GetLocalName() != L"gpx" || root.GetNamespaceURI() != Gpx::NAMESPACE) {
        throw CZrException(L"This is not a GPX 1.1 document: the root element is [" + root.GetLocalName()
            + L"] in the namespace [" + root.GetNamespaceURI() + L"].");
    }
}

unsigned long FileSize(const std::wstring& fileName)
{
    return std::filesystem::file_size(ZrXmlLib16::CEncoder::UnicodeToUtf8(fileName));
}

/// No element undeclares the default namespace, so there must be none when an element is in no namespace.
bool MayHaveDefaultNamespace(const Gpx::CGpx& gpx)
{
    for (const ZrXmlLib16::CElement* element : FindUntypedElements(gpx)) {
        if (element->GetNamespace().empty()) {
            return false;
        }
    }
    return true;
}

/// Each namespace gets its first prefix, unless that has another meaning already.
void AddPrefixes(const Prefixes& prefixes, ZrXmlLib16::CNamespaceAliasMap& aliases)
{
    for (const auto& [prefix, uri] : prefixes) {
        if (!prefix.empty() && !aliases.DoesNamespaceExist(uri.c_str()) && !aliases.DoesAliasExist(prefix.c_str())) {
            aliases.Add(prefix.c_str(), uri.c_str());
        }
    }
}

/// JSON declares all namespaces on its root element.
void AddInventedPrefix(const std::wstring& uri, ZrXmlLib16::CNamespaceAliasMap& aliases)
{
    std::wstring prefix;
    for (int number = 1; prefix.empty() || aliases.DoesAliasExist(prefix.c_str()); ++number) {
        prefix = L"ns" + std::to_wstring(number);
    }
    if (!uri.empty() && !aliases.DoesNamespaceExist(uri.c_str())) {
        aliases.Add(prefix.c_str(), uri.c_str());
    }
}

} // namespace

ReadResult ReadGpxFile(const std::wstring& fileName)
{
    const Stopwatch stopwatch;
    ReadResult result{};
    result.gpx = new Gpx::CGpx;
    CSerializationContext context;
    ZrXmlLib16::CXmlDocument document(context);
    document.Load(fileName.c_str());
    CXmlElement* root = document.GetDocumentElement();
    if (!root) {
        throw CZrException(L"The document has no root element.");
    }
    RequireGpxRoot(*root);
    try {
        result.gpx->FromXmlElement(root, context);
    } catch (const CZrException& exception) {
        result.deviation = FormatReport(exception);
        context.SetIgnoreUnknownElements(true);
        context.SetIgnoreUnknownAttributes(true);
        result.gpx->FromXmlElement(root, context);
    }
    RemoveIndentation(*result.gpx);
    result.prefixes = document.GetNamespaceDeclarations();
    result.cost = {stopwatch.GetSeconds(), FileSize(fileName)};
    return result;
}

void PrepareToWrite(const Gpx::CGpx& gpx, const Prefixes& prefixes, CSerializationContext& context)
{
    context.SetWriteTypeAttribute(false);
    ZrXmlLib16::CNamespaceAliasMap& aliases = context.GetNamespaceAliases();
    aliases.Add(L"xsi", INSTANCE_NAMESPACE);
    AddPrefixes(prefixes, aliases);
    for (const ZrXmlLib16::CElement* element : FindUntypedElements(gpx)) {
        AddInventedPrefix(element->GetNamespace(), aliases);
    }
    if (MayHaveDefaultNamespace(gpx)) {
        context.SetDefaultNamespaceURI(Gpx::NAMESPACE);
    }
    context.GetAdditionalRootAttributes()->Add(INSTANCE_NAMESPACE, SCHEMA_LOCATION, L"schemaLocation");
}

Cost WriteGpxFile(const Gpx::CGpx& gpx, const Prefixes& prefixes, const std::wstring& fileName)
{
    CSerializationContext context;
    PrepareToWrite(gpx, prefixes, context);
    const Stopwatch stopwatch;
    gpx.ToXmlFile(fileName.c_str(), true, true, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context);
    const double seconds = stopwatch.GetSeconds();
    return {seconds, FileSize(fileName)};
}

} // namespace Demo
