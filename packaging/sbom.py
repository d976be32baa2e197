#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes what packages hold and need as a software bill of materials, CycloneDX 1.5 in JSON.

    packaging/sbom.py OUTPUT PACKAGE...

Each package is a component with its SHA-256; what it needs of others is a component, too, with the
version that it was built with where that is known. The same packages give the same bytes: the time
is SOURCE_DATE_EPOCH, and the serial number is made of the content.

Needs Python 3, and dpkg for .deb or rpm for .rpm.
"""
import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import uuid

ROOT = pathlib.Path(__file__).resolve().parent.parent
LICENCE = [{"license": {"id": "MIT"}}]


def output(*command):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout


def library_version():
    text = (ROOT / "include/KtQtBase/Version.h").read_text(encoding="utf-8")
    return ".".join(re.findall(r"^#define KTQTBASE_VERSION_[MP]\w+ (\d+)$", text, re.MULTILINE))


def deb_fields(path):
    """The name, the version, the architecture and the needed packages of a .deb."""
    name, version, architecture, depends = (
        output("dpkg-deb", "--field", path, field).strip()
        for field in ("Package", "Version", "Architecture", "Depends"))
    needed = [re.match(r"[^ (|:]+", word.strip())[0] for word in depends.split(",") if word.strip()]
    return name, version, architecture, needed


def rpm_fields(path):
    """The name, the version, the architecture and the needed capabilities of an .rpm."""
    fields = output("rpm", "--query", "--package", "--queryformat",
                    "%{NAME}\n%{VERSION}-%{RELEASE}\n%{ARCH}", path)
    needed = output("rpm", "--query", "--package", "--requires", path).splitlines()
    names = {re.split(r"[ (]", line)[0] for line in needed if not line.startswith("rpmlib(")}
    return *fields.split("\n"), sorted(names)


def installed_version(name):
    """The version of a package on the machine that builds, or nothing."""
    found = subprocess.run(["dpkg-query", "--show", "--showformat", "${Version}", name],
                           check=False, text=True, capture_output=True)
    return found.stdout if found.returncode == 0 else ""


def package_component(kind, path, fields):
    name, version, architecture, _ = fields
    return {
        "type": "library" if name.startswith("lib") else "application",
        "bom-ref": f"package:{name}",
        "name": name,
        "version": version,
        "hashes": [{"alg": "SHA-256", "content": hashlib.sha256(path.read_bytes()).hexdigest()}],
        "licenses": LICENCE,
        "purl": f"pkg:{kind}/{name}@{version}?arch={architecture}",
        "properties": [{"name": "file", "value": path.name}],
    }


def needed_component(name):
    component = {"type": "library", "bom-ref": f"needed:{name}", "name": name}
    version = installed_version(name)
    if version:
        component["version"] = version
    return component


def bill(kind, packages):
    """The whole document, without its serial number."""
    own = {fields[0] for _, fields in packages}
    needed = sorted({name for _, fields in packages for name in fields[3]} - own)
    references = {name: f"package:{name}" if name in own else f"needed:{name}"
                  for name in own | set(needed)}
    time = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]),
                                           datetime.timezone.utc)
    return {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "version": 1,
        "metadata": {
            "timestamp": time.strftime("%Y-%m-%dT%H:%M:%SZ"),
            "component": {
                "type": "library", "bom-ref": "ktqtbase", "name": "ktqtbase",
                "version": library_version(), "licenses": LICENCE,
            },
        },
        "components": [package_component(kind, path, fields) for path, fields in packages]
        + [needed_component(name) for name in needed],
        "dependencies": [{"ref": "ktqtbase", "dependsOn": sorted(references[name] for name in own)}]
        + [{"ref": references[fields[0]],
            "dependsOn": sorted({references[name] for name in fields[3]})} for _, fields in packages],
    }


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    paths = sorted((pathlib.Path(name) for name in sys.argv[2:]), key=lambda path: path.name)
    kind = paths[0].suffix[1:]
    read = {"deb": deb_fields, "rpm": rpm_fields}[kind]
    document = bill(kind, [(path, read(path)) for path in paths])
    digest = uuid.uuid5(uuid.NAMESPACE_OID, json.dumps(document, sort_keys=True))
    document["serialNumber"] = f"urn:uuid:{digest}"
    text = json.dumps(document, indent=2, sort_keys=True) + "\n"
    pathlib.Path(sys.argv[1]).write_text(text, encoding="utf-8")


main()
