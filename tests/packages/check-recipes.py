#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks what packaging/ holds for package managers, as far as it can be without them.

    tests/packages/check-recipes.py CASE    CASE is one of the functions with a capital
"""
import ast
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "packaging"


def read(name):
    return (ROOT / name).read_text(encoding="utf-8")


def expect(what, found, wanted):
    if found != wanted:
        sys.exit(f"{what} is\n{found}\nand should be\n{wanted}")


def version():
    return re.findall(r"^#define KTQTBASE_VERSION_[MP]\w+ (\d+)$", read("include/KtQtBase/Version.h"),
                      re.MULTILINE)


def NameTheMajorVersion():
    runtime = f"libktqtbase{version()[0]}"
    for name in ("packaging/debian/control", "packaging/debian/rules",
                 f"packaging/debian/{runtime}.symbols"):
        expect(f"What {name} names", set(re.findall(r"\blibktqtbase\d+\b", read(name))), {runtime})


def HaveNoVersionOfTheirOwn():
    dotted = re.escape(".".join(version()))
    for path in sorted(PACKAGING.rglob("*")):
        if path.is_file() and path.suffix not in (".symbols", ".md"):
            expect(f"What {path.name} tells of the version",
                   re.findall(rf".*\b{dotted}\b.*", path.read_text(encoding="utf-8")), [])


def HaveEverySymbolOfTheLibrary():
    """Debian's list, whose names are the linker's, against the list of exported symbols."""
    text = read(f"packaging/debian/libktqtbase{version()[0]}.symbols")
    library = re.search(r"^libKtQtBase\.so\.\d+ .*\n((?: .*\n)+)", text, re.MULTILINE)[1]
    mangled = re.findall(r"(\w+)@Base", library)
    names = subprocess.run(["c++filt", *mangled], check=True, text=True, stdout=subprocess.PIPE)
    expect("What is listed", sorted(set(names.stdout.splitlines())),
           sorted(read("tests/exports/exported-symbols.txt").splitlines()))


def NameNoHost():
    for path in sorted(PACKAGING.rglob("*")):
        if path.is_file():
            hosts = set(re.findall(r"https?://([^/\s\"']+)", path.read_text(encoding="utf-8")))
            expect(f"What {path.name} names", hosts - {"www.debian.org"}, set())


def HaveAPortOfVcpkg():
    """The fields that vcpkg wants of a port, and no field that it does not know."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([PACKAGING / "vcpkg.sh", folder], check=True)
        port = json.loads((pathlib.Path(folder) / "vcpkg.json").read_text(encoding="utf-8"))
        recipe = (pathlib.Path(folder) / "portfile.cmake").read_text(encoding="utf-8")
    expect("An unknown field", set(port) - {"$comment", "name", "version", "description", "license",
                                            "supports", "dependencies"}, set())
    expect("The name", port["name"], "ktqtbase")
    expect("The version", port["version"], ".".join(version()))
    expect("The licence", port["license"], "MIT")
    for needed in port["dependencies"]:
        entry = needed if isinstance(needed, dict) else {"name": needed}
        expect("An unknown field", set(entry) - {"name", "host"}, set())
        expect("A name that vcpkg takes", bool(re.fullmatch(r"[a-z0-9]+(-[a-z0-9]+)*", entry["name"])),
               True)
    expect("Its copyright", "vcpkg_install_copyright(" in recipe, True)


def HaveAConanRecipe():
    tree = ast.parse(read("packaging/conan/conanfile.py"))
    recipe = next(node for node in tree.body if isinstance(node, ast.ClassDef))
    methods = {node.name for node in recipe.body if isinstance(node, ast.FunctionDef)}
    expect("Methods that are missing",
           {"requirements", "source", "generate", "build", "package", "package_info"} - methods, set())


def HaveAFormulaWithATest():
    formula = read("packaging/homebrew/ktqtbase.rb")
    for words in ("class Ktqtbase < Formula", "  def install\n", "  test do\n", 'license "MIT"'):
        expect(f"That it has {words.strip()}", words in formula, True)
    ruby = shutil.which("ruby")
    if ruby:
        subprocess.run([ruby, "-c", PACKAGING / "homebrew/ktqtbase.rb"], check=True)


if len(sys.argv) != 2:
    sys.exit(__doc__)
globals()[sys.argv[1]]()
