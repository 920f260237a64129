// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_FASTINFOSETMESSAGES_H
#define FASTINFOSET_FASTINFOSETMESSAGES_H

/// Every fixed text of the Fast Infoset writer and of the encoding algorithms, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

// kept: required behaviour. These three name other string forms than the ones that raise them.
constexpr wchar_t UTF16BE_NOT_WRITTEN[] =
    L"Failed to write FastInfoset. Unsupported Feature UTF16BE in EncodedCharacterStringBit5.";
constexpr wchar_t UNKNOWN_ENCODING_ON_BIT_3[] =
    L"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit5.";
constexpr wchar_t UNKNOWN_ENCODING_ON_BIT_5[] =
    L"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit7.";
/// number (int)
constexpr wchar_t ALGORITHM_NUMBER_INVALID[] = L"Failed to write FastInfoset. Invalid Encoding Algorithm value [%d]";
/// number (int)
constexpr wchar_t ALPHABET_NUMBER_INVALID[] = L"Failed to write FastInfoset. Invalid Restricted Alphabet value [%d]";
constexpr wchar_t ALPHABET_LENGTH_INVALID[] =
    L"Failed to write FastInfoset. Invalid Restricted Alphabet. Alphabet must contain between 2 and 2^20 characters.";
constexpr wchar_t ALPHABET_NOT_PACKABLE[] =
    L"Failed to write FastInfoset. Unsupported Feature in AppendRestrictedAlphabetString.";
constexpr wchar_t CHARACTER_NOT_IN_ALPHABET[] =
    L"Failed to write FastInfoset. Invalid character not found for Restricted Alphabet.";
constexpr wchar_t VALUE_TOO_LONG[] = L"Failed to write FastInfoset. Value too long.";
constexpr wchar_t NAME_EMPTY[] = L"Failed to write FastInfoset. A name must not be empty.";
constexpr wchar_t TEXT_OUTSIDE_ELEMENT[] = L"Failed to write FastInfoset. Text must be inside an element.";
/// number (int)
constexpr wchar_t DECLARATION_INVALID[] = L"Failed to write FastInfoset. Invalid declaration value [%d]";

constexpr wchar_t UNKNOWN_BYTE_ENCODING[] = L"Unknown byte encoding.";
constexpr wchar_t SHORT_OCTETS_INVALID[] = L"Invalid value for SHORT byte encoding.";
constexpr wchar_t INT_OCTETS_INVALID[] = L"Invalid value for INT byte encoding.";
constexpr wchar_t LONG_OCTETS_INVALID[] = L"Invalid value for LONG byte encoding.";
constexpr wchar_t FLOAT_OCTETS_INVALID[] = L"Invalid value for FLOAT byte encoding.";
constexpr wchar_t DOUBLE_OCTETS_INVALID[] = L"Invalid value for DOUBLE byte encoding.";
constexpr wchar_t UUID_OCTETS_INVALID[] = L"Invalid value for UUID byte encoding.";

} // namespace Message
} // namespace ZrXmlLib16

#endif
