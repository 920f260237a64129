// SPDX-License-Identifier: MIT
#ifndef CORE_FORMATSETTINGS_H
#define CORE_FORMATSETTINGS_H

namespace ZrXmlLib16 {

class CFastInfosetContext;
class CJsonContext;
class CSerializationContext;

/// What the readers and writers of the formats take from a context without changing it: settings that were never asked
/// for stay absent, so that several threads may share a context that none of them configures.
class CFormatSettings {
public:
    /// The settings of the context, or the defaults when it has none yet.
    static const CFastInfosetContext& FastInfoset(const CSerializationContext& context);
    static const CJsonContext& Json(const CSerializationContext& context);

    /// How many characters a document of that size, in octets or characters, may expand to by repetition.
    static unsigned long MaximumExpansion(const CSerializationContext& context, unsigned long size);

    /// Makes a context ignore namespaces and restores its own setting in the end.
    class IgnoringNamespaces {
    public:
        explicit IgnoringNamespaces(const CSerializationContext& context) noexcept;
        ~IgnoringNamespaces();
        IgnoringNamespaces(const IgnoringNamespaces&) = delete;
        IgnoringNamespaces& operator=(const IgnoringNamespaces&) = delete;

    private:
        const CSerializationContext& m_context;
        const bool m_before;
    };
};

} // namespace ZrXmlLib16

#endif
