// SPDX-License-Identifier: MIT
#include "xml/TreeBuilder.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/FormatSettings.h"
#include "xml/XmlMessages.h"

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t USUAL_DEPTH = 16;

} // namespace

CXmlElement& TreeBuilder::OpenRoot(const XmlName& name)
{
    m_document.m_maximumElements = m_document.m_context->GetInputLimits().GetMaxElements();
    m_document.m_elementStack.clear();
    m_document.m_elementStack.reserve(USUAL_DEPTH);
    m_document.m_documentElement.reset(NewElement(nullptr, name));
    m_document.m_elementStack.push_back(m_document.m_documentElement.get());
    return *m_document.m_documentElement;
}

void TreeBuilder::ThrowNoElementOpen()
{
    throw CZrInvalidStateException(Message::NO_ELEMENT_OPEN_IN_DOCUMENT);
}

void TreeBuilder::ThrowTooManyElements() const
{
    throw CZrException(FormatString(Message::TOO_MANY_ELEMENTS, m_document.m_maximumElements));
}

// A prefix or an index repeats a namespace or name of any length, which every object that takes it copies.
void TreeBuilder::CountLongName(const XmlName& name)
{
    if (!m_document.m_input) { // the names come from the program
        return;
    }
    m_document.m_nameCharacters += name.namespaceUri.size() + name.GetLocalName().size();
    const unsigned long maximum = CFormatSettings::MaximumExpansion(*m_document.m_context, m_document.m_inputSize);
    if (m_document.m_nameCharacters > maximum) {
        throw CZrException(FormatString(Message::NAMES_EXPAND_TOO_FAR, maximum));
    }
}

/// Shows an element that is complete to the program, which may not want to keep it.
void TreeBuilder::OfferElement(CXmlElement& element)
{
    if (!m_document.m_elementEnd(&element) || !HasOpenElement()) {
        return;
    }
    CXmlElement& parent = RequireOpenElement();
    if (parent.GetLastElement() == &element) {
        delete parent.RemoveLastChildElement();
    }
}

} // namespace ZrXmlLib16
