// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_EOLTYPE_H
#define ZRXMLLIB16_EOLTYPE_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// How a writer ends a line: carriage return and line feed, or line feed alone.
enum EOLType : int { EOL_CRLF = 0, EOL_LF = 1 };

} // namespace ZrXmlLib16

#endif
