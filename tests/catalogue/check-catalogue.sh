#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that tools/check-catalogue.py finds each kind of fault: copies the catalogue, breaks the
# copy in one way, and expects the lines that tell of it and no others.
#
#     tests/catalogue/check-catalogue.sh CASE      CASE is one of the functions with a capital
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# Changes a JSON file of the copy: "family" is its content, "entry" what is found under a name.
change() {
    python3 - "$work/catalogue/$1" "$2" "$3" <<'END'
import json, sys
path, name, change = sys.argv[1:]
family = json.load(open(path, encoding="utf-8"))
entries = family.get("entries", family.get("families"))
entry = next((entry for entry in entries if name in (entry.get("name"), entry.get("family"))), None)
exec(change)
json.dump(family, open(path, "w", encoding="utf-8"))
END
}

check() {
    "$project/tools/check-catalogue.py" --catalogue "$work/catalogue" "$@"
}

# Expects exactly these faults, in any order.
expect() {
    local found status=0
    found=$(check) || status=$?
    diff <(printf '%s\n' "$@" | sort) <(printf '%s\n' "$found" | sort)
    [ "$status" = 1 ]
}

AgreesWithHeadersSymbolsAndTests() {
    check
}

NamesAnExportedFunctionWithoutEntry() {
    change files.json CopyFile 'entries.remove(entry)'
    expect "CopyFile of KtQtBase/windows/Files.h has no entry" \
        "the exported symbol CopyFile(wchar_t const*, wchar_t const*, bool) has no entry"
}

NamesAnExportedMethodWithoutEntry() {
    change registry.json Close 'entries.remove(entry)'
    expect "CRegKey::Close of KtQtBase/RegistryKey.h has no entry" \
        "the exported symbol CRegKey::Close() has no entry"
}

NamesAnExportedClassWithoutEntry() {
    change volumes.json CDelVolumeList 'entries.remove(entry)'
    expect "CDelVolumeList of KtQtBase/VolumeDescriptor.h has no entry" \
        "the exported symbol CDelVolumeList::~CDelVolumeList() has no entry"
}

NamesAConstantWithoutEntry() {
    change constants.json MAX_PATH 'entries.remove(entry)'
    expect "MAX_PATH of KtQtBase/windows/Constants.h has no entry"
}

NamesARecordWithoutEntry() {
    change records.json POINTL 'entries.remove(entry)'
    expect "POINTL of KtQtBase/windows/Records.h has no entry"
}

NamesAGlobalObjectWithoutEntry() {
    change volumes.json kColon 'entries.remove(entry)'
    expect "kColon of KtQtBase/VolumeDescriptor.h has no entry" \
        "the exported symbol kColon has no entry"
}

NamesAnEntryThatNoHeaderDeclares() {
    change constants.json OPAQUE 'entries.insert(entries.index(entry), dict(entry, name="OPALINE"))'
    expect "constants.json: OPALINE: KtQtBase/windows/Constants.h declares no such constant"
}

NamesAnEntryUnderAnotherHeader() {
    change constants.json OPAQUE 'entry["header"] = "KtQtBase/windows/Files.h"'
    expect "constants.json: OPAQUE: KtQtBase/windows/Files.h declares no such constant"
}

NamesAnEntryOfAnotherKind() {
    change constants.json OPAQUE 'entry["kind"] = "macro"'
    expect "constants.json: OPAQUE: KtQtBase/windows/Constants.h declares no such macro"
}

NamesAStatusThatIsNotTheHeaders() {
    change shell.json PathMatchSpec 'entry["status"] = "differs"'
    expect "shell.json: PathMatchSpec: is differs and by its header inert"
}

NamesASentenceThatIsNotTheHeaders() {
    change memory.json IsBadReadPtr 'entry["windows"] += " Always."'
    expect "memory.json: IsBadReadPtr: windows is not what its header says: non-zero means that at\
 least one byte cannot be read."
}

NamesAMissingSentence() {
    change gdi.json DeleteDC 'del entry["here"]'
    expect "gdi.json: DeleteDC: here is not what its header says: returns 0 and deletes nothing."
}

NamesTheGlobalFunctionsSentenceInANamespace() {
    change errors.json GetLastError 'entries[1]["windows"] = "nothing else"'
    expect "errors.json: KtKernel32::GetLastError: windows is not what its header says: the code\
 that the last function set."
}

NamesAnInertEntryWithoutItsResult() {
    change gdi.json DeleteDC 'del entry["result"]'
    expect "gdi.json: DeleteDC: result is for inert entries, and for each of them"
}

NamesAnEntryThatSaysNotWhatToDoInstead() {
    change files.json CopyFile 'del entry["instead"]'
    expect "files.json: CopyFile: instead is for entries that do not work, and for each of them"
}

NamesATestThatDoesNotExist() {
    change constants.json OPAQUE 'entry["test"] = "Constants.AreOpaque"'
    expect "constants.json: OPAQUE: no test is named Constants.AreOpaque"
}

NamesADuplicate() {
    change files.json CopyFile 'entries.insert(entries.index(entry), entry)'
    expect "files.json: CopyFile is there twice"
}

NamesADuplicateInAnotherFile() {
    cp "$work/catalogue/memory.json" "$work/catalogue/heap.json"
    change heap.json '' 'family["family"] = "heap"'
    expect "memory.json: IsBadReadPtr is in heap.json, too"
}

NamesAnUnknownKey() {
    change files.json CopyFile 'entry["since"] = "1.0"'
    expect "files.json: CopyFile: unknown key since"
}

NamesAMissingKey() {
    change files.json CopyFile 'del entry["status"]'
    expect "files.json: CopyFile: no key status" "files.json: CopyFile: unknown status None"
}

NamesAnUnknownKeyOfAFamily() {
    change memory.json '' 'family["note"] = ""'
    expect "memory.json: unknown key note"
}

NamesAnUnknownStatus() {
    change files.json CopyFile 'entry["status"] = "partly"'
    expect "files.json: CopyFile: unknown status partly"
}

NamesAFileOfAnotherFamily() {
    mv "$work/catalogue/memory.json" "$work/catalogue/storage.json"
    expect "storage.json: holds the family memory"
}

NamesAnUnsortedEntry() {
    change shell.json PathMatchSpec 'entries.reverse()'
    expect "shell.json: SHGetFolderPath stands behind SHGetSpecialFolderPath" \
        "shell.json: PathMatchSpec stands behind SHGetFolderPath"
}

NamesPortingWhereItDoesNotBelong() {
    change files.json CopyFile 'entry["porting"] = True'
    expect "files.json: CopyFile: porting is for the names of Porting.h, and for each of them"
}

NamesAnAdviceThatDiffersBetweenTheLists() {
    change memory.json '' 'family["advice"] = "None."'
    expect "memory.json: advice is not that of families.json"
}

NamesAFamilyThatIsThereTwice() {
    change families.json memory 'entries.append(entry)'
    expect "families.json: memory is there twice"
}

NamesABrokenPattern() {
    change families.json memory 'entry["patterns"] = ["("]'
    expect "families.json: memory: the pattern ( is none: missing ), unterminated subpattern at\
 position 0"
}

NamesAnMfcClassThatIsThereTwice() {
    change families.json '' 'for name in ("time", "files"): family["mfc"][name].append("CTimer")'
    expect "families.json: mfc: CTimer is there twice"
}

NamesAnMfcClassThatTheLibraryHas() {
    change families.json '' 'family["mfc"]["registry"].insert(0, "CRegKey")'
    expect "families.json: mfc: CRegKey has an entry"
}

NamesAnUnknownFamilyOfMfc() {
    change families.json '' 'family["mfc"]["attic"] = ["COldThing"]'
    expect "families.json: mfc has an unknown family attic"
}

NamesAnUnsortedWindowsName() {
    printf 'AbortDoc\tgdi32.dll\n' >>"$work/catalogue/windows-names.txt"
    expect "windows-names.txt: AbortDoc stands behind wvsprintfW"
}

NamesAWindowsNameWithoutLibrary() {
    printf 'zzz\n' >>"$work/catalogue/windows-names.txt"
    expect "windows-names.txt: no name and library: zzz"
}

# A CTest that knows every test but one, all of them with parameters.
AsksCTestForTheTestsOfABuild() {
    sed -n 's|^ *"test": "\(.*\)",\{0,1\}$|  Test #7: Rows/\1/One|p' "$work"/catalogue/*.json |
        grep -v IsBadReadPtr >"$work/tests"
    printf '#!/bin/sh\n[ "$*" = "--test-dir a build -N" ] && cat "%s"\n' "$work/tests" \
        >"$work/ctest"
    chmod +x "$work/ctest"
    PATH="$work:$PATH" check "a build" >"$work/found" || true
    diff - "$work/found" <<'END'
memory.json: IsBadReadPtr: no test is named IsBadReadPtr.CallsEveryPointerReadable
END
}

CountsWhatWorksDiffersAndIsInert() {
    change memory.json '' 'family["entries"] = [{"status": s} for s in ("works", "inert", "inert")]'
    check --counts >"$work/counts"
    grep -qE '^family +works +differs +inert$' "$work/counts"
    grep -qE '^memory +1 +0 +2$' "$work/counts"
}

cp -r "$project/catalogue" "$work"
"$1"
