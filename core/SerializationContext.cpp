// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/SerializationContext.h"

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/CoreMessages.h"
#include "core/TextArgument.h"

#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr int DEFAULT_MAXIMUM_DEPTH = 1024;

} // namespace

CSerializationContext::CSerializationContext()
    : m_writeTypeAttribute(true)
    , m_ignoreInvalidCollectionCounts(false)
    , m_ignoreMissingChoice(false)
    , m_ignoreMissingMandatoryElements(false)
    , m_ignoreUnknownElements(false)
    , m_ignoreUnknownAttributes(false)
    , m_ignoreNamespaces(false)
    , m_schemaType(SchemaType_XSD)
    , m_noOptionalAttributeDefaultOutput(false)
    , m_writeDefaultElementValues(false)
    , m_stripCDATA(true)
    , m_indentChars(1, L'\t')
    , m_maxDepth(DEFAULT_MAXIMUM_DEPTH)
{
}

CSerializationContext::CSerializationContext(const CSerializationContext& other) = default;

CSerializationContext::~CSerializationContext() = default;

CSerializationContext& CSerializationContext::operator=(const CSerializationContext& other) = default;

CFastInfosetContext& CSerializationContext::GetFIContext() const
{
    if (!m_fastInfosetContext) {
        m_fastInfosetContext = std::make_shared<CFastInfosetContext>();
    }
    return *m_fastInfosetContext;
}

const CFastInfosetContext* CSerializationContext::FindFIContext() const
{
    return m_fastInfosetContext.get();
}

CJsonContext& CSerializationContext::GetJsonContext() const
{
    if (!m_jsonContext) {
        m_jsonContext = std::make_shared<CJsonContext>();
    }
    return *m_jsonContext;
}

const CJsonContext* CSerializationContext::FindJsonContext() const
{
    return m_jsonContext.get();
}

std::wstring CSerializationContext::GetDefaultNamespaceURI() const
{
    return m_defaultNamespaceUri;
}

void CSerializationContext::SetDefaultNamespaceURI(const wchar_t* uri)
{
    m_defaultNamespaceUri = TextOrEmpty(uri);
}

CNamespaceAliasMap& CSerializationContext::GetNamespaceAliases()
{
    return m_namespaceAliases;
}

const CNamespaceAliasMap& CSerializationContext::GetNamespaceAliases() const
{
    return m_namespaceAliases;
}

CSmartPtr<CAttributeCol> CSerializationContext::GetAdditionalRootAttributes() const
{
    if (!m_additionalRootAttributes) {
        m_additionalRootAttributes = new CAttributeCol(L"", L"##any", L"");
    }
    return m_additionalRootAttributes;
}

const CAttributeCol* CSerializationContext::FindAdditionalRootAttributes() const
{
    return m_additionalRootAttributes;
}

std::list<std::wstring>& CSerializationContext::GetProcessingInstructions()
{
    return m_processingInstructions;
}

const std::list<std::wstring>& CSerializationContext::GetProcessingInstructions() const
{
    return m_processingInstructions;
}

std::wstring CSerializationContext::GetInLineSchema() const
{
    return m_inLineSchema;
}

void CSerializationContext::SetInLineSchema(const wchar_t* schema)
{
    m_inLineSchema = TextOrEmpty(schema);
}

void CSerializationContext::SetIgnoreUnknownElements(bool value)
{
    if (value && m_ignoreMissingMandatoryElements) {
        throw CZrInvalidStateException(Message::UNKNOWN_EXCLUDES_MISSING);
    }
    m_ignoreUnknownElements = value;
}

void CSerializationContext::SetIgnoreMissingMandatoryElements(bool value)
{
    if (value && m_ignoreUnknownElements) {
        throw CZrInvalidStateException(Message::MISSING_EXCLUDES_UNKNOWN);
    }
    m_ignoreMissingMandatoryElements = value;
}

SchemaType CSerializationContext::GetSchemaType() const
{
    return m_schemaType;
}

void CSerializationContext::SetSchemaType(SchemaType value)
{
    m_schemaType = value;
}

std::wstring CSerializationContext::GetIndentChars() const
{
    return m_indentChars;
}

void CSerializationContext::SetIndentChars(const wchar_t* text)
{
    const wchar_t* indent = TextOrEmpty(text);
    if (indent[std::wcsspn(indent, L"\t ")] != L'\0') {
        throw CZrInvalidParamException(Message::INDENT_NOT_WHITESPACE);
    }
    m_indentChars = indent;
}

int CSerializationContext::GetMaxDepth() const
{
    return m_maxDepth;
}

void CSerializationContext::SetMaxDepth(int levels)
{
    if (levels < 1) {
        throw CZrInvalidParamException(Message::MAXIMUM_DEPTH_TOO_SMALL);
    }
    m_maxDepth = levels;
}

const CInputLimits& CSerializationContext::GetInputLimits() const
{
    return m_inputLimits;
}

void CSerializationContext::SetInputLimits(const CInputLimits& limits)
{
    m_inputLimits = limits;
}

bool CSerializationContext::GetWriteTypeAttribute() const
{
    return m_writeTypeAttribute;
}

void CSerializationContext::SetWriteTypeAttribute(bool value)
{
    m_writeTypeAttribute = value;
}

bool CSerializationContext::GetIgnoreInvalidCollectionCounts() const
{
    return m_ignoreInvalidCollectionCounts;
}

void CSerializationContext::SetIgnoreInvalidCollectionCounts(bool value)
{
    m_ignoreInvalidCollectionCounts = value;
}

bool CSerializationContext::GetIgnoreMissingChoice() const
{
    return m_ignoreMissingChoice;
}

void CSerializationContext::SetIgnoreMissingChoice(bool value)
{
    m_ignoreMissingChoice = value;
}

bool CSerializationContext::GetIgnoreMissingMandatoryElements() const
{
    return m_ignoreMissingMandatoryElements;
}

bool CSerializationContext::GetIgnoreUnknownElements() const
{
    return m_ignoreUnknownElements;
}

bool CSerializationContext::GetIgnoreUnknownAttributes() const
{
    return m_ignoreUnknownAttributes;
}

void CSerializationContext::SetIgnoreUnknownAttributes(bool value)
{
    m_ignoreUnknownAttributes = value;
}

bool CSerializationContext::GetIgnoreNamespaces() const
{
    return m_ignoreNamespaces;
}

void CSerializationContext::SetIgnoreNamespaces(bool value)
{
    m_ignoreNamespaces = value;
}

bool CSerializationContext::GetNoOptionalAttributeDefaultOutput() const
{
    return m_noOptionalAttributeDefaultOutput;
}

void CSerializationContext::SetNoOptionalAttributeDefaultOutput(bool value)
{
    m_noOptionalAttributeDefaultOutput = value;
}

bool CSerializationContext::GetWriteDefaultElementValues() const
{
    return m_writeDefaultElementValues;
}

void CSerializationContext::SetWriteDefaultElementValues(bool value)
{
    m_writeDefaultElementValues = value;
}

bool CSerializationContext::GetStripCDATA() const
{
    return m_stripCDATA;
}

void CSerializationContext::SetStripCDATA(bool value)
{
    m_stripCDATA = value;
}

} // namespace ZrXmlLib16
