// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONREADERDEFAULTHANDLER_H
#define ZRXMLLIB16_JSONREADERDEFAULTHANDLER_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/IJsonReaderHandler.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Keeps track of the place in the document and hands every event on to an inner handler.
///
/// When the inner handler throws, the path is that of the value at fault. Not synchronised.
class ZRXML_API CJsonReaderDefaultHandler : public IJsonReaderHandler, public IErrorPathProvider {
public:
    CJsonReaderDefaultHandler();
    ~CJsonReaderDefaultHandler() override;
    CJsonReaderDefaultHandler(const CJsonReaderDefaultHandler&) = delete;
    CJsonReaderDefaultHandler& operator=(const CJsonReaderDefaultHandler&) = delete;

    /// @{
    /// Notes the place and hands the event on.
    void ReadStartDocument() override;
    void ReadEndDocument() override;
    void ReadName(const std::wstring& name) override;
    void ReadString(const std::wstring& value) override;
    void ReadNumber(const std::wstring& text) override;
    void ReadStartObject() override;
    void ReadEndObject() override;
    void ReadStartArray() override;
    void ReadEndArray() override;
    void ReadBool(bool value) override;
    void ReadNull() override;
    /// @}

    /// "$" for the document, then a point and the name, or the quoted name in brackets, for each member, and an index
    /// in brackets, counted from 0, for each item:
    ///
    ///     $.order.item[2]['unit price'].@id
    std::wstring GetPath() const override;

    /// Sets where events go. @param handler not owned; null for none: events are then only tracked.
    void SetInnerHandler(IJsonReaderHandler* handler);
    /// The inner handler, null for none.
    IJsonReaderHandler* GetInnerHandler() const;

private:
    struct Frame {
        bool isArray = false;
        std::size_t index = 0; // of the current item
        bool hasName = false;  // whether a member is being read
        std::wstring name;
    };

    void PushFrame(bool isArray);
    void PopFrame();
    void CompleteValue();

    IJsonReaderHandler* m_innerHandler;
    std::vector<Frame> m_frames; // by nesting; closed ones are kept for reuse
    std::size_t m_depth;
};

} // namespace ZrXmlLib16

#endif
