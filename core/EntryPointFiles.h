// SPDX-License-Identifier: MIT
#ifndef CORE_ENTRYPOINTFILES_H
#define CORE_ENTRYPOINTFILES_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/XmlEncoding.h"

#include <functional>

namespace ZrXmlLib16 {

class CTextStream;

/// What the entry points that write files and streams share, whatever the format.
namespace EntryPointFiles {

/// @throws CZrException for Compression_ZLib, which is for the stream forms only.
void RefuseZLib(CompressionType compression);

/// Whether a file is written piece by piece instead of as a whole in the end.
bool IsWrittenDirectly(CompressionType compression);

/// What the function writes, encoded; in UTF-8 it is encoded piece by piece.
CBinaryData WriteOctets(XmlEncoding encoding, const std::function<void(CTextStream&)>& write);

CBinaryData Compressed(CBinaryData bytes, CompressionType compression);

/// Writes the whole output, with the byte-order mark of the encoding unless the output is compressed.
void WriteWhole(const wchar_t* fileName, XmlEncoding encoding, CompressionType compression, CBinaryData& bytes);

} // namespace EntryPointFiles
} // namespace ZrXmlLib16

#endif
