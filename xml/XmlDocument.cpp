// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlDocument.h"

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlElement.h"
#include "xml/DocumentStorage.h"
#include "xml/TreeBuilder.h"

#include <algorithm>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t CARRIAGE_RETURN = 13;

} // namespace

CXmlDocument::CXmlDocument()
    : CXmlDocument(nullptr, CSerializationContext::m_defaultContext)
{
}

CXmlDocument::CXmlDocument(const CSerializationContext& context)
    : CXmlDocument(nullptr, context)
{
}

CXmlDocument::CXmlDocument(bool (*elementEnd)(CXmlElement*))
    : CXmlDocument(elementEnd, CSerializationContext::m_defaultContext)
{
}

CXmlDocument::CXmlDocument(bool (*elementEnd)(CXmlElement*), const CSerializationContext& context)
    : m_input(nullptr)
    , m_inputSize(0)
    , m_elementCount(0)
    , m_maximumElements(0)
    , m_nameCharacters(0)
    , m_schemaType(SchemaType_XSD)
    , m_elementEnd(elementEnd)
    , m_context(&context)
{
    Init();
}

CXmlDocument::~CXmlDocument()
{
    DestroyTree();
}

void CXmlDocument::Cleanup()
{
    DestroyTree();
    DestroyInput();
    m_aliases.clear();
    m_prefixMap.clear();
}

void CXmlDocument::Init()
{
    DestroyTree();
    DestroyInput();
    m_schemaType = m_context->GetSchemaType();
}

void CXmlDocument::DestroyTree() noexcept
{
    m_elementStack.clear();
    m_elementCount = 0;
    m_nameCharacters = 0;
    if (m_storage && m_storage->HasWholeTree()) {
        static_cast<void>(m_documentElement.release());
        m_storage.release()->Drop();
        return;
    }
    m_documentElement.reset();
    m_storage.reset();
}

void CXmlDocument::DestroyInput() noexcept
{
    m_inputBuffer.reset();
    m_input = nullptr;
    m_inputSize = 0;
}

void CXmlDocument::StorageDeleter::operator()(DocumentStorage* storage) const noexcept
{
    storage->Abandon();
}

DocumentStorage& CXmlDocument::GetStorage()
{
    if (!m_storage) {
        m_storage.reset(new DocumentStorage(*this, m_inputSize));
    }
    return *m_storage;
}

CXmlElement* CXmlDocument::GetDocumentElement() const
{
    return m_documentElement.get();
}

CXmlElement* CXmlDocument::AddDocElement(const std::wstring& namespaceUri, const std::wstring& name)
{
    return &TreeBuilder(*this).OpenRoot(GetStorage().GetNames().Intern(namespaceUri, name));
}

CXmlElement* CXmlDocument::AddChildElement(const std::wstring& namespaceUri, const std::wstring& name)
{
    return &TreeBuilder(*this).OpenChild(GetStorage().GetNames().Intern(namespaceUri, name));
}

CXmlElement& CXmlDocument::RequireOpenElement(CXmlElement* element)
{
    if (!element) {
        TreeBuilder::ThrowNoElementOpen();
    }
    TreeBuilder(*this).RequireOpenElement();
    return *element;
}

void CXmlDocument::AddElementAttribute(
    CXmlElement* element, const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri)
{
    RequireOpenElement(element).AddAttribute(localName, value, namespaceUri);
}

void CXmlDocument::AppendTextExcludingCR(CXmlElement* element, const wchar_t* text, unsigned long length)
{
    CXmlElement& target = RequireOpenElement(element);
    const wchar_t* const end = text ? text + wcsnlen(text, length) : nullptr;
    while (text != end) {
        const wchar_t* const runEnd = std::find(text, end, CARRIAGE_RETURN);
        target.AppendText(text, static_cast<unsigned long>(runEnd - text));
        text = runEnd == end ? end : runEnd + 1;
    }
}

void CXmlDocument::AppendTextExcludingCR(CXmlElement* element, const std::wstring& text)
{
    AppendTextExcludingCR(element, text.data(), text.size());
}

void CXmlDocument::EndElement()
{
    TreeBuilder(*this).EndElement();
}

void CXmlDocument::AddNamespaceDeclaration(const std::wstring& prefix, const std::wstring& uri)
{
    m_aliases.clear();
    m_prefixMap[prefix] = uri;
}

std::wstring CXmlDocument::LookupNamespaceFromAlias(const std::wstring& prefix) const
{
    const auto found = m_prefixMap.find(prefix);
    return found == m_prefixMap.end() ? std::wstring() : found->second;
}

std::wstring CXmlDocument::LookupAliasFromNamespace(const std::wstring& uri) const
{
    if (m_aliases.empty()) {
        for (const auto& [prefix, boundUri] : m_prefixMap) {
            m_aliases.emplace(boundUri, prefix);
        }
    }
    const auto found = m_aliases.find(uri);
    return found == m_aliases.end() ? std::wstring() : found->second;
}

const std::map<std::wstring, std::wstring>& CXmlDocument::GetNamespaceDeclarations() const
{
    return m_prefixMap;
}

CXmlElement* CXmlDocument::GetCurrentElement() const
{
    return m_elementStack.empty() ? nullptr : m_elementStack.back();
}

const unsigned char* CXmlDocument::GetInputBuffer() const
{
    return m_input;
}

unsigned long CXmlDocument::GetInputSize() const
{
    return m_inputSize;
}

SchemaType CXmlDocument::GetSchemaType() const
{
    return m_schemaType;
}

const CSerializationContext& CXmlDocument::GetSerializationContext() const
{
    return *m_context;
}

} // namespace ZrXmlLib16
