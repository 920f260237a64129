// SPDX-License-Identifier: MIT
#ifndef CORE_ENTRYPOINTFILES_H
#define CORE_ENTRYPOINTFILES_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/XmlEncoding.h"

namespace ZrXmlLib16 {

/// What the entry points that write files and streams share, whatever the format.
namespace EntryPointFiles {

/// @throws CZrException for Compression_ZLib, which is for the stream forms only.
void RefuseZLib(CompressionType compression);

/// Whether a file is written piece by piece instead of as a whole in the end.
bool IsWrittenDirectly(CompressionType compression);

CBinaryData Compressed(CBinaryData bytes, CompressionType compression);

/// Writes the whole output, with the byte-order mark of the encoding unless the output is compressed.
void WriteWhole(const wchar_t* fileName, XmlEncoding encoding, CompressionType compression, CBinaryData& bytes);

} // namespace EntryPointFiles
} // namespace ZrXmlLib16

#endif
