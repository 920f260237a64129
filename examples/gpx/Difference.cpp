// SPDX-License-Identifier: MIT
#include "Difference.h"

#include "UntypedDifference.h"
#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"

#include <typeinfo>

namespace Demo {

using Gpx::CGpxObject;
using ZrXmlLib16::CElementCol;
using ZrXmlLib16::CXmlCollection;
using ZrXmlLib16::ZrVariant;

namespace {

bool AreEqual(const ZrXmlLib16::CDateTime& left, const ZrXmlLib16::CDateTime& right)
{
    return left == right && left.HasTimeZone() == right.HasTimeZone() && left.GetTimeZone() == right.GetTimeZone();
}

/// For variants of the same item type, of those that the classes use.
bool AreValuesEqual(const ZrVariant& left, const ZrVariant& right)
{
    switch (left.GetItemType()) {
    case ZrXmlLib16::ItemType_none:
        return true;
    case ZrXmlLib16::ItemType_i4:
        return left.GetI4() == right.GetI4();
    case ZrXmlLib16::ItemType_year:
        return left.GetYear() == right.GetYear();
    case ZrXmlLib16::ItemType_datetime:
        return AreEqual(left.GetDateTime(), right.GetDateTime());
    case ZrXmlLib16::ItemType_string:
        return left.GetString() == right.GetString();
    case ZrXmlLib16::ItemType_decimal:
        return left.GetDecimal() == right.GetDecimal();
    case ZrXmlLib16::ItemType_integer:
        return left.GetInteger() == right.GetInteger();
    default:
        throw ZrXmlLib16::CZrException(L"Values of this type cannot be compared");
    }
}

std::wstring FindItemDifference(
    const CXmlCollection& leftItems, const CXmlCollection& rightItems, const std::wstring& name)
{
    if (leftItems.GetCount() != rightItems.GetCount()) {
        return L"/" + name;
    }
    for (int index = 0; index < leftItems.GetCount(); ++index) {
        std::wstring difference =
            FindDifference(dynamic_cast<const CGpxObject&>(*leftItems.GetNodeAtIndex(index)->GetItem()),
                dynamic_cast<const CGpxObject&>(*rightItems.GetNodeAtIndex(index)->GetItem()));
        if (!difference.empty()) {
            // The path of the item begins with its name, behind which its position belongs.
            return difference.insert(1 + name.size(), L"[" + std::to_wstring(index + 1) + L"]");
        }
    }
    return {};
}

/// Untyped elements have no name in common: the path goes on with their positions.
std::wstring FindCollectionDifference(const ZrVariant& left, const ZrVariant& right, const std::wstring& name)
{
    const auto& leftItems = dynamic_cast<const CXmlCollection&>(*left.GetXmlCollection());
    const auto& rightItems = dynamic_cast<const CXmlCollection&>(*right.GetXmlCollection());
    if (const auto* untyped = dynamic_cast<const CElementCol*>(&leftItems)) {
        return FindUntypedDifference(*untyped, dynamic_cast<const CElementCol&>(rightItems));
    }
    return FindItemDifference(leftItems, rightItems, name);
}

std::wstring FindObjectDifference(const ZrVariant& left, const ZrVariant& right, const std::wstring& name)
{
    const auto* leftObject = dynamic_cast<const CGpxObject*>(left.GetXmlObject().GetPtr());
    const auto* rightObject = dynamic_cast<const CGpxObject*>(right.GetXmlObject().GetPtr());
    if (!leftObject || !rightObject) {
        return leftObject == rightObject ? std::wstring() : L"/" + name;
    }
    return FindDifference(*leftObject, *rightObject);
}

std::wstring FindPropertyDifference(const ZrVariant& left, const ZrVariant& right, const std::wstring& name)
{
    if (left.GetItemType() != right.GetItemType()) {
        return L"/" + name;
    }
    switch (left.GetItemType()) {
    case ZrXmlLib16::ItemType_collection:
        return FindCollectionDifference(left, right, name);
    case ZrXmlLib16::ItemType_object:
        return FindObjectDifference(left, right, name);
    default:
        return AreValuesEqual(left, right) ? std::wstring() : L"/" + name;
    }
}

} // namespace

std::wstring FindDifference(const CGpxObject& left, const CGpxObject& right)
{
    const std::wstring path = L"/" + left.GetElementName();
    if (typeid(left) != typeid(right) || left.GetElementName() != right.GetElementName()) {
        return path;
    }
    for (int property = 0; property < left.GetPropertyCount(); ++property) {
        ZrVariant leftValue;
        ZrVariant rightValue;
        left.ReadProperty(property, leftValue);
        right.ReadProperty(property, rightValue);
        const std::wstring difference = FindPropertyDifference(leftValue, rightValue, left.GetPropertyName(property));
        if (!difference.empty()) {
            return path + difference;
        }
    }
    return {};
}

} // namespace Demo
