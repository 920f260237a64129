// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetContext.h"

#include "ZrXmlLib16/ItemType.h"
#include "lexical/ItemTypeTable.h"

#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long DEFAULT_MAXIMUM_ADD_LENGTH = 6;

} // namespace

CFastInfosetContext::CFastInfosetContext()
    : m_defaultStringEncoding(Utf8)
    , m_encodings{}
    , m_attributeMaxAddLength(DEFAULT_MAXIMUM_ADD_LENGTH)
    , m_elementMaxAddLength(DEFAULT_MAXIMUM_ADD_LENGTH)
    , m_useGeneratedVocabulary(false)
{
}

CFastInfosetContext::CFastInfosetContext(const CFastInfosetContext& other) = default;

CFastInfosetContext& CFastInfosetContext::operator=(const CFastInfosetContext& other) = default;

CFastInfosetContext::~CFastInfosetContext() = default;

unsigned long CFastInfosetContext::GetAttributeMaxAddLength() const
{
    return m_attributeMaxAddLength;
}

void CFastInfosetContext::SetAttributeMaxAddLength(unsigned long length)
{
    m_attributeMaxAddLength = length;
}

unsigned long CFastInfosetContext::GetElementMaxAddLength() const
{
    return m_elementMaxAddLength;
}

void CFastInfosetContext::SetElementMaxAddLength(unsigned long length)
{
    m_elementMaxAddLength = length;
}

bool CFastInfosetContext::GetUseGeneratedVocabulary() const
{
    return m_useGeneratedVocabulary;
}

void CFastInfosetContext::SetUseGeneratedVocabulary(bool value)
{
    m_useGeneratedVocabulary = value;
}

std::wstring CFastInfosetContext::GetExternalVocabularyURI() const
{
    return m_externalVocabularyUri;
}

void CFastInfosetContext::SetExternalVocabularyURI(std::wstring uri)
{
    m_externalVocabularyUri = std::move(uri);
}

CFastInfosetContext::DefaultStringEncoding CFastInfosetContext::GetDefaultStringEncoding() const
{
    return m_defaultStringEncoding;
}

void CFastInfosetContext::SetDefaultStringEncoding(DefaultStringEncoding encoding)
{
    m_defaultStringEncoding = encoding;
}

CFIVocabulary* CFastInfosetContext::GetVocabulary() const
{
    return &m_vocabulary;
}

CFastInfosetContext::EncodedCharacterString CFastInfosetContext::GetEncoding(unsigned long itemType) const
{
    return itemType < ITEM_TYPE_COUNT ? m_encodings[itemType] : EncodedCharacterString{Literal, 0};
}

void CFastInfosetContext::SetEncoding(unsigned long itemType, EncodedCharacterString encoding)
{
    if (itemType < ITEM_TYPE_COUNT) {
        m_encodings[itemType] = encoding;
    }
}

void CFastInfosetContext::SetSuggestedValues()
{
    for (int type = ItemType_hexBinary; type <= ItemType_integer; ++type) {
        const SuggestedEncoding& suggested = FindItemType(type)->suggestedEncoding;
        if (suggested.kind != SuggestedEncoding::Unchanged) {
            m_encodings[type] = {static_cast<EncodingKind>(suggested.kind), suggested.number};
        }
    }
}

} // namespace ZrXmlLib16
