// SPDX-License-Identifier: MIT
#ifndef JSON_JSONTAPEWRITER_H
#define JSON_JSONTAPEWRITER_H

#include "json/JsonTape.h"

#include <string>
#include <vector>

namespace ZrXmlLib16 {

class CXmlTextWriter;
class IErrorPathProvider;

/// Writes the document of a tape as XML, in time proportional to its length and without recursion.
class JsonTapeWriter {
public:
    /// The arguments outlive the object.
    JsonTapeWriter(const JsonTape& tape, CXmlTextWriter& writer, const IErrorPathProvider& pathProvider);
    JsonTapeWriter(const JsonTapeWriter&) = delete;
    JsonTapeWriter& operator=(const JsonTapeWriter&) = delete;

    /// For a writer that is no more than a CXmlTextWriter: elements with text may then be written in one call.
    static void LetJoinCalls(CXmlTextWriter& writer);

    /// Writes nothing for an empty tape.
    /// @throws CZrValidationException when the document has no root element or several.
    void Write();

private:
    struct OpenElement {
        std::size_t end;
        bool isFormatted; // how the element itself is written
    };

    std::size_t FindRoot() const;
    std::size_t FindOnlyItem(std::size_t value) const;
    bool DeclaresInstancePrefix(std::size_t object) const;
    void WriteValue(const JsonEvent& event, bool isRoot);
    bool WriteTextElement(const JsonEvent& event);
    void OpenObject(std::size_t object);
    void CloseObjectsAt(std::size_t index)
    {
        while (!m_open.empty() && m_open.back().end == index) {
            CloseObject();
        }
    }
    void CloseObject();
    void StartElement(const JsonEvent& event);
    void WriteText(const JsonEvent& event);
    [[noreturn]] void FailWithoutRoot() const;

    const JsonTape& m_tape;
    CXmlTextWriter& m_writer;
    const IErrorPathProvider& m_pathProvider;
    std::vector<OpenElement> m_open;
    bool m_declaresInstancePrefixNext = false;
    const std::wstring m_empty;
    const std::wstring m_instanceDeclaration;
    const std::wstring m_instanceNamespace;
    const std::wstring m_nilAttribute;
    const std::wstring m_true;
    std::wstring m_value; // reused
};

} // namespace ZrXmlLib16

#endif
