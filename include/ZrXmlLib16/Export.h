// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_EXPORT_H
#define ZRXMLLIB16_EXPORT_H

/// Marks what is public: the library is built with hidden visibility. Define ZRXML_STATIC to use a static build.
#if defined(ZRXML_STATIC)
#define ZRXML_API
#else
#define ZRXML_API __attribute__((visibility("default")))
#endif

#endif
