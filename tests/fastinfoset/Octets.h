// SPDX-License-Identifier: MIT
#ifndef TESTS_FASTINFOSET_OCTETS_H
#define TESTS_FASTINFOSET_OCTETS_H

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/ZrException.h"
#include "xml/TreeText.h"

#include <stdexcept>
#include <string>

namespace TestSupport {

/// Octets from hexadecimal pairs and quoted text, such as "3C 00 'a' F0".
inline std::string Octets(const std::string& source)
{
    std::string octets;
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] == '\'') {
            const std::size_t end = source.find('\'', i + 1);
            if (end == std::string::npos)
                throw std::invalid_argument(source);
            octets += source.substr(i + 1, end - i - 1);
            i = end;
        } else if (source[i] != ' ') {
            octets += static_cast<char>(std::stoi(source.substr(i, 2), nullptr, 16));
            ++i;
        }
    }
    return octets;
}

/// A document without optional components.
inline std::string FastInfoset(const std::string& source)
{
    return Octets("E0 00 00 01 00") + Octets(source);
}

/// A number in the given count of octets, most significant first.
inline std::string BigEndian(unsigned long value, int octets)
{
    std::string text;
    for (int i = octets - 1; i >= 0; --i)
        text += static_cast<char>(value >> 8 * i);
    return text;
}

inline void LoadOctets(ZrXmlLib16::CXmlDocument& document, const std::string& octets)
{
    // A copy of exactly this size, so that reading beyond the end is noticed.
    const std::string copy(octets.begin(), octets.end());
    document.LoadXmlStream(reinterpret_cast<const unsigned char*>(copy.data()), copy.size());
}

inline std::wstring TreeOf(const std::string& octets,
    const ZrXmlLib16::CSerializationContext& context = ZrXmlLib16::CSerializationContext::m_defaultContext)
{
    ZrXmlLib16::CXmlDocument document(context);
    LoadOctets(document, octets);
    return TreeText(document.GetDocumentElement());
}

/// The message of the failure to read the octets; empty when they are read.
inline std::wstring FailureOf(const std::string& octets,
    const ZrXmlLib16::CSerializationContext& context = ZrXmlLib16::CSerializationContext::m_defaultContext)
{
    try {
        ZrXmlLib16::CXmlDocument document(context);
        LoadOctets(document, octets);
    } catch (const ZrXmlLib16::CZrException& exception) {
        return exception.GetMessage();
    }
    return std::wstring();
}

} // namespace TestSupport

#endif
