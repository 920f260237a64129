// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FASTINFOSETCONTEXT_H
#define ZRXMLLIB16_FASTINFOSETCONTEXT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/FIVocabulary.h"

#include <string>

namespace ZrXmlLib16 {

/// The settings of Fast Infoset, part of a CSerializationContext. Reading and writing never change it, so a context
/// that is set up may be shared by threads.
class ZRXML_API CFastInfosetContext {
public:
    /// How the values of an item type are encoded (ITU-T X.891, 7.17): as text, with a restricted alphabet (9) or with
    /// an encoding algorithm (10).
    enum EncodingKind : int { Literal = 0, RestrictedAlphabet = 1, EncodingAlgorithm = 2 };
    /// Encoding of literal values.
    enum DefaultStringEncoding : unsigned char { Utf8 = 0, Utf16BE = 1 };
    /// How the values of one item type are encoded; the number is that of the alphabet (1 numeric, 2 date and time) or
    /// of the algorithm (1 hexadecimal, 2 base64, 3 short, 4 int, 5 long, 6 boolean, 7 float, 8 double, 9 uuid, 10
    /// cdata).
    struct EncodedCharacterString {
        EncodingKind kind;    ///< text, alphabet or algorithm
        unsigned long number; ///< of the alphabet or algorithm; without meaning for text
    };

    /// All item types literal.
    CFastInfosetContext();
    CFastInfosetContext(const CFastInfosetContext& other);
    CFastInfosetContext& operator=(const CFastInfosetContext& other);
    virtual ~CFastInfosetContext();

    /// Attribute values of fewer characters than this are indexed. Default 6.
    unsigned long GetAttributeMaxAddLength() const;
    void SetAttributeMaxAddLength(unsigned long length);
    /// Element text of fewer characters than this is indexed. Default 6.
    unsigned long GetElementMaxAddLength() const;
    void SetElementMaxAddLength(unsigned long length);
    /// Whether documents start from GetVocabulary() instead of the built-in entries. Writer and reader must use equal
    /// vocabularies. Default false.
    bool GetUseGeneratedVocabulary() const;
    void SetUseGeneratedVocabulary(bool value);
    /// The URI that announces the generated vocabulary; when it is empty, one of the library's own is written. It is
    /// not compared on reading. Default empty.
    std::wstring GetExternalVocabularyURI() const;
    void SetExternalVocabularyURI(std::wstring uri);
    /// Encoding of literal values. Documents in UTF-16BE are read, but the writer refuses it. Default Utf8.
    DefaultStringEncoding GetDefaultStringEncoding() const;
    void SetDefaultStringEncoding(DefaultStringEncoding encoding);
    /// Never null; the context's own.
    CFIVocabulary* GetVocabulary() const;
    /// How the values of an item type are encoded.
    /// @param itemType a value of ItemType; the encoding of any other number is literal and cannot be set.
    EncodedCharacterString GetEncoding(unsigned long itemType) const;
    void SetEncoding(unsigned long itemType, EncodedCharacterString encoding);
    /// Sets the compact encodings: an algorithm for binary, integer, floating and boolean values, an alphabet for
    /// dates, times and decimals. A dateTime with a fraction or a positive zone cannot be written in that alphabet:
    /// make datetime literal again where such values occur.
    void SetSuggestedValues();

private:
    static constexpr unsigned long ITEM_TYPE_COUNT = 29;

    DefaultStringEncoding m_defaultStringEncoding;
    EncodedCharacterString m_encodings[ITEM_TYPE_COUNT];
    unsigned long m_attributeMaxAddLength;
    unsigned long m_elementMaxAddLength;
    bool m_useGeneratedVocabulary;
    mutable CFIVocabulary m_vocabulary;
    std::wstring m_externalVocabularyUri;
};

} // namespace ZrXmlLib16

#endif
