#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes catalogue/windows-names.txt, the names of the Windows API with the libraries that export
# them, out of the import libraries of Debian's mingw-w64-x86-64-dev. Needs that package and
# binutils-mingw-w64-x86-64. The file changes only with the package, so no build runs this.
set -euo pipefail
cd "$(dirname "$0")/.."
export LC_ALL=C
folder=${1:-/usr/x86_64-w64-mingw32/lib}
list=catalogue/windows-names.txt
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Of a name that several libraries export, the first one of these is told.
libraries="kernel32 user32 gdi32 advapi32 shell32 shlwapi comdlg32 comctl32 ole32 oleaut32 oledlg
    winspool version winmm ws2_32 mswsock msimg32 imm32 usp10 uxtheme dwmapi gdiplus shcore pathcch
    psapi dbghelp imagehlp userenv wtsapi32 powrprof setupapi cfgmgr32 newdev hid winusb mpr
    netapi32 iphlpapi dnsapi dhcpcsvc httpapi winhttp wininet urlmon websocket rpcrt4 wldap32
    secur32 credui crypt32 cryptui cryptnet bcrypt ncrypt wintrust mscat32 winscard scarddlg authz
    aclui activeds ntdsapi ntmarta synchronization ktmw32 fltlib virtdisk cabinet lz32 sfc
    rstrtmgr vssapi msi pdh loadperf wevtapi tdh wer faultrep mstask oleacc propsys mapi32
    htmlhelp hlink odbc32 odbccp32 esent clusapi resutils rasapi32 rasdlg tapi32 mprapi wlanapi
    bluetoothapis bthprops sensapi snmpapi wsdapi wscapi cscapi rtutils traffic qwave ndfapi
    avifil32 avicap32 msvfw32 msacm32 avrt mmdevapi mf mfplat mfplay mfreadwrite evr msdmo dxva2
    dsound dinput dinput8 xinput1_4 xaudio2_8 ddraw d3d9 d3d10 d3d11 d3d12 d3dcompiler_47 d3dx9_43
    d3dx10_43 d3dx11_43 dxgi d2d1 dwrite dcomp opengl32 windowscodecs mscms icm32 t2embed fontsub
    normaliz prntvpt sti fxsapi winfax riched20 dbgeng srclient wimgapi wofutil webauthn tbs
    ntdll"

# What both kinds of system have is not of the Windows API alone: the C library, sockets, LDAP and
# OpenGL. A name without a capital is mostly one of these, or a debugger's command.
runtimes="msvcrt msvcrt-os ucrtbase mingwex moldname"
elsewhere='^(?!(close|ioctl)socket\t)[a-z0-9_]+\t(?!kernel32|user32)|^glu?[A-Z0-9].*\topengl32'
elsewhere+='|^(ber|cldap|gai|ldap)_|^ord_|^WEP\t'

# Functions that the headers of Windows make of others, so that no library exports them, and those
# few with an underscore in front that no run-time library has.
more_functions() {
    printf '%s\tkernel32.dll\n' _hread _hwrite _lclose _lcreat _llseek _lopen _lread _lwrite
    printf '%s\tcomctl32.dll\n' _TrackMouseEvent
    printf '%s\tkernel32.dll\n' CopyMemory FillMemory InterlockedAnd InterlockedCompareExchange \
        InterlockedDecrement InterlockedExchange InterlockedExchangeAdd InterlockedIncrement \
        InterlockedOr InterlockedXor MoveMemory SecureZeroMemory YieldProcessor ZeroMemory
    printf '%s\tuser32.dll\n' CreateDialog{,Indirect}{A,W} CreateWindow{A,W} \
        DialogBox{,Indirect}{A,W} ExitWindows PostAppMessage{A,W}
}

functions() {
    x86_64-w64-mingw32-nm -g --defined-only "$folder/lib$1.a" 2>/dev/null |
        sed -nE 's/^[0-9a-f]+ T ([A-Za-z]\w*)$/\1/p' | sort -u
}

dll() {
    x86_64-w64-mingw32-dlltool -I "$folder/lib$1.a" | tr '[:upper:]' '[:lower:]'
}

for runtime in $runtimes; do
    functions "$runtime"
done | sort -u >"$scratch/runtime"

{
    for library in $libraries; do
        functions "$library" | comm -23 - "$scratch/runtime" | sed "s/\$/\t$(dll "$library")/"
    done
    more_functions
} | grep -vP "$elsewhere" | awk -F '\t' '!seen[$1]++' | sort >"$scratch/names"

{
    sed -n 2p tools/windows-names.sh
    echo '# Made by tools/windows-names.sh: functions of the Windows API and the libraries that'
    echo '# export them, of the first one where several do. Left out: the C and C++ run-times,'
    echo '# sockets and OpenGL under the names that other systems have, too, and libraries of'
    echo '# drivers and services.'
    cat "$scratch/names"
} >"$list"
