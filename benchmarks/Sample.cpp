// SPDX-License-Identifier: MIT
#include "benchmarks/Sample.h"

#include "ZrXmlLib16/SerializationContext.h"

#include <algorithm>
#include <stdexcept>

using ZrXmlLib16::CBinaryData;
using ZrXmlLib16::CSerializationContext;

namespace {

const CSerializationContext& WritingContext()
{
    static const CSerializationContext context = [] {
        CSerializationContext made;
        made.SetDefaultNamespaceURI(PurchaseOrders::namespaceUri);
        made.SetWriteTypeAttribute(false);
        return made;
    }();
    return context;
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

const PurchaseOrders::Document& Sample::GetDocument()
{
    if (!m_document) {
        m_document = std::make_unique<PurchaseOrders::Document>(PurchaseOrders::MakeDocument(m_orders, m_indented));
    }
    return *m_document;
}

const PurchaseOrders::OrderList& Sample::GetObjects()
{
    if (!m_objects) {
        auto objects = std::make_unique<PurchaseOrders::OrderList>();
        Read(*objects);
        RequireEqual(Write(*objects), GetDocument().bytes);
        m_objects = std::move(objects);
    }
    return *m_objects;
}

void Sample::Read(PurchaseOrders::OrderList& objects)
{
    const std::string& bytes = GetDocument().bytes;
    objects.FromXmlStream(BytesOf(bytes), bytes.size());
}

CBinaryData Sample::Write(const PurchaseOrders::OrderList& objects) const
{
    return objects.ToXmlStream(true, m_indented, ZrXmlLib16::Encoding_UTF8, ZrXmlLib16::EOL_LF, WritingContext());
}
