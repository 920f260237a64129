// SPDX-License-Identifier: MIT
#ifndef JSON_JSONPATH_H
#define JSON_JSONPATH_H

#include <cstddef>
#include <string>

/// The parts of the path of a place in a JSON document, which begins with "$".
namespace ZrXmlLib16 {

/// A point and the name, or the quoted name in brackets.
void AppendMemberToPath(std::wstring& path, const std::wstring& name);
/// The index in brackets.
void AppendItemToPath(std::wstring& path, std::size_t index);

} // namespace ZrXmlLib16

#endif
