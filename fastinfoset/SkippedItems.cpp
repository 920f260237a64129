// SPDX-License-Identifier: MIT
#include "fastinfoset/SkippedItems.h"

#include "fastinfoset/EncodedString.h"
#include "fastinfoset/OctetReader.h"

namespace ZrXmlLib16 {

namespace {

constexpr unsigned char INDEX = 0x80;
constexpr unsigned char HAS_SYSTEM_IDENTIFIER = 0x02;
constexpr unsigned char HAS_PUBLIC_IDENTIFIER = 0x01;

} // namespace

void SkipProcessingInstruction(OctetReader& input)
{
    SkipIdentifyingString(input);
    SkipStringOrIndex(input);
}

void SkipComment(OctetReader& input)
{
    SkipStringOrIndex(input);
}

void SkipEntityReference(OctetReader& input, unsigned char first)
{
    SkipIdentifyingString(input);
    SkipIdentifiers(input, first);
}

void SkipDocumentType(OctetReader& input, unsigned char first)
{
    SkipIdentifiers(input, first);
    unsigned char octet = input.Fetch();
    for (; octet == PROCESSING_INSTRUCTION; octet = input.Fetch()) {
        SkipProcessingInstruction(input);
    }
    if (octet == DOUBLE_TERMINATOR) { // the document ends too, without a root
        ThrowFastInfosetFailure(FastInfosetReaderMessages::UNEXPECTED_END);
    }
    if (octet != TERMINATOR) {
        ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_ELEMENT);
    }
}

void SkipIdentifyingString(OctetReader& input)
{
    const unsigned char first = input.Fetch();
    if (first & INDEX) {
        input.ReadIntegerOnBit2(first);
    } else {
        input.ReadStringOnBit2(first);
    }
}

void SkipIdentifiers(OctetReader& input, unsigned char presence)
{
    if (presence & HAS_SYSTEM_IDENTIFIER) {
        SkipIdentifyingString(input);
    }
    if (presence & HAS_PUBLIC_IDENTIFIER) {
        SkipIdentifyingString(input);
    }
}

void SkipStringOrIndex(OctetReader& input)
{
    const unsigned char first = input.Fetch();
    if (first & INDEX) {
        input.ReadIntegerOrZeroOnBit2(first);
    } else {
        ReadEncodedStringOnBit3(input, first);
    }
}

} // namespace ZrXmlLib16
