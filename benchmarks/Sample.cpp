// SPDX-License-Identifier: MIT
#include "benchmarks/Sample.h"

#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/SerializationContext.h"

#include <algorithm>
#include <stdexcept>

using ZrXmlLib16::CBinaryData;
using ZrXmlLib16::CompressionType;
using ZrXmlLib16::CSerializationContext;
using ZrXmlLib16::CXmlObjectBase;

namespace {

CSerializationContext MakeContext(bool compact)
{
    CSerializationContext context;
    context.SetDefaultNamespaceURI(PurchaseOrders::namespaceUri);
    context.SetWriteTypeAttribute(false);
    if (compact) {
        context.GetFIContext().SetSuggestedValues();
    }
    return context;
}

const CSerializationContext& WritingContext(Form form)
{
    static const CSerializationContext plain = MakeContext(false);
    static const CSerializationContext compact = MakeContext(true);
    return form == Form::CompactFastInfoset ? compact : plain;
}

void RequireEqual(const CBinaryData& written, const std::string& expected)
{
    const unsigned char* begin = BytesOf(expected);
    const unsigned char* end = begin + expected.size();
    const unsigned char* writtenBegin = written.GetData();
    const unsigned char* writtenEnd = writtenBegin + written.GetLength();
    const auto difference = std::mismatch(begin, end, writtenBegin, writtenEnd);
    if (difference.first != end || difference.second != writtenEnd) {
        const std::size_t offset = static_cast<std::size_t>(difference.first - begin);
        const std::string got(difference.second, std::min(difference.second + 60, writtenEnd));
        throw std::runtime_error("the document changed at byte " + std::to_string(offset) + ": expected '"
            + expected.substr(offset, 60) + "', got '" + got + "'");
    }
}

} // namespace

CBinaryData WriteObject(const CXmlObjectBase& object, Form form, bool indented, CompressionType compression)
{
    const CSerializationContext& context = WritingContext(form);
    switch (form) {
    case Form::Xml:
        return object.ToXmlStream(true, indented, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context, compression);
    case Form::Json:
        return object.ToJsonStream(indented, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, context, compression);
    default:
        return object.ToFastInfosetStream(ZrXmlLib16::FInfoDecl_None, context, compression);
    }
}

void ReadObject(CXmlObjectBase& object, Form form, const std::string& bytes)
{
    if (form == Form::Json) {
        object.FromJsonStream(BytesOf(bytes), bytes.size());
    } else {
        object.FromXmlStream(BytesOf(bytes), bytes.size());
    }
}

std::string TextOf(const CBinaryData& bytes)
{
    return std::string(reinterpret_cast<const char*>(bytes.GetData()), bytes.GetLength());
}

const PurchaseOrders::Document& Sample::GetDocument()
{
    if (!m_document) {
        m_document = std::make_unique<PurchaseOrders::Document>(PurchaseOrders::MakeDocument(m_orders, m_indented));
    }
    return *m_document;
}

const std::string& Sample::GetBytes(Form form)
{
    if (form == Form::Xml) {
        return GetDocument().bytes;
    }
    std::string& bytes = m_otherForms[form];
    if (bytes.empty()) {
        bytes = TextOf(Write(form));
        PurchaseOrders::OrderList objects;
        ReadObject(objects, form, bytes);
        RequireSame(objects);
    }
    return bytes;
}

const PurchaseOrders::OrderList& Sample::GetObjects()
{
    if (!m_objects) {
        auto objects = std::make_unique<PurchaseOrders::OrderList>();
        ReadObject(*objects, Form::Xml, GetDocument().bytes);
        RequireSame(*objects);
        m_objects = std::move(objects);
    }
    return *m_objects;
}

void Sample::Read(Form form)
{
    PurchaseOrders::OrderList objects;
    ReadObject(objects, form, GetBytes(form));
}

CBinaryData Sample::Write(Form form)
{
    return WriteObject(GetObjects(), form, m_indented);
}

void Sample::RequireSame(const PurchaseOrders::OrderList& objects)
{
    RequireEqual(WriteObject(objects, Form::Xml, m_indented), GetDocument().bytes);
}
