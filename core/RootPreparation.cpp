// SPDX-License-Identifier: MIT
#include "core/RootPreparation.h"

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlWriter.h"

namespace ZrXmlLib16 {

void WriteBeforeRoot(CXmlWriter& writer, const CSerializationContext& context, const std::wstring& defaultNamespace)
{
    for (const std::wstring& instruction : context.GetProcessingInstructions()) {
        writer.WritePI(instruction);
    }
    for (const auto& entry : context.GetNamespaceAliases().GetEntries()) {
        writer.AddNamespace(entry.second, entry.first);
    }
    if (!defaultNamespace.empty()) {
        writer.SetDefaultNamespace(defaultNamespace);
    }
}

} // namespace ZrXmlLib16
