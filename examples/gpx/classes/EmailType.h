// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_EMAILTYPE_H
#define EXAMPLES_GPX_CLASSES_EMAILTYPE_H

#include "classes/GpxObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// A mail address in two parts (emailType).
class CEmailType : public CGpxObject {
public:
    explicit CEmailType(const wchar_t* elementName = L"email");

    /// The part before the sign. Mandatory.
    const std::optional<std::wstring>& GetId() const { return m_id; }
    void SetId(std::optional<std::wstring> value) { m_id = std::move(value); }
    /// The part behind it. Mandatory.
    const std::optional<std::wstring>& GetDomain() const { return m_domain; }
    void SetDomain(std::optional<std::wstring> value) { m_domain = std::move(value); }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Id, Property_Domain, Property_Count };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_id;
    std::optional<std::wstring> m_domain;
};

} // namespace Gpx

#endif
