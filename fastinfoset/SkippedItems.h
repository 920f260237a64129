// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_SKIPPEDITEMS_H
#define FASTINFOSET_SKIPPEDITEMS_H

namespace ZrXmlLib16 {

class OctetReader;

/// The octet that ends a list, the last of an element or the one of a document, and the octet that ends two at once.
constexpr unsigned char TERMINATOR = 0xF0;
constexpr unsigned char DOUBLE_TERMINATOR = 0xFF;
constexpr unsigned char PROCESSING_INSTRUCTION = 0xE1;
constexpr unsigned char COMMENT = 0xE2;

constexpr bool IsDocumentType(unsigned char octet)
{
    return (octet & 0xFC) == 0xC4;
}

constexpr bool IsEntityReference(unsigned char octet)
{
    return (octet & 0xFC) == 0xC8;
}

/// Pass over what documents may contain and this library does not keep. Nothing in it enters a table, and no index in
/// it is looked up. The first octet has been fetched; it is an argument where it tells what follows.
void SkipProcessingInstruction(OctetReader& input);
void SkipComment(OctetReader& input);
void SkipEntityReference(OctetReader& input, unsigned char first);
void SkipDocumentType(OctetReader& input, unsigned char first);

/// An identifying string or index (X.891, C.13).
void SkipIdentifyingString(OctetReader& input);
/// System and public identifier, which the last two bits of the octet announce.
void SkipIdentifiers(OctetReader& input, unsigned char presence);
/// A string or index that identifies nothing, from the first bit (C.14).
void SkipStringOrIndex(OctetReader& input);

} // namespace ZrXmlLib16

#endif
