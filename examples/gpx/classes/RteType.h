// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_RTETYPE_H
#define EXAMPLES_GPX_CLASSES_RTETYPE_H

#include "ZrXmlLib16/BigInteger.h"
#include "classes/ExtensionsType.h"
#include "classes/GpxCollection.h"
#include "classes/GpxObject.h"
#include "classes/LinkType.h"
#include "classes/WptType.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// A route: the points that lead to a destination (rteType).
class CRteType : public CGpxObject {
public:
    explicit CRteType(const wchar_t* elementName = L"rte");

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
    /// Number of the route, 0 or above.
    const std::optional<ZrXmlLib16::CBigInteger>& GetNumber() const { return m_number; }
    void SetNumber(std::optional<ZrXmlLib16::CBigInteger> value) { m_number = std::move(value); }
    /// Category.
    const std::optional<std::wstring>& GetType() const { return m_type; }
    void SetType(std::optional<std::wstring> value) { m_type = std::move(value); }
    /// What others add; may be null.
    CExtensionsType* GetExtensions() const { return m_extensions; }
    void SetExtensions(CExtensionsType* value);
    /// The points in order.
    CGpxCollection<CWptType>& GetRtept() const { return *m_rtept; }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property {
        Property_Name,
        Property_Cmt,
        Property_Desc,
        Property_Src,
        Property_Link,
        Property_Number,
        Property_Type,
        Property_Extensions,
        Property_Rtept,
        Property_Count
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_name;
    std::optional<std::wstring> m_cmt;
    std::optional<std::wstring> m_desc;
    std::optional<std::wstring> m_src;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CLinkType>> m_link;
    std::optional<ZrXmlLib16::CBigInteger> m_number;
    std::optional<std::wstring> m_type;
    ZrXmlLib16::CSmartPtr<CExtensionsType> m_extensions;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CWptType>> m_rtept;
};

} // namespace Gpx

#endif
