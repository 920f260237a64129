# SPDX-License-Identifier: MIT
"""Conan 2 recipe; it builds the source tree that it stands in."""
import os

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir

required_conan_version = ">=2.1"


class ZrXmlLib16Conan(ConanFile):
    name = "zrxmllib16"
    version = "16.1.0"
    package_type = "library"
    license = "MIT"
    description = "Run-time library of an XML data-binding toolkit"
    topics = ("xml", "json", "fast-infoset", "data-binding")
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "fPIC": [True, False], "tools": [True, False]}
    default_options = {"shared": True, "fPIC": True, "tools": False}
    implements = ["auto_shared_fpic"]

    def export_sources(self):
        root = os.path.join(self.recipe_folder, os.pardir, os.pardir)
        folders = ("cmake", "core", "metadata", "xml", "json", "fastinfoset", "values", "lexical", "streams",
                   "include", "tools", "docs", "examples")
        for folder in folders:
            copy(self, f"{folder}/*", root, self.export_sources_folder)
        for file in ("CMakeLists.txt", "LICENSE", "README.md", "CHANGELOG.md"):
            copy(self, file, root, self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def validate(self):
        if self.settings.os != "Linux" or self.settings.arch != "x86_64":
            raise ConanInvalidConfiguration("ZrXmlLib16 is for Linux on x86-64")
        check_min_cppstd(self, 17)

    def requirements(self):
        self.requires("zlib/[>=1.2.13 <2]")
        self.requires("pcre2/[>=10.40 <11]")
        # Its names are hidden or renamed in the library, so the 8-bit expat of the program is no conflict.
        self.requires("expat/[>=2.6.2 <3]", visible=False,
                      options={"char_type": "ushort", "shared": False, "fPIC": True})

    def build_requirements(self):
        self.tool_requires("cmake/[>=3.25 <5]")

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["ZRXML_STATIC"] = not self.options.shared
        toolchain.cache_variables["ZRXML_BUILD_TOOLS"] = bool(self.options.tools)
        toolchain.cache_variables["ZRXML_PATTERN_ENGINE"] = "pcre2"
        for option in ("ZRXML_BUILD_TESTS", "ZRXML_BUILD_EXAMPLES", "ZRXML_WARNINGS_AS_ERRORS"):
            toolchain.cache_variables[option] = False
        # The library's own find modules look for files, not for the targets that CMakeDeps makes.
        for package, module, library in (("expat", "ExpatWide", "libexpatw.a"), ("pcre2", "Pcre2", None)):
            info = self.dependencies[package].cpp_info.aggregated_components()
            toolchain.cache_variables[f"{module}_INCLUDE_DIR"] = info.includedirs[0]
            if library is None:
                library = "libpcre2-8.so" if self.dependencies[package].options.shared else "libpcre2-8.a"
            toolchain.cache_variables[f"{module}_LIBRARY"] = os.path.join(info.libdirs[0], library)
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        CMake(self).install()
        # The generators write these for the consumer's configuration.
        rmdir(self, os.path.join(self.package_folder, "lib", "cmake"))
        rmdir(self, os.path.join(self.package_folder, "lib", "pkgconfig"))
        rmdir(self, os.path.join(self.package_folder, "share"))

    def package_info(self):
        self.cpp_info.libs = ["ZrXmlLib16"]
        self.cpp_info.set_property("cmake_file_name", "ZrXmlLib16")
        self.cpp_info.set_property("cmake_target_name", "ZrXmlLib16::ZrXmlLib16")
        self.cpp_info.set_property("cmake_config_version_compat", "SameMinorVersion")
        self.cpp_info.set_property("pkg_config_name", "ZrXmlLib16")
        self.cpp_info.system_libs = ["pthread"]
        if not self.options.shared:
            self.cpp_info.defines = ["ZRXML_STATIC"]
