// SPDX-License-Identifier: MIT
#include "json/JsonXmlStream.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/Utf8Encoding.h"
#include "json/JsonReaderMessages.h"

#include <algorithm>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long LEAST_BLOCK = 1024;
constexpr unsigned long LONGEST_UNIT = 3; // octets of one 16-bit unit; pairs have two each

} // namespace

JsonXmlStream::JsonXmlStream(unsigned long expectedLength, unsigned long maximumOctets)
    : CTextStream(Encoding_UTF8, LEAST_BLOCK)
    , m_maximumOctets(maximumOctets)
{
    m_buffer.AddBlock(std::max(LEAST_BLOCK, std::min(expectedLength, maximumOctets)));
}

JsonXmlStream::~JsonXmlStream() = default;

void JsonXmlStream::MakeRoom(unsigned long length)
{
    const unsigned long present = GetLength();
    if (present + length > m_maximumOctets) {
        FailTooLong();
    }
    m_buffer.AddBlock(std::max({length, LEAST_BLOCK, present / 4}));
}

WideText JsonXmlStream::TakeText()
{
    GetText(); // joins the blocks
    WideText text;
    text.length = GetLength();
    text.characters = std::move(m_buffer.m_blocks.front());
    m_buffer.Clear();
    if (text.length > m_maximumOctets / LONGEST_UNIT) {
        const TextPiece piece = {text.characters.get(), text.length};
        if (Utf8Length(&piece, 1) > m_maximumOctets) {
            FailTooLong();
        }
    }
    return text;
}

void JsonXmlStream::FailTooLong() const
{
    throw CZrException(FormatString(Message::JSON_EXPANDS_TOO_FAR, m_maximumOctets));
}

} // namespace ZrXmlLib16
