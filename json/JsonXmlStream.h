// SPDX-License-Identifier: MIT
#ifndef JSON_JSONXMLSTREAM_H
#define JSON_JSONXMLSTREAM_H

#include "ZrXmlLib16/TextStream.h"
#include "streams/Utf8Decoding.h"

namespace ZrXmlLib16 {

/// Collects the XML text of a JSON document, whose length is roughly known, so that most texts lie in one block from
/// the beginning. The text may not become arbitrarily long.
class JsonXmlStream : public CTextStream {
public:
    /// @param expectedLength in characters
    /// @param maximumOctets of the text in UTF-8
    JsonXmlStream(unsigned long expectedLength, unsigned long maximumOctets);
    ~JsonXmlStream() override;

    /// Ends the text and hands it over.
    /// @throws CZrException when it is too long, like all operations that append.
    WideText TakeText();

private:
    void MakeRoom(unsigned long length) override;
    [[noreturn]] void FailTooLong() const;

    const unsigned long m_maximumOctets;
};

} // namespace ZrXmlLib16

#endif
