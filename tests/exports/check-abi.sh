#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that tools/check-abi.sh finds what breaks a host that is already compiled: breaks a copy of
# the library in many ways at once, since a build takes seconds, and expects each to be told.
#
#     tests/exports/check-abi.sh
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
expected=()

# Changes a file of the copy in a way that must be told by some words.
#   $1    the way
#   $2    the file; a pattern that finds nothing there is a fault of this script
#   $3    the change, for sed
#   $4    the words; nothing for a change that belongs to the next one
break_copy() {
    cp "$work/$2" "$work/before"
    sed -i "$3" "$work/$2"
    if cmp -s "$work/$2" "$work/before"; then
        echo "not made: $1"
        exit 1
    fi
    expected+=("$1:$4")
}

cp -r "$project"/{CMakeLists.txt,CMakePresets.json,cmake,debugger,include,osbase,src} "$work"
mkdir -p "$work/tools" "$work/tests/exports"
cp "$project/tools/check-abi.sh" "$work/tools"
cp "$project"/tests/exports/KtQtBase.abi* "$work/tests/exports"

include=include/KtQtBase
break_copy "a virtual function between others" "$include/VolumeDescriptor.h" \
    's/^    virtual bool IsCaseSensitive() const;/    virtual bool IsRemote() const { return false; }\n&/' \
    "the vtable offset of method virtual bool CRbUiVolumeDescriptor::IsCaseSensitive() const changed"
break_copy "a virtual function behind the others" "$include/VolumeDescriptor.h" \
    's/^    virtual bool VolumeValid() const;/&\n    virtual bool IsSlow() const { return false; }/' \
    "'method virtual bool CRbUiVolumeDescriptor::IsSlow() const'"
break_copy "fields that changed places" "$include/pathname/BasePathName.h" \
    's/m_pWork;/m_pOther;/; s/m_pRelPath;/m_pWork;/; s/m_pOther;/m_pRelPath;/' \
    "m_pWork' offset changed from 192 to 256"
break_copy "fields of Qt's types that changed places" "$include/FileDialog.h" \
    's/m_strCaption;/m_strOther;/; s/m_strDirectory;/m_strCaption;/; s/m_strOther;/m_strDirectory;/' \
    "m_strCaption' offset changed from 128 to 192"
break_copy "a new field" "$include/drawing/Painter.h" \
    's/^    QRegion m_rClipRegion;/&\n    int m_added = 0;/' \
    "type size changed from 256 to 320"
break_copy "a result, in the header" "$include/RegistryKey.h" \
    's/unsigned int Close();/int Close();/' ""
break_copy "a result, which no symbol tells" src/system/registry/RegistryKey.cpp \
    's/unsigned int CRegKey::Close/int CRegKey::Close/' \
    "'method unsigned int CRegKey::Close()'"
break_copy "a function that is gone" "$include/windows/Modules.h" \
    's/^KTQTBASE_EXPORT \(.*FreeLibrary\)/\1/' \
    "'function bool FreeLibrary(HINSTANCE)'"

failed=0
if "$work/tools/check-abi.sh" >"$work/found" 2>"$work/log"; then
    failed=1
fi
for line in "${expected[@]}"; do
    if ! grep -qF -- "${line#*:}" "$work/found"; then
        echo "not told: ${line%%:*}"
        failed=1
    fi
done
if [ "$failed" -ne 0 ]; then
    cat "$work/log" "$work/found"
fi
exit "$failed"
