// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_FORMATS_H
#define ZRCONVERT_FORMATS_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/SerializationContext.h"

#include <string>
#include <vector>

namespace Convert {

/// What the command line says about the conversion.
struct Settings {
    bool format = false;
    bool keepSections = false;
    ZrXmlLib16::EOLType endOfLine = ZrXmlLib16::EOL_LF;
    ZrXmlLib16::CompressionType compression = ZrXmlLib16::Compression_None;
};

/// A document between two formats. The context holds the namespaces to declare when it is written.
struct Document {
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CElement> root;
    ZrXmlLib16::CSerializationContext context;
};

typedef std::vector<unsigned char> Bytes;

/// One way of storing a document. Reading and writing throw CZrException.
struct Format {
    const char* name;
    /// Whether input that is not said to be of any format is of this one.
    bool (*recognises)(const Bytes& bytes);
    Document (*read)(const Bytes& bytes, const Settings& settings);
    ZrXmlLib16::CBinaryData (*write)(const Document& document, const Settings& settings);
};

/// Null when there is none of that name.
const Format* FindFormat(const std::string& name);
/// The first format that recognises the input.
const Format& RecogniseFormat(const Bytes& bytes);
/// The names of all formats, separated by vertical bars.
std::string ListFormats();

} // namespace Convert

#endif
