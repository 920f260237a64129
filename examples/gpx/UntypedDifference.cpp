// SPDX-License-Identifier: MIT
#include "UntypedDifference.h"

#include "ZrXmlLib16/AttributeCol.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace Demo {

using ZrXmlLib16::CAttribute;
using ZrXmlLib16::CAttributeCol;
using ZrXmlLib16::CElement;
using ZrXmlLib16::CElementCol;

namespace {

struct Pair {
    const CElement* left;
    const CElement* right;
    std::wstring path;
};

/// @return the name of an attribute of the left that the right does not have or has with another value; empty when
/// there is none.
std::wstring FindAttributeDifference(const CAttributeCol& left, const CAttributeCol& right)
{
    for (int index = 0; index < left.GetCount(); ++index) {
        const CAttribute* attribute = left.Item(index);
        const CAttribute* other = right.Find(attribute->GetName().c_str(), attribute->GetNamespace().c_str());
        if (!other || other->GetValue() != attribute->GetValue()) {
            return attribute->GetName();
        }
    }
    return {};
}

/// Leaves the children out.
std::wstring FindOwnDifference(const CElement& left, const CElement& right)
{
    if (left.GetElementName() != right.GetElementName() || left.GetNamespace() != right.GetNamespace()) {
        return L"/name()";
    }
    std::wstring attribute = FindAttributeDifference(*left.GetAttributes(), *right.GetAttributes());
    if (attribute.empty()) {
        attribute = FindAttributeDifference(*right.GetAttributes(), *left.GetAttributes());
    }
    if (!attribute.empty()) {
        return L"/@" + attribute;
    }
    return left.GetText() == right.GetText() ? L"" : L"/text()";
}

/// For lists of the same length. The first pair comes to lie on top.
void PushPairs(const CElementCol& left, const CElementCol& right, const std::wstring& path, std::vector<Pair>& pairs)
{
    const std::size_t below = pairs.size();
    CElementCol::iterator other = right.begin();
    int position = 0;
    for (const CElement* element : left) {
        pairs.push_back({element, *other++, path + L"/*[" + std::to_wstring(++position) + L"]"});
    }
    std::reverse(pairs.begin() + static_cast<std::ptrdiff_t>(below), pairs.end());
}

} // namespace

std::wstring FindUntypedDifference(const CElementCol& left, const CElementCol& right)
{
    if (left.GetCount() != right.GetCount()) {
        return L"/*";
    }
    std::vector<Pair> pairs;
    PushPairs(left, right, L"", pairs);
    while (!pairs.empty()) {
        const Pair pair = std::move(pairs.back());
        pairs.pop_back();
        const std::wstring difference = FindOwnDifference(*pair.left, *pair.right);
        if (!difference.empty()) {
            return pair.path + difference;
        }
        if (pair.left->GetElements()->GetCount() != pair.right->GetElements()->GetCount()) {
            return pair.path + L"/*";
        }
        PushPairs(*pair.left->GetElements(), *pair.right->GetElements(), pair.path, pairs);
    }
    return {};
}

} // namespace Demo
