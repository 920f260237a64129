// SPDX-License-Identifier: MIT
#ifndef TESTS_FASTINFOSET_WRITERFIXTURE_H
#define TESTS_FASTINFOSET_WRITERFIXTURE_H

#include "ZrXmlLib16/BinaryStream.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/FastInfosetWriter.h"
#include "fastinfoset/OctetText.h"

#include <functional>
#include <string>

namespace TestSupport {

/// A writer with the stream it writes to, and short forms of its operations.
struct WriterFixture {
    using ItemType = ZrXmlLib16::ItemType;
    using Text = std::wstring;

    explicit WriterFixture(const ZrXmlLib16::CFastInfosetContext& context)
        : stream(data)
        , writer(context, stream)
    {
    }

    void Start(const Text& name, const Text& uri = L"") { writer.WriteStartElement(name, uri); }
    void Attribute(const Text& name, const Text& uri, const Text& value, ItemType type = ZrXmlLib16::ItemType_string)
    {
        writer.WriteAttributeString(name, uri, value, type);
    }
    void String(const Text& text, ItemType type = ZrXmlLib16::ItemType_string)
    {
        writer.WriteString(text, type, false);
    }
    void End() { writer.WriteEndElement(); }

    ZrXmlLib16::CBinaryData data;
    ZrXmlLib16::CBinaryStream stream;
    ZrXmlLib16::CFastInfosetWriter writer;
};

/// The octets that the events add between the start and the end of a document; the latter is part of them.
inline std::string OctetsOf(
    const ZrXmlLib16::CFastInfosetContext& context, const std::function<void(WriterFixture&)>& events)
{
    WriterFixture test(context);
    events(test);
    test.writer.WriteEndDocument();
    return OctetText(test.data);
}

} // namespace TestSupport

#endif
