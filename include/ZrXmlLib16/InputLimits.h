// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_INPUTLIMITS_H
#define ZRXMLLIB16_INPUTLIMITS_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// How much a document that is read may grow to, against input that was made to exhaust the machine. Part of a
/// CSerializationContext. The defaults are far beyond what documents need; programs that read from strangers lower them
/// to what they expect. Exceeding a limit is a CZrException that names it. Plain values, not synchronised.
class ZRXML_API CInputLimits {
public:
    CInputLimits();

    /// Octets of a document as it is given, compressed or not. Default 16 GiB.
    unsigned long GetMaxDocumentOctets() const;
    void SetMaxDocumentOctets(unsigned long octets);
    /// Octets that a compressed document may decompress to. Default 2 GiB.
    unsigned long GetMaxInflatedOctets() const;
    void SetMaxInflatedOctets(unsigned long octets);
    /// Elements of a document. Default 268,435,456.
    unsigned long GetMaxElements() const;
    void SetMaxElements(unsigned long elements);
    /// Characters that a document may always expand to where its format repeats them (indexes of Fast Infoset, prefixes
    /// of XML, names of JSON array items); beyond, it may expand to 100 times its own size. Default 67,108,864.
    unsigned long GetMaxExpandedCharacters() const;
    void SetMaxExpandedCharacters(unsigned long characters);

private:
    unsigned long m_maxDocumentOctets;
    unsigned long m_maxInflatedOctets;
    unsigned long m_maxElements;
    unsigned long m_maxExpandedCharacters;
};

} // namespace ZrXmlLib16

#endif
