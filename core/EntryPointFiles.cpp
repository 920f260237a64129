// SPDX-License-Identifier: MIT
#include "core/EntryPointFiles.h"

#include "ZrXmlLib16/FileBinaryStream.h"
#include "ZrXmlLib16/XmlObjectBase.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "core/CoreMessages.h"
#include "streams/Utf8TextStream.h"

namespace ZrXmlLib16 {

namespace {

bool ASYNC_TOXMLFILE = false;

} // namespace

void AsyncToXmlFile(bool on)
{
    ASYNC_TOXMLFILE = on;
}

namespace EntryPointFiles {

// kept: required behaviour. The file forms refuse the zlib wrapper that the stream forms accept.
void RefuseZLib(CompressionType compression)
{
    if (compression == Compression_ZLib) {
        throw CZrException(Message::ZLIB_ONLY_FOR_STREAMS);
    }
}

bool IsWrittenDirectly(CompressionType compression)
{
    return ASYNC_TOXMLFILE && compression == Compression_None;
}

CBinaryData WriteOctets(XmlEncoding encoding, const std::function<void(CTextStream&)>& write)
{
    if (encoding == Encoding_UTF8) {
        CUtf8TextStream stream;
        write(stream);
        return stream.TakeOctets();
    }
    CTextStream stream(encoding);
    write(stream);
    return stream.GetEncodedStream();
}

CBinaryData Compressed(CBinaryData bytes, CompressionType compression)
{
    if (compression != Compression_None) {
        CZrZip::CompressData(bytes, compression);
    }
    return bytes;
}

void WriteWhole(const wchar_t* fileName, XmlEncoding encoding, CompressionType compression, CBinaryData& bytes)
{
    // A byte-order mark in front of compressed bytes would hide their own header from the reader.
    CFileBinaryStream(fileName, compression == Compression_None ? encoding : Encoding_UTF8, bytes).ToFile();
}

} // namespace EntryPointFiles
} // namespace ZrXmlLib16
