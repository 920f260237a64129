// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_LINKTYPE_H
#define EXAMPLES_GPX_CLASSES_LINKTYPE_H

#include "classes/GpxObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// A link to a page or file (linkType).
class CLinkType : public CGpxObject {
public:
    explicit CLinkType(const wchar_t* elementName = L"link");

    /// Target. Mandatory.
    const std::optional<std::wstring>& GetHref() const { return m_href; }
    void SetHref(std::optional<std::wstring> value) { m_href = std::move(value); }
    /// Text to show.
    const std::optional<std::wstring>& GetText() const { return m_text; }
    void SetText(std::optional<std::wstring> value) { m_text = std::move(value); }
    /// Media type of the target.
    const std::optional<std::wstring>& GetType() const { return m_type; }
    void SetType(std::optional<std::wstring> value) { m_type = std::move(value); }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Href, Property_Text, Property_Type, Property_Count };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_href;
    std::optional<std::wstring> m_text;
    std::optional<std::wstring> m_type;
};

} // namespace Gpx

#endif
