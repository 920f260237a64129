// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_PURCHASEORDERTEXT_H
#define ZRXML_BENCHMARKS_PURCHASEORDERTEXT_H

#include <cstddef>
#include <string>

namespace PurchaseOrders {

/// A document in UTF-8 and what it consists of.
struct Document {
    std::string bytes;
    std::size_t objects = 0;
    std::size_t elements = 0;
    std::size_t attributes = 0;
    std::size_t typedValues = 0;
    std::size_t strings = 0;
};

/// Makes a list of purchase orders, the same one for the same arguments, byte for byte as the XML writer prints it. The
/// first order has every optional part; the others vary. One order takes about 1 KB.
/// @param indented line breaks and tabs between the elements, otherwise none.
Document MakeDocument(unsigned orders, bool indented);

} // namespace PurchaseOrders

#endif
