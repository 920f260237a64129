// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_WPTTYPE_H
#define EXAMPLES_GPX_CLASSES_WPTTYPE_H

#include "ZrXmlLib16/BigInteger.h"
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/Decimal.h"
#include "classes/ExtensionsType.h"
#include "classes/FixType.h"
#include "classes/GpxCollection.h"
#include "classes/GpxObject.h"
#include "classes/LinkType.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// A waypoint, or a point of a route or track (wptType).
class CWptType : public CGpxObject {
public:
    explicit CWptType(const wchar_t* elementName = L"wpt");

    /// Degrees north (WGS 84), -90 to 90. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetLat() const { return m_lat; }
    void SetLat(std::optional<ZrXmlLib16::CDecimal> value) { m_lat = std::move(value); }
    /// Degrees east (WGS 84), -180 to below 180. Mandatory.
    const std::optional<ZrXmlLib16::CDecimal>& GetLon() const { return m_lon; }
    void SetLon(std::optional<ZrXmlLib16::CDecimal> value) { m_lon = std::move(value); }
    /// Metres above the sea.
    const std::optional<ZrXmlLib16::CDecimal>& GetEle() const { return m_ele; }
    void SetEle(std::optional<ZrXmlLib16::CDecimal> value) { m_ele = std::move(value); }
    /// When the point was recorded, normally in UTC.
    const std::optional<ZrXmlLib16::CDateTime>& GetTime() const { return m_time; }
    void SetTime(std::optional<ZrXmlLib16::CDateTime> value) { m_time = std::move(value); }
    /// Magnetic variation in degrees, 0 to below 360.
    const std::optional<ZrXmlLib16::CDecimal>& GetMagvar() const { return m_magvar; }
    void SetMagvar(std::optional<ZrXmlLib16::CDecimal> value) { m_magvar = std::move(value); }
    /// Metres of the geoid above the ellipsoid.
    const std::optional<ZrXmlLib16::CDecimal>& GetGeoidheight() const { return m_geoidheight; }
    void SetGeoidheight(std::optional<ZrXmlLib16::CDecimal> value) { m_geoidheight = std::move(value); }
    /// Name in the receiver.
    const std::optional<std::wstring>& GetName() const { return m_name; }
    void SetName(std::optional<std::wstring> value) { m_name = std::move(value); }
    /// Comment for the receiver.
    const std::optional<std::wstring>& GetCmt() const { return m_cmt; }
    void SetCmt(std::optional<std::wstring> value) { m_cmt = std::move(value); }
    /// Description for people.
    const std::optional<std::wstring>& GetDesc() const { return m_desc; }
    void SetDesc(std::optional<std::wstring> value) { m_desc = std::move(value); }
    /// Where the data comes from.
    const std::optional<std::wstring>& GetSrc() const { return m_src; }
    void SetSrc(std::optional<std::wstring> value) { m_src = std::move(value); }
    /// More about it, elsewhere.
    CGpxCollection<CLinkType>& GetLink() const { return *m_link; }
    /// Name of the symbol on the map.
    const std::optional<std::wstring>& GetSym() const { return m_sym; }
    void SetSym(std::optional<std::wstring> value) { m_sym = std::move(value); }
    /// Category.
    const std::optional<std::wstring>& GetType() const { return m_type; }
    void SetType(std::optional<std::wstring> value) { m_type = std::move(value); }
    /// Kind of the fix.
    std::optional<FixType> GetFix() const { return m_fix; }
    void SetFix(std::optional<FixType> value) { m_fix = value; }
    /// Satellites used, 0 or above.
    const std::optional<ZrXmlLib16::CBigInteger>& GetSat() const { return m_sat; }
    void SetSat(std::optional<ZrXmlLib16::CBigInteger> value) { m_sat = std::move(value); }
    /// Horizontal dilution of precision.
    const std::optional<ZrXmlLib16::CDecimal>& GetHdop() const { return m_hdop; }
    void SetHdop(std::optional<ZrXmlLib16::CDecimal> value) { m_hdop = std::move(value); }
    /// Vertical dilution of precision.
    const std::optional<ZrXmlLib16::CDecimal>& GetVdop() const { return m_vdop; }
    void SetVdop(std::optional<ZrXmlLib16::CDecimal> value) { m_vdop = std::move(value); }
    /// Position dilution of precision.
    const std::optional<ZrXmlLib16::CDecimal>& GetPdop() const { return m_pdop; }
    void SetPdop(std::optional<ZrXmlLib16::CDecimal> value) { m_pdop = std::move(value); }
    /// Seconds since the last differential correction.
    const std::optional<ZrXmlLib16::CDecimal>& GetAgeofdgpsdata() const { return m_ageofdgpsdata; }
    void SetAgeofdgpsdata(std::optional<ZrXmlLib16::CDecimal> value) { m_ageofdgpsdata = std::move(value); }
    /// Differential station, 0 to 1023.
    const std::optional<ZrXmlLib16::CBigInteger>& GetDgpsid() const { return m_dgpsid; }
    void SetDgpsid(std::optional<ZrXmlLib16::CBigInteger> value) { m_dgpsid = std::move(value); }
    /// What others add; may be null.
    CExtensionsType* GetExtensions() const { return m_extensions; }
    void SetExtensions(CExtensionsType* value);

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property {
        Property_Lat,
        Property_Lon,
        Property_Ele,
        Property_Time,
        Property_Magvar,
        Property_Geoidheight,
        Property_Name,
        Property_Cmt,
        Property_Desc,
        Property_Src,
        Property_Link,
        Property_Sym,
        Property_Type,
        Property_Fix,
        Property_Sat,
        Property_Hdop,
        Property_Vdop,
        Property_Pdop,
        Property_Ageofdgpsdata,
        Property_Dgpsid,
        Property_Extensions,
        Property_Count
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<ZrXmlLib16::CDecimal> m_lat;
    std::optional<ZrXmlLib16::CDecimal> m_lon;
    std::optional<ZrXmlLib16::CDecimal> m_ele;
    std::optional<ZrXmlLib16::CDateTime> m_time;
    std::optional<ZrXmlLib16::CDecimal> m_magvar;
    std::optional<ZrXmlLib16::CDecimal> m_geoidheight;
    std::optional<std::wstring> m_name;
    std::optional<std::wstring> m_cmt;
    std::optional<std::wstring> m_desc;
    std::optional<std::wstring> m_src;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CLinkType>> m_link;
    std::optional<std::wstring> m_sym;
    std::optional<std::wstring> m_type;
    std::optional<FixType> m_fix;
    std::optional<ZrXmlLib16::CBigInteger> m_sat;
    std::optional<ZrXmlLib16::CDecimal> m_hdop;
    std::optional<ZrXmlLib16::CDecimal> m_vdop;
    std::optional<ZrXmlLib16::CDecimal> m_pdop;
    std::optional<ZrXmlLib16::CDecimal> m_ageofdgpsdata;
    std::optional<ZrXmlLib16::CBigInteger> m_dgpsid;
    ZrXmlLib16::CSmartPtr<CExtensionsType> m_extensions;
};

} // namespace Gpx

#endif
