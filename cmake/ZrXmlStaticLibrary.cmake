# SPDX-License-Identifier: MIT
# What only the static library has. It may go into a shared library of the program; optimisation across source files is
# left out, because such an archive is readable for one release of one compiler only.
include(ZrXmlEmbedExpat)

target_compile_definitions(ZrXmlLib16 PUBLIC ZRXML_STATIC)
set_target_properties(ZrXmlLib16 PROPERTIES POSITION_INDEPENDENT_CODE ON)
zrxml_embed_expat(ZrXmlLib16 "${PROJECT_SOURCE_DIR}/xml/ExpatReader.cpp")
