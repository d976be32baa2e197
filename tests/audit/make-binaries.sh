#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the binaries that the tests read.
#
#     make-binaries.sh FOLDER SOURCES    the tools are named by the variables of CMakeLists.txt
set -euo pipefail
sources=$(cd "$2" && pwd)
mkdir -p "$1"
cd "$1"

# Compiles for another platform, of which no header is needed: PLATFORM SOURCE OBJECT [OPTION]
compile() {
    "$CLANG" --target="$1" -Wno-stdlibcxx-not-found -c "$2" -o "$3" "${@:4}"
}

# An import library of a DLL that is not here.
import_library() {
    local name=$1
    shift
    { printf 'LIBRARY %s\nEXPORTS\n' "$name" && printf '%s\n' "$@"; } >"$name.def"
    "$DLLTOOL" -m i386:x86-64 -d "$name.def" -l "$name.lib"
}

# Its function's name begins with an underscore, and the object's symbol with two.
make_windows_program_of_32_bits() {
    printf 'LIBRARY KERNEL32.dll\nEXPORTS\n_lopen\n' >low32.def
    "$DLLTOOL" -m i386 -d low32.def -l low32.lib
    compile i686-pc-windows-msvc "$sources/low.c" low32.obj
    "$LLD_LINK" /nologo /nodefaultlib /entry:start /subsystem:console /safeseh:no \
        /out:low32.exe low32.obj low32.lib
}

make_windows_program() {
    import_library KERNEL32.dll CopyFileW CreateThread
    import_library USER32.dll MessageBoxA
    import_library own.dll ownFunction
    import_library mfc140u.dll "createFrame @256 NONAME"
    compile x86_64-pc-windows-msvc "$sources/program.c" program.obj
    "$LLD_LINK" /nologo /nodefaultlib /entry:start /subsystem:console /delayload:USER32.dll \
        /out:late.exe program.obj KERNEL32.dll.lib USER32.dll.lib own.dll.lib mfc140u.dll.lib
    compile i686-pc-windows-msvc "$sources/program.c" program32.obj
    compile x86_64-pc-windows-msvc "$sources/lacking.cpp" lacking.obj
    compile x86_64-pc-windows-msvc "$sources/frame.cpp" frame.obj
    "$AR" rc objects.lib program.obj frame.obj
    rm -f thin.lib
    "$AR" rcT thin.lib program.obj
    make_windows_program_of_32_bits
}

make_mingw_program() {
    "$MINGW" "$sources/window.c" -o window.exe
    "$MINGW" -c "$sources/window.c" -o window.obj
    "$MINGW" -shared "$sources/window.c" -o window.dll -Wl,--out-implib,window.dll.a
    rm -f window.lib
    "$AR" rc window.lib window.obj
}

make_elf() {
    compile x86_64-linux-gnu "$sources/host.cpp" host.o -fPIC
    "$LLD" -shared host.o -o libhost.so
    compile x86_64-linux-gnu "$sources/lacking.cpp" lacking.o
    compile x86_64-linux-gnu "$sources/own.c" own.o
    compile x86_64-linux-gnu "$sources/sleep.c" sleep.o
    rm -f libown.a
    "$AR" rc libown.a own.o sleep.o
}

make_mach_o() {
    local processor
    for processor in x86_64 arm64; do
        compile "$processor-apple-macos11" "$sources/host.cpp" "host-$processor.o"
        "$LLD_MACHO" -arch "$processor" -platform_version macos 11 11 -dylib \
            -undefined dynamic_lookup "host-$processor.o" -o "libhost-$processor.dylib"
    done
    "$LIPO" -create libhost-x86_64.dylib libhost-arm64.dylib -output libhost.dylib
    rm -f libhost-macos.a
    "$AR" --format=darwin rc libhost-macos.a host-x86_64.o
}

make_windows_program
make_mingw_program
make_elf
make_mach_o
