// SPDX-License-Identifier: MIT
#ifndef STREAMS_UTF8TEXTSTREAM_H
#define STREAMS_UTF8TEXTSTREAM_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/TextStream.h"

#include <memory>
#include <vector>

namespace ZrXmlLib16 {

/// A text stream in memory that encodes at every flush and whenever its block is full, so that the wide text never
/// leaves the cache. Only the octets can be read, once, at the end.
class CUtf8TextStream : public CTextStream {
public:
    CUtf8TextStream();
    ~CUtf8TextStream() override;

    void Flush() override;
    /// Octets that were encoded up to now.
    unsigned long GetOctetCount() const { return m_length; }
    /// Ends the text: all octets in one array.
    CBinaryData TakeOctets();

private:
    struct Chunk {
        std::unique_ptr<unsigned char[]> octets;
        unsigned long used;
        unsigned long size;
    };

    void MakeRoom(unsigned long length) override;
    void Encode();
    void CountOctets(unsigned long count);
    bool HasOctetRoom(unsigned long size) const;
    unsigned char* MakeOctetRoom(unsigned long size);

    std::vector<Chunk> m_chunks;
    unsigned long m_length; // octets in all chunks
};

} // namespace ZrXmlLib16

#endif
