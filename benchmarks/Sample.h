// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_SAMPLE_H
#define ZRXML_BENCHMARKS_SAMPLE_H

#include "ZrXmlLib16/XmlObjectBase.h"
#include "benchmarks/PurchaseOrder.h"
#include "benchmarks/PurchaseOrderText.h"

#include <map>
#include <memory>

/// What objects are written as and read from.
enum class Form { Xml, Json, FastInfoset, CompactFastInfoset };

/// Writes objects of the benchmark's namespace: no type attributes, no line breaks unless indented.
ZrXmlLib16::CBinaryData WriteObject(const ZrXmlLib16::CXmlObjectBase& object, Form form, bool indented = false,
    ZrXmlLib16::CompressionType compression = ZrXmlLib16::Compression_None);
void ReadObject(ZrXmlLib16::CXmlObjectBase& object, Form form, const std::string& bytes);
std::string TextOf(const ZrXmlLib16::CBinaryData& bytes);

/// One document in the forms that are measured: bytes and objects. Each is made on first use.
class Sample {
public:
    Sample(unsigned orders, bool indented)
        : m_orders(orders)
        , m_indented(indented)
    {
    }

    const PurchaseOrders::Document& GetDocument();
    /// The document in that form; one in another form than XML is proven to read back as the same objects.
    const std::string& GetBytes(Form form);
    /// The document as objects.
    /// @throws std::runtime_error when writing the objects does not give the document's bytes again.
    const PurchaseOrders::OrderList& GetObjects();

    void Read(Form form);
    ZrXmlLib16::CBinaryData Write(Form form);

private:
    void RequireSame(const PurchaseOrders::OrderList& objects);

    unsigned m_orders;
    bool m_indented;
    std::unique_ptr<PurchaseOrders::Document> m_document;
    std::unique_ptr<PurchaseOrders::OrderList> m_objects;
    std::map<Form, std::string> m_otherForms;
};

/// The bytes as the library takes them.
inline const unsigned char* BytesOf(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

#endif
