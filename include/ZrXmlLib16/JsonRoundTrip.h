// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONROUNDTRIP_H
#define ZRXMLLIB16_JSONROUNDTRIP_H

namespace ZrXmlLib16 {

/// How much of a document its JSON form carries.
enum JsonRoundTrip : int {
    /// Plain names only. Attributes look like child elements, so classes with attributes cannot be read back.
    JsonRoundTrip_Plain = 0,
    /// Attributes are members whose names begin with "@", simple content beside them is "#text". Namespaces are lost.
    JsonRoundTrip_Attributes = 1,
    /// Prefixes and "@xmlns" members as well: what was written can be read back.
    JsonRoundTrip_Full = 2
};

} // namespace ZrXmlLib16

#endif
