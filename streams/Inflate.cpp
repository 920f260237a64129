// SPDX-License-Identifier: MIT
#include "streams/Inflate.h"

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/StreamMessages.h"
#include "streams/ZlibSlice.h"

#include <memory>
#include <new>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long INFLATE_CHUNK = 65536;
constexpr int AUTODETECT_WINDOW_BITS = 47;

} // namespace

bool HasCompressionHeader(const unsigned char* data, unsigned long length)
{
    if (length < 2) {
        return false;
    }
    const bool isGzip = data[0] == 0x1F && data[1] == 0x8B;
    const bool isZlib = (data[0] & 0x0F) == Z_DEFLATED && (data[0] << 8 | data[1]) % 31 == 0;
    return isGzip || isZlib;
}

bool InflateOctets(const unsigned char* data, unsigned long length, unsigned long maximum, CBinaryData& result)
{
    z_stream stream{};
    if (inflateInit2(&stream, AUTODETECT_WINDOW_BITS) != Z_OK) {
        throw std::bad_alloc(); // there is no other reason
    }
    const std::unique_ptr<z_stream, int (*)(z_stream*)> cleanup(&stream, &inflateEnd);
    const std::unique_ptr<unsigned char[]> chunk(new unsigned char[INFLATE_CHUNK]);
    stream.next_in = data;
    int code = Z_OK;
    while (code == Z_OK) {
        if (stream.avail_in == 0) {
            stream.avail_in = NextSlice(length);
        }
        stream.next_out = chunk.get();
        stream.avail_out = INFLATE_CHUNK;
        code = inflate(&stream, Z_NO_FLUSH);
        const unsigned long produced = INFLATE_CHUNK - stream.avail_out;
        if (produced > maximum - result.GetLength()) {
            throw CZrException(FormatString(Message::INFLATED_TOO_LARGE, maximum));
        }
        result.Append(chunk.get(), produced);
    }
    if (code == Z_MEM_ERROR) {
        throw std::bad_alloc();
    }
    return code == Z_STREAM_END;
}

} // namespace ZrXmlLib16
