// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_FASTINFOSETHEADER_H
#define FASTINFOSET_FASTINFOSETHEADER_H

namespace ZrXmlLib16 {

class OctetReader;

/// Octets of the declaration, when there is one, and of identification and version (X.891, 12.6 and C.2); 0 when the
/// input is no Fast Infoset document.
unsigned long GetFastInfosetSignatureLength(const unsigned char* bytes, unsigned long length) noexcept;

/// Passes over the optional components of a document (C.2), from the octet that tells which of them are present. What
/// they contain has no effect.
void SkipOptionalComponents(OctetReader& input);

} // namespace ZrXmlLib16

#endif
