// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONCONTEXT_H
#define ZRXMLLIB16_JSONCONTEXT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/JsonRoundTrip.h"

#include <string>

namespace ZrXmlLib16 {

/// The settings of JSON, part of a CSerializationContext. Not synchronised.
class ZRXML_API CJsonContext {
public:
    CJsonContext();
    CJsonContext(const CJsonContext& other);
    CJsonContext& operator=(const CJsonContext& other);
    virtual ~CJsonContext();

    /// Default JsonRoundTrip_Full.
    JsonRoundTrip GetSupportRoundtrip() const;
    void SetSupportRoundtrip(JsonRoundTrip mode);
    /// When it is not empty, a document that is read is taken for the value of a member of this name: JSON has no
    /// root element of its own. Default empty.
    std::wstring GetRootElementName() const;
    /// @param name null is empty.
    void SetRootElementName(const wchar_t* name);
    /// Whether line and block comments are skipped on reading. Default false.
    bool GetAllowComments() const;
    /// Sets whether comments are skipped; the setter bears the name of the getter.
    void GetAllowComments(bool value);

private:
    JsonRoundTrip m_supportRoundtrip;
    std::wstring m_rootElementName;
    bool m_allowComments;
};

} // namespace ZrXmlLib16

#endif
