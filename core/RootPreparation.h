// SPDX-License-Identifier: MIT
#ifndef CORE_ROOTPREPARATION_H
#define CORE_ROOTPREPARATION_H

#include <string>

namespace ZrXmlLib16 {

class CSerializationContext;
class CXmlWriter;

/// Hands the writer what it has to know before a root element starts: the processing instructions and prefixes of the
/// context, and the default namespace unless it is empty.
void WriteBeforeRoot(CXmlWriter& writer, const CSerializationContext& context, const std::wstring& defaultNamespace);

} // namespace ZrXmlLib16

#endif
