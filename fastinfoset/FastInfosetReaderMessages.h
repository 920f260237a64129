// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_FASTINFOSETREADERMESSAGES_H
#define FASTINFOSET_FASTINFOSETREADERMESSAGES_H

/// Every fixed text of the Fast Infoset reader, with its arguments.
// kept: required behaviour. In six of them two spaces stand before "on".
namespace ZrXmlLib16 {
namespace FastInfosetReaderMessages {

constexpr wchar_t UNEXPECTED_END[] = L"Failed to parse FastInfoset. Unexpected End of File.";
constexpr wchar_t INVALID_LENGTH_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the second bit of an octet.";
constexpr wchar_t INVALID_LENGTH_ON_BIT_5[] =
    L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the fifth bit of an octet.";
constexpr wchar_t INVALID_INTEGER_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the second bit of an octet.";
constexpr wchar_t INVALID_INTEGER_OR_ZERO_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 0 To 2^20 type  on the second bit of an octet.";
constexpr wchar_t INVALID_INTEGER_ON_BIT_3[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the third bit of an octet.";
constexpr wchar_t INVALID_INTEGER_ON_BIT_4[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the fourth bit of an octet.";
constexpr wchar_t INVALID_ALPHABET[] = L"Failed to parse FastInfoset. Invalid Encoding of Restricted Alphabet. "
                                       L"Alphabet must contain between 2 and 2^20 characters.";
constexpr wchar_t PREFIX_WITHOUT_NAMESPACE[] =
    L"Failed to parse FastInfoset. Invalid QName type Prefix without Namespace.";
constexpr wchar_t INVALID_ELEMENT[] = L"Failed to parse FastInfoset. Invalid Encoding of Element type.";
/// limit in characters
constexpr wchar_t TOO_MUCH_INDEXED_TEXT[] =
    L"Failed to parse FastInfoset. Indexed text exceeds the limit of [%lu] characters.";

} // namespace FastInfosetReaderMessages
} // namespace ZrXmlLib16

#endif
