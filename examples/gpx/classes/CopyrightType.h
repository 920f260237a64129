// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_COPYRIGHTTYPE_H
#define EXAMPLES_GPX_CLASSES_COPYRIGHTTYPE_H

#include "classes/GpxObject.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// Who holds the copyright, and the licence (copyrightType).
class CCopyrightType : public CGpxObject {
public:
    explicit CCopyrightType(const wchar_t* elementName = L"copyright");

    /// Holder of the copyright. Mandatory.
    const std::optional<std::wstring>& GetAuthor() const { return m_author; }
    void SetAuthor(std::optional<std::wstring> value) { m_author = std::move(value); }
    /// Year of the copyright.
    const std::optional<unsigned short>& GetYear() const { return m_year; }
    void SetYear(std::optional<unsigned short> value) { m_year = std::move(value); }
    /// Link to the text of the licence.
    const std::optional<std::wstring>& GetLicense() const { return m_license; }
    void SetLicense(std::optional<std::wstring> value) { m_license = std::move(value); }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Author, Property_Year, Property_License, Property_Count };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_author;
    std::optional<unsigned short> m_year;
    std::optional<std::wstring> m_license;
};

} // namespace Gpx

#endif
