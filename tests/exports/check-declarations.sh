#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that tools/check-declarations.py finds what changes for hosts that are compiled again:
# breaks a copy of the headers in one way, and expects the lines that tell of it and no others.
#
#     tests/exports/check-declarations.sh CASE      CASE is one of the functions with a capital
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

check() {
    PYTHONDONTWRITEBYTECODE=1 "$work/tools/check-declarations.py" "$@"
}

# Changes a header of the copy; a pattern that finds nothing is a fault of the case.
change() {
    sed -i.before "$2" "$work/include/KtQtBase/$1"
    (! cmp -s "$work/include/KtQtBase/$1" "$work/include/KtQtBase/$1.before")
    rm "$work/include/KtQtBase/$1.before"
}

# Expects exactly these lines among the differences, in this order.
expect() {
    local found status=0
    found=$(check) || status=$?
    diff <(printf '%s\n' "$@") <(printf '%s\n' "$found" | grep -E '^[-+] ')
    [ "$status" = 1 ]
}

AgreeWithTheHeaders() {
    check
}

ShowAChangedDefault() {
    change Messages.h 's/^\( *unsigned int nIDHelp\) = 0);/\1 = 1);/'
    expect \
        '-  int AfxMessageBox(const wchar_t* lpszText, unsigned int nType = 0, unsigned int nIDHelp = 0)' \
        '+  int AfxMessageBox(const wchar_t* lpszText, unsigned int nType = 0, unsigned int nIDHelp = 1)'
}

ShowADefaultThatIsGone() {
    change RegistryKey.h 's/int nValueLen = -1/int nValueLen/'
    expect \
        '-    unsigned int SetValue(const wchar_t* lpszValue, const wchar_t* lpszValueName = nullptr, bool bMulti = false, int nValueLen = -1)' \
        '+    unsigned int SetValue(const wchar_t* lpszValue, const wchar_t* lpszValueName = nullptr, bool bMulti = false, int nValueLen)'
}

ShowAnAddedDefault() {
    change RegistryKey.h 's/unsigned int\* pnChars)/unsigned int* pnChars = nullptr)/'
    expect \
        '-    unsigned int QueryValue(wchar_t* szValue, const wchar_t* lpszValueName, unsigned int* pnChars)' \
        '+    unsigned int QueryValue(wchar_t* szValue, const wchar_t* lpszValueName, unsigned int* pnChars = nullptr)'
}

ShowAnotherInitialValueOfAField() {
    change FileDialog.h 's/QFileDialog::AnyFile/QFileDialog::ExistingFile/'
    expect \
        '-    int m_nFileMode = QFileDialog::AnyFile' \
        '+    int m_nFileMode = QFileDialog::ExistingFile'
}

ShowAnotherConstant() {
    change windows/Constants.h 's/ MAX_PATH = 260/ MAX_PATH = 261/'
    expect '-  constexpr int MAX_PATH = 260' '+  constexpr int MAX_PATH = 261'
}

ShowAnotherEnumerator() {
    change pathname/PathTypes.h 's/PC_RELATIVE = 3/PC_RELATIVE = 4/'
    expect '-    PC_RELATIVE = 3' '+    PC_RELATIVE = 4'
}

ShowAMovedField() {
    change windows/Records.h '/^struct POINT$/,/^}/ { s/LONG x/LONG z/; s/LONG y/LONG x/; s/LONG z/LONG y/; }'
    expect '+    LONG y' '-    LONG y'
}

ShowAnAddedVirtualFunction() {
    change VolumeDescriptor.h 's/^    virtual bool VolumeValid() const;/&\n    virtual bool IsRemote() const;/'
    expect '+    virtual bool IsRemote() const'
}

ShowAnotherMacro() {
    change porting/Macros.h 's/^#define TRUE 1/#define TRUE (-1)/'
    expect '-  #define TRUE 1' '+  #define TRUE (-1)'
}

ShowNoOtherCommentsLinesAndBodies() {
    change Messages.h 's|^KTQTBASE_EXPORT HINSTANCE|// Words.\nKTQTBASE_EXPORT\nHINSTANCE|'
    change windows/Records.h 's/ : RECT{0, 0, 0, 0} {}/ : RECT{} {}/'
    check
}

AreRewrittenOnRequest() {
    change windows/Constants.h 's/ MAX_PATH = 260/ MAX_PATH = 261/'
    check --update
    check
    grep -qx '  constexpr int MAX_PATH = 261' "$work/tests/exports/declarations.txt"
}

cp -r "$project/include" "$work"
mkdir -p "$work/tools" "$work/tests/exports"
cp "$project"/tools/{check-declarations,catalogue_headers}.py "$work/tools"
cp "$project/tests/exports/declarations.txt" "$work/tests/exports"
"$1"
