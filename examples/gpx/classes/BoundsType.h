// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_BOUNDSTYPE_H
#define EXAMPLES_GPX_CLASSES_BOUNDSTYPE_H

#include "ZrXmlLib16/Decimal.h"
#include "classes/GpxObject.h"

#include <optional>
#include <utility>

namespace Gpx {

/// A rectangle of latitudes and longitudes (boundsType).
class CBoundsType : public CGpxObject {
public:
    explicit CBoundsType(const wchar_t* elementName = L"bounds");

    /// Southern edge. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetMinlat() const { return m_minlat; }
    void SetMinlat(std::optional<ZrXmlLib16::CDecimal> value) { m_minlat = std::move(value); }
    /// Western edge. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetMinlon() const { return m_minlon; }
    void SetMinlon(std::optional<ZrXmlLib16::CDecimal> value) { m_minlon = std::move(value); }
    /// Northern edge. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetMaxlat() const { return m_maxlat; }
    void SetMaxlat(std::optional<ZrXmlLib16::CDecimal> value) { m_maxlat = std::move(value); }
    /// Eastern edge. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetMaxlon() const { return m_maxlon; }
    void SetMaxlon(std::optional<ZrXmlLib16::CDecimal> value) { m_maxlon = std::move(value); }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Minlat, Property_Minlon, Property_Maxlat, Property_Maxlon, Property_Count };
    struct Tables;
    static Tables& GetTables();

    std::optional<ZrXmlLib16::CDecimal> m_minlat;
    std::optional<ZrXmlLib16::CDecimal> m_minlon;
    std::optional<ZrXmlLib16::CDecimal> m_maxlat;
    std::optional<ZrXmlLib16::CDecimal> m_maxlon;
};

} // namespace Gpx

#endif
