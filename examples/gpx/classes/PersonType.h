// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_PERSONTYPE_H
#define EXAMPLES_GPX_CLASSES_PERSONTYPE_H

#include "ZrXmlLib16/SmartPtr.h"
#include "classes/EmailType.h"
#include "classes/GpxObject.h"
#include "classes/LinkType.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// A person or an organisation (personType).
class CPersonType : public CGpxObject {
public:
    explicit CPersonType(const wchar_t* elementName = L"author");

    /// Full name.
    const std::optional<std::wstring>& GetName() const { return m_name; }
    void SetName(std::optional<std::wstring> value) { m_name = std::move(value); }
    /// May be null.
    CEmailType* GetEmail() const { return m_email; }
    void SetEmail(CEmailType* value);
    /// May be null.
    CLinkType* GetLink() const { return m_link; }
    void SetLink(CLinkType* value);

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Name, Property_Email, Property_Link, Property_Count };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_name;
    ZrXmlLib16::CSmartPtr<CEmailType> m_email;
    ZrXmlLib16::CSmartPtr<CLinkType> m_link;
};

} // namespace Gpx

#endif
