// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ERRORREPORT_H
#define ZRXMLLIB16_ERRORREPORT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrException.h"

#include <string>
#include <utility>

namespace ZrXmlLib16 {

/// The chain of an exception as UTF-8 text for people, without a line feed at the end: the outermost message, each
/// cause on an indented line of its own, and at last the path of the node at fault and its place in the text.
///
///     Failed to process the element.
///       Failed to find the required child element [price].
///       Path: /order/item[2]
///       At line 12, column 5
///
/// A message that several levels repeat stands there once. The path is the innermost one; another is added only when it
/// does not lead to that node. The place is left out when it is not known.
ZRXML_API std::string FormatReport(const CZrException& exception);

/// Called in a handler: throws the CZrException in flight as a std::runtime_error, whose what() is its report. The
/// CZrException is nested in it (std::rethrow_if_nested). Any other exception goes on as it is.
[[noreturn]] ZRXML_API void RethrowAsRuntimeError();

/// Runs the action and returns its result, for callers that know only std::exception.
/// @throws std::runtime_error with the report of a CZrException that the action throws, see RethrowAsRuntimeError.
template <class Action> decltype(auto) WithStandardExceptions(Action&& action)
{
    try {
        return std::forward<Action>(action)();
    } catch (const CZrException&) {
        RethrowAsRuntimeError();
    }
}

} // namespace ZrXmlLib16

#endif
