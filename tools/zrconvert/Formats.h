// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_FORMATS_H
#define ZRCONVERT_FORMATS_H

#include "ElementText.h"
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/JsonRoundTrip.h"
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
    ZrXmlLib16::JsonRoundTrip jsonMode = ZrXmlLib16::JsonRoundTrip_Full;
    /// What the format of the output needs.
    TextRules texts = {false, false, true};
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
    /// Whether an element can have text beside its children that is mere indentation.
    bool hasIndentation;
    /// Whether it is XML text, with CDATA sections.
    bool isXml;
    /// Whether input that is not said to be of any format is of this one. The bytes are not compressed.
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
