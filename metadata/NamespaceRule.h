// SPDX-License-Identifier: MIT
#ifndef METADATA_NAMESPACERULE_H
#define METADATA_NAMESPACERULE_H

#include <memory>
#include <string>

namespace ZrXmlLib16 {

/// The namespaces that a wildcard accepts, and the target namespace of the schema it stands in. Shared by everything
/// the wildcard captures, and never changed. A null rule is "##any" without a target namespace, which most elements of
/// a tree are under.
struct NamespaceRule {
    std::wstring wildcard;
    std::wstring targetNamespace;
};

/// Null texts are empty.
std::shared_ptr<const NamespaceRule> MakeNamespaceRule(
    const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);

bool Accepts(const NamespaceRule* rule, const std::wstring& namespaceUri);
const std::wstring& WildcardOf(const NamespaceRule* rule);
const std::wstring& TargetNamespaceOf(const NamespaceRule* rule);

/// @throws CZrInvalidNamespaceException that names the class whose namespace it is.
[[noreturn]] void ThrowNamespaceInvalid(
    const std::wstring& namespaceUri, const wchar_t* className, const std::wstring& wildcard);

} // namespace ZrXmlLib16

#endif
