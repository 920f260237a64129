// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_SAMPLEORDER_H
#define EXAMPLES_SHARED_ORDERS_SAMPLEORDER_H

#include "ZrXmlLib16/SerializationContext.h"
#include "shared/orders/Order.h"

namespace Orders {

/// Fills an order with two items and everything that is mandatory.
void FillOrder(COrder& order);
/// Settings that write orders without a prefix, and the attributes of XML Schema with the prefix xsi. Without them the
/// writer invents prefixes.
ZrXmlLib16::CSerializationContext ReadablePrefixes();

} // namespace Orders

#endif
