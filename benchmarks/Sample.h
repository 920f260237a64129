// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_SAMPLE_H
#define ZRXML_BENCHMARKS_SAMPLE_H

#include "ZrXmlLib16/BinaryData.h"
#include "benchmarks/PurchaseOrder.h"
#include "benchmarks/PurchaseOrderText.h"

#include <memory>

/// One document in the two forms that are measured: bytes and objects. Both are made on first use.
class Sample {
public:
    Sample(unsigned orders, bool indented)
        : m_orders(orders)
        , m_indented(indented)
    {
    }

    const PurchaseOrders::Document& GetDocument();
    /// The document as objects.
    /// @throws std::runtime_error when writing the objects does not give the document's bytes again.
    const PurchaseOrders::OrderList& GetObjects();

    void Read(PurchaseOrders::OrderList& objects);
    ZrXmlLib16::CBinaryData Write(const PurchaseOrders::OrderList& objects) const;

private:
    unsigned m_orders;
    bool m_indented;
    std::unique_ptr<PurchaseOrders::Document> m_document;
    std::unique_ptr<PurchaseOrders::OrderList> m_objects;
};

/// The document as the library takes it.
inline const unsigned char* BytesOf(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

#endif
