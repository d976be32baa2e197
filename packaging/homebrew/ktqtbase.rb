# SPDX-License-Identifier: MIT
# frozen_string_literal: true

# The library with Qt 5. HOMEBREW_KTQTBASE_ARCHIVE names the source archive of ./run dist, as a file
# or where it was published, and HOMEBREW_KTQTBASE_SHA256 its SHA-256.
class Ktqtbase < Formula
  desc "Windows API and MFC functions and classes over Qt 5"
  url ENV.fetch("HOMEBREW_KTQTBASE_ARCHIVE")
  sha256 ENV.fetch("HOMEBREW_KTQTBASE_SHA256")
  license "MIT"

  depends_on "cmake" => :build
  depends_on "ninja" => :build
  depends_on "pkg-config" => [:build, :test]
  depends_on "qt@5"

  def install
    system "cmake", "-S", ".", "-B", "build", "-G", "Ninja", *std_cmake_args,
           "-DKTQTBASE_BUILD_EXAMPLES=OFF", "-DKTQTBASE_BUILD_TESTS=OFF",
           "-DKTQTBASE_BUILD_TOOLS=OFF"
    system "cmake", "--build", "build"
    system "cmake", "--install", "build"
    pkgshare.install "tests/consumer/project"
  end

  test do
    ENV.prepend_path "PKG_CONFIG_PATH", Formula["qt@5"].opt_lib/"pkgconfig"
    flags = shell_output("pkg-config --cflags --libs KtQtBase").split
    system ENV.cxx, "-std=c++17", pkgshare/"project/main.cpp", *flags, "-Wl,-rpath,#{lib}", "-o", "consumer"
    system "./consumer"
  end
end
