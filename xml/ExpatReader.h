// SPDX-License-Identifier: MIT
#ifndef XML_EXPATREADER_H
#define XML_EXPATREADER_H

#include "xml/LineTracker.h"
#include "xml/ParserMemory.h"
#include "xml/TreeBuilder.h"
#include "xml/Utf16Text.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <string_view>

struct XML_ParserStruct;

namespace ZrXmlLib16 {

class CXmlDocument;

/// Reads XML text into a document: turns the events of the expat parser into nodes. Serves one parse.
///
/// No exception passes through the parser: a handler that fails keeps its exception, stops the parser and lets Parse
/// raise it.
class CExpatReader {
public:
    explicit CExpatReader(CXmlDocument& document);
    virtual ~CExpatReader();
    CExpatReader(const CExpatReader&) = delete;
    CExpatReader& operator=(const CExpatReader&) = delete;

    void CreateParser();
    /// Parses the document's whole input. The parser is freed when the input is the final one, and on failure.
    /// @throws CZrException with description and line when the text is not well-formed, or what a handler threw.
    void Parse(bool isFinal);
    /// Parses a text of the library's own, whose size the document knows, in place of the input. Frees the parser.
    /// The low 16 bits of a character are one unit.
    /// @throws as Parse does.
    void ParseConverted(std::wstring_view text);
    void Cleanup();

private:
    struct ParserDeleter {
        void operator()(XML_ParserStruct* parser) const noexcept;
    };

    static void FnStartElement(void* reader, const Utf16Unit* name, const Utf16Unit** attributes) noexcept;
    static void FnEndElement(void* reader, const Utf16Unit* name) noexcept;
    static void FnText(void* reader, const Utf16Unit* text, int length) noexcept;
    static void FnStartNamespace(void* reader, const Utf16Unit* prefix, const Utf16Unit* uri) noexcept;
    static void FnEndNamespace(void* reader, const Utf16Unit* prefix) noexcept;
    static void FnStartCDATA(void* reader) noexcept;
    static void FnEndCDATA(void* reader) noexcept;

    void AddDelimiter(const wchar_t* text, std::size_t length);
    void StartElement(const Utf16Unit* name, const Utf16Unit** attributes);
    template <class Action> static void Guard(void* reader, Action action) noexcept;
    [[noreturn]] void ThrowFailure();

    CXmlDocument& m_document;
    const unsigned long m_maximumExpansion;
    TreeBuilder m_tree;
    ParserMemory m_memory;
    std::unique_ptr<XML_ParserStruct, ParserDeleter> m_parser;
    LineTracker m_lines;
    std::exception_ptr m_handlerFailure;
};

} // namespace ZrXmlLib16

#endif
