// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_OCTETWRITER_H
#define FASTINFOSET_OCTETWRITER_H

#include "fastinfoset/CodecWriter.h"

#include <string>

namespace ZrXmlLib16 {

class CBinaryStream;

/// Collects the octets of a document in a block and hands full blocks to the stream, because the stream takes a lock
/// for every piece it gets. The stream has everything only after Flush.
class OctetWriter {
public:
    /// Flushes when the scope is left before Complete was called, so that the stream holds what was written before a
    /// failure.
    class FailureGuard {
    public:
        explicit FailureGuard(OctetWriter& writer)
            : m_writer(&writer)
        {
        }
        ~FailureGuard()
        {
            if (m_writer) {
                m_writer->FlushQuietly();
            }
        }
        FailureGuard(const FailureGuard&) = delete;
        FailureGuard& operator=(const FailureGuard&) = delete;

        void Complete() noexcept { m_writer = nullptr; }

    private:
        OctetWriter* m_writer;
    };

    /// @param stream not owned.
    explicit OctetWriter(CBinaryStream& stream);
    OctetWriter(const OctetWriter&) = delete;
    OctetWriter& operator=(const OctetWriter&) = delete;

    void Put(unsigned int octet)
    {
        *Reserve(1) = static_cast<unsigned char>(octet);
        ++m_used;
    }
    void Append(const unsigned char* octets, unsigned long n);
    void PutCode(const Codec& codec, std::uint64_t value, unsigned int leadingBits)
    {
        m_used += WriteCode(codec, value, leadingBits, Reserve(MAXIMUM_CODE_OCTETS));
    }
    /// The length of the octets, then the octets.
    void PutOctetString(
        const Codec& lengthCodec, unsigned int leadingBits, const unsigned char* octets, unsigned long n);
    /// The length of the text in UTF-8, then the UTF-8.
    /// @param text not empty.
    void PutText(const Codec& lengthCodec, unsigned int leadingBits, const std::wstring& text);
    void Flush();

private:
    static constexpr unsigned long BLOCK_SIZE = 4096;

    // Room for n octets, at most a block of them.
    unsigned char* Reserve(unsigned long n)
    {
        if (n > BLOCK_SIZE - m_used) {
            Flush();
        }
        return m_block + m_used;
    }
    void PutLongText(const Codec& lengthCodec, unsigned int leadingBits, const std::wstring& text);
    void FlushQuietly() noexcept;

    CBinaryStream& m_stream;
    unsigned long m_used;
    unsigned char m_block[BLOCK_SIZE];
};

} // namespace ZrXmlLib16

#endif
