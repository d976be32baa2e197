# SPDX-License-Identifier: MIT
"""The library as a package of Conan 2, out of the source archive of ./run dist.

KTQTBASE_ARCHIVE names the archive in the environment, as a file or where it was published, and
KTQTBASE_SHA256 its SHA-256. `conan create packaging/conan --version VERSION` builds it.
"""
import os

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, get


class KtQtBase(ConanFile):
    """The shared library with its headers, over the Qt of Conan."""

    name = "ktqtbase"
    description = "Windows API and MFC functions and classes over Qt 5"
    license = "MIT"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def requirements(self):
        self.requires("qt/[>=5.15 <6]", transitive_headers=True, options={"shared": True})

    def validate(self):
        check_min_cppstd(self, 17)

    def layout(self):
        cmake_layout(self, src_folder="src")

    def source(self):
        archive = os.environ["KTQTBASE_ARCHIVE"]
        digest = os.environ["KTQTBASE_SHA256"]
        if os.path.exists(archive):
            archive = "file://" + os.path.abspath(archive)
        get(self, archive, sha256=digest, strip_root=True)

    def generate(self):
        toolchain = CMakeToolchain(self)
        for part in ("EXAMPLES", "TESTS", "TOOLS"):
            toolchain.cache_variables[f"KTQTBASE_BUILD_{part}"] = False
        toolchain.cache_variables["KTQTBASE_INSTALL_NOTES"] = False
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        CMake(self).install()

    def package_info(self):
        # The package that the build installs knows more than one that Conan would write.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = [os.path.join("lib", "cmake", "KtQtBase")]
        self.cpp_info.libs = ["KtQtBase", "KtOsBase"]
