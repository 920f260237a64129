// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrZip.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/Inflate.h"
#include "streams/StreamMessages.h"
#include "streams/ZlibSlice.h"

#include <limits>
#include <memory>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr int COMPRESSION_LEVEL = 1;
constexpr int GZIP_WINDOW_BITS = 31;
constexpr int MEMORY_LEVEL = 8;

[[noreturn]] void ThrowCompressionFailed(int code)
{
    throw CZrException(FormatString(Message::COMPRESSION_FAILED, code));
}

struct CompressedOctets {
    std::unique_ptr<unsigned char[]> data;
    unsigned long length = 0;
};

/// Deflates a whole buffer into one of the same length.
// kept: required behaviour. The output gets no more room than the input, so data that does not shrink is refused.
class Deflater {
public:
    Deflater(unsigned char* data, unsigned long length, CompressionType type)
        : m_stream()
        , m_output(new unsigned char[length])
        , m_capacity(length)
        , m_inputLeft(length)
        , m_outputLeft(length)
    {
        const int code = type == Compression_GZip
            ? deflateInit2(&m_stream, COMPRESSION_LEVEL, Z_DEFLATED, GZIP_WINDOW_BITS, MEMORY_LEVEL, Z_DEFAULT_STRATEGY)
            : deflateInit(&m_stream, COMPRESSION_LEVEL);
        if (code != Z_OK) {
            ThrowCompressionFailed(code);
        }
        m_stream.next_in = data;
        m_stream.next_out = m_output.get();
    }

    ~Deflater() { deflateEnd(&m_stream); }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    CompressedOctets Run()
    {
        int code = Deflate(Z_NO_FLUSH);
        while (code == Z_OK && HasInput() && HasRoom()) {
            code = Deflate(Z_NO_FLUSH);
        }
        code = Deflate(Z_FINISH);
        while (code == Z_OK && HasRoom()) {
            code = Deflate(Z_FINISH);
        }
        if (code != Z_STREAM_END) {
            ThrowCompressionFailed(code);
        }
        return {std::move(m_output), m_capacity - m_outputLeft - m_stream.avail_out};
    }

private:
    int Deflate(int flush)
    {
        if (m_stream.avail_in == 0) {
            m_stream.avail_in = NextSlice(m_inputLeft);
        }
        if (m_stream.avail_out == 0) {
            m_stream.avail_out = NextSlice(m_outputLeft);
        }
        return deflate(&m_stream, flush);
    }

    bool HasInput() const { return m_stream.avail_in != 0 || m_inputLeft != 0; }
    bool HasRoom() const { return m_stream.avail_out != 0 || m_outputLeft != 0; }

    z_stream m_stream;
    std::unique_ptr<unsigned char[]> m_output;
    unsigned long m_capacity;
    unsigned long m_inputLeft;
    unsigned long m_outputLeft;
};

bool IsCompressing(CompressionType type)
{
    return type == Compression_GZip || type == Compression_ZLib;
}

} // namespace

void CZrZip::Compress(unsigned char** buffer, unsigned long* length, CompressionType type)
{
    if (!IsCompressing(type)) {
        return;
    }
    CompressedOctets compressed = Deflater(*buffer, *length, type).Run();
    delete[] * buffer;
    *buffer = compressed.data.release();
    *length = compressed.length;
}

// The octets are the caller's own: the limits of a context belong to documents, see CXmlDocument.
void CZrZip::Decompress(unsigned char** buffer, unsigned long* length)
{
    CBinaryData decompressed;
    constexpr unsigned long UNLIMITED = std::numeric_limits<unsigned long>::max();
    if (!HasCompressionHeader(*buffer, *length) || !InflateOctets(*buffer, *length, UNLIMITED, decompressed)) {
        return;
    }
    delete[] * buffer;
    *length = decompressed.GetLength();
    *buffer = decompressed.ReleaseData();
}

bool CZrZip::DecompressData(
    const unsigned char* data, unsigned long length, unsigned long maximum, CBinaryData& decompressed)
{
    return HasCompressionHeader(data, length) && InflateOctets(data, length, maximum, decompressed);
}

void CZrZip::CompressData(CBinaryData& data, CompressionType type)
{
    if (data.GetLength() == 0 || !IsCompressing(type)) {
        return;
    }
    CompressedOctets compressed = Deflater(data.GetData(), data.GetLength(), type).Run();
    data = CBinaryData(compressed.data.release(), compressed.length, true);
}

} // namespace ZrXmlLib16
