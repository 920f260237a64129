// SPDX-License-Identifier: MIT
#include "fastinfoset/ItemWriter.h"

#include "ZrXmlLib16/Formatting.h"
#include "fastinfoset/EncodingAlgorithms.h"

namespace ZrXmlLib16 {

namespace {

// In front of a literal name: what it names, and which of its parts follow.
constexpr unsigned int LITERAL_ELEMENT_NAME = 0x3C;
constexpr unsigned int LITERAL_ATTRIBUTE_NAME = 0x78;
constexpr unsigned int PREFIX_AND_NAMESPACE_FOLLOW = 0x03;
constexpr unsigned int NAMESPACE_FOLLOWS = 0x01;

constexpr unsigned int IDENTIFYING_INDEX = 0x80;
constexpr unsigned int ATTRIBUTE_VALUE_INDEX = 0x80;

} // namespace

/// How a value is laid out that starts on some bit: the bits in front of an index, of a text that the reader shall add
/// to the table and of one it shall not; then the encoded string, with the bits that tell its encoding and where in the
/// second octet the number of an alphabet or algorithm ends. The higher bits of the number stand in the first octet,
/// and are 0 for the built-in ones.
struct ItemWriter::ValueForm {
    VocabularyTable table;
    const Codec& indexCodec;
    unsigned int indexBits;
    unsigned int addedBits;
    unsigned int literalBits;
    const Codec& lengthCodec;
    unsigned int alphabetBits;
    unsigned int algorithmBits;
    unsigned int numberShift;
    const wchar_t* unknownEncodingMessage;
};

const ItemWriter::ValueForm ItemWriter::ATTRIBUTE_VALUE = {VocabularyTable::AttributeValues, INTEGER_ON_BIT_2,
    ATTRIBUTE_VALUE_INDEX, 0x40, 0x00, LENGTH_ON_BIT_5, 0x20, 0x30, 4, Message::UNKNOWN_ENCODING_ON_BIT_3};
const ItemWriter::ValueForm ItemWriter::CHARACTER_CHUNK = {VocabularyTable::CharacterChunks, INTEGER_ON_BIT_4, 0xA0,
    0x90, 0x80, LENGTH_ON_BIT_7, 0x08, 0x0C, 2, Message::UNKNOWN_ENCODING_ON_BIT_5};

ItemWriter::ItemWriter(const CFastInfosetContext& context, OctetWriter& octets)
    : m_context(context)
    , m_octets(octets)
    , m_vocabulary(context)
{
}

void ItemWriter::WriteIdentifyingString(VocabularyTable table, const std::wstring& text)
{
    WriteIdentifyingString(m_vocabulary.FindOrAdd(table, text), text);
}

void ItemWriter::WriteIdentifyingString(unsigned long index, const std::wstring& text)
{
    if (text.empty()) {
        throw CZrException(Message::NAME_EMPTY);
    }
    if (index != 0) {
        m_octets.PutCode(INTEGER_ON_BIT_2, index, IDENTIFYING_INDEX);
    } else {
        m_octets.PutText(LENGTH_ON_BIT_2, 0, text);
    }
}

void ItemWriter::WriteElementName(unsigned int leadingBits, const WriterVocabulary::NameIndexes& indexes,
    const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
{
    WriteName(leadingBits | LITERAL_ELEMENT_NAME, indexes, prefix, namespaceUri, localName);
}

void ItemWriter::WriteAttributeName(
    const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
{
    const WriterVocabulary::NameIndexes indexes =
        m_vocabulary.FindOrAddName(VocabularyTable::AttributeNames, prefix, namespaceUri, localName);
    if (indexes.name != 0) {
        m_octets.PutCode(INTEGER_ON_BIT_2, indexes.name, 0);
    } else {
        WriteName(LITERAL_ATTRIBUTE_NAME, indexes, prefix, namespaceUri, localName);
    }
}

void ItemWriter::WriteName(unsigned int literalBits, const WriterVocabulary::NameIndexes& indexes,
    const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
{
    const unsigned int parts = !prefix.empty() ? PREFIX_AND_NAMESPACE_FOLLOW
        : !namespaceUri.empty()                ? NAMESPACE_FOLLOWS
                                               : 0;
    m_octets.Put(literalBits | parts);
    if (!prefix.empty()) {
        WriteIdentifyingString(indexes.prefix, prefix);
    }
    if (!namespaceUri.empty()) {
        WriteIdentifyingString(indexes.namespaceName, namespaceUri);
    }
    WriteIdentifyingString(indexes.localName, localName);
}

void ItemWriter::WriteAttributeValue(const std::wstring& value, ItemType type)
{
    if (value.empty()) {
        m_octets.Put(ATTRIBUTE_VALUE_INDEX | ZERO_ON_BIT_2);
    } else {
        WriteValue(ATTRIBUTE_VALUE, value, m_context.GetAttributeMaxAddLength(), type);
    }
}

void ItemWriter::WriteCharacterChunk(const std::wstring& text, ItemType type)
{
    WriteValue(CHARACTER_CHUNK, text, m_context.GetElementMaxAddLength(), type);
}

void ItemWriter::WriteValue(
    const ValueForm& form, const std::wstring& text, unsigned long maximumAddLength, ItemType type)
{
    if (text.size() >= maximumAddLength) {
        WriteEncodedString(form, form.literalBits, text, type);
        return;
    }
    const unsigned long index = m_vocabulary.FindOrAdd(form.table, text);
    if (index != 0) {
        m_octets.PutCode(form.indexCodec, index, form.indexBits);
    } else {
        WriteEncodedString(form, form.addedBits, text, type);
    }
}

void ItemWriter::WriteEncodedString(
    const ValueForm& form, unsigned int leadingBits, const std::wstring& text, ItemType type)
{
    const auto [kind, number] = m_context.GetEncoding(static_cast<unsigned long>(type));
    switch (kind) {
    case CFastInfosetContext::Literal:
        WriteLiteral(form, leadingBits, text);
        return;
    case CFastInfosetContext::RestrictedAlphabet:
        GetPacker(number).Pack(text, m_encoded);
        WriteNumberedOctets(form, leadingBits | form.alphabetBits, number);
        return;
    case CFastInfosetContext::EncodingAlgorithm:
        if (number < EncodingAlgorithms::Hexadecimal || number > EncodingAlgorithms::Cdata) {
            throw CZrException(FormatString(Message::ALGORITHM_NUMBER_INVALID, static_cast<int>(number)));
        }
        EncodingAlgorithms::Encode(number, text, m_encoded);
        if (m_encoded.empty()) {
            // An octet string cannot be empty, as it would be for base64 without a valid character.
            WriteLiteral(form, leadingBits, text);
        } else {
            WriteNumberedOctets(form, leadingBits | form.algorithmBits, number);
        }
        return;
    }
    throw CZrException(form.unknownEncodingMessage);
}

void ItemWriter::WriteLiteral(const ValueForm& form, unsigned int leadingBits, const std::wstring& text)
{
    if (m_context.GetDefaultStringEncoding() == CFastInfosetContext::Utf16BE) {
        throw CZrException(Message::UTF16BE_NOT_WRITTEN);
    }
    m_octets.PutText(form.lengthCodec, leadingBits, text);
}

void ItemWriter::WriteNumberedOctets(const ValueForm& form, unsigned int leadingBits, unsigned long number)
{
    const auto numberBits = static_cast<unsigned int>(number - 1) << form.numberShift;
    m_octets.Put(leadingBits);
    m_octets.PutOctetString(form.lengthCodec, numberBits, m_encoded.data(), m_encoded.size());
}

const AlphabetPacker& ItemWriter::GetPacker(unsigned long alphabet)
{
    if (alphabet < 1 || alphabet > ALPHABET_COUNT) {
        throw CZrException(FormatString(Message::ALPHABET_NUMBER_INVALID, static_cast<int>(alphabet)));
    }
    std::optional<AlphabetPacker>& packer = m_packers[alphabet - 1];
    if (!packer) {
        packer.emplace(m_vocabulary.GetRestrictedAlphabet(alphabet));
    }
    return *packer;
}

} // namespace ZrXmlLib16
