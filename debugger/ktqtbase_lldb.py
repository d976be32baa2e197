# SPDX-License-Identifier: MIT
"""Shows the library's types in lldb.

    (lldb) command script import <prefix>/lib/KtQtBase/debugger/ktqtbase_lldb.py
"""
import pathlib
import sys

import lldb

FOLDER = pathlib.Path(__file__).resolve().parent
TYPES = FOLDER / "ktqtbase_types.o"

# The folder stays as it was installed.
sys.path.insert(0, str(FOLDER))
sys.dont_write_bytecode, before = True, sys.dont_write_bytecode
import ktqtbase_views  # noqa: E402
sys.dont_write_bytecode = before
del sys.path[0]


def type_name(kind):
    return kind.GetCanonicalType().GetUnqualifiedType().GetName()


def described_type(target, name):
    """A type by the description that is installed, for a host that has none of its own."""
    if TYPES.exists() and not target.FindModule(lldb.SBFileSpec(str(TYPES))).IsValid():
        target.AddModule(str(TYPES), None, None)
    return max(target.FindTypes(name), key=lambda kind: kind.GetByteSize(), default=lldb.SBType())


def described(target, name, address):
    """What lies at an address, with all that there is to know about its type."""
    kind = described_type(target, name)
    return target.CreateValueFromAddress(name, lldb.SBAddress(address, target), kind)


class Value:
    """A value of lldb for the views."""

    def __init__(self, value):
        if not value.IsValid():
            raise LookupError("no such value")
        self.value = value

    def field(self, name):
        if not self.value.GetChildMemberWithName(name).IsValid():
            self.value = described(self.value.GetTarget(), type_name(self.value.GetType()),
                                   self.address())
        return Value(self.value.GetChildMemberWithName(name))

    def number(self):
        error = lldb.SBError()
        if self.value.GetType().GetTypeFlags() & lldb.eTypeIsSigned:
            found = self.value.GetValueAsSigned(error, 0)
        else:
            found = self.value.GetValueAsUnsigned(error, 0)
        if error.Fail():
            raise ValueError(error.GetCString())
        return found

    def enumerators(self):
        members = self.value.GetType().GetEnumMembers()
        return {member.GetValueAsSigned(): member.GetName()
                for member in map(members.GetTypeEnumMemberAtIndex, range(members.GetSize()))}

    def target(self):
        found = self.value.Dereference()
        if found.IsValid():
            return Value(found)
        kind = self.value.GetType().GetCanonicalType().GetPointeeType()
        return Value(described(self.value.GetTarget(), type_name(kind), self.number()))

    def address(self):
        found = self.value.GetLoadAddress()
        if found == lldb.LLDB_INVALID_ADDRESS:
            raise LookupError("not in memory")
        return found

    def size(self):
        return self.value.GetByteSize()

    def read(self, address, size):
        """A core has no memory that a program only reads; the target knows the file that it is of."""
        error = lldb.SBError()
        memory = self.value.GetProcess().ReadMemory(address, size, error)
        if error.Fail():
            target, error = self.value.GetTarget(), lldb.SBError()
            memory = target.ReadMemory(lldb.SBAddress(address, target), size, error)
        if error.Fail() or len(memory) != size:
            raise MemoryError(error.GetCString())
        return memory

    def symbol(self, address):
        return str(self.value.GetTarget().ResolveLoadAddress(address).GetSymbol().GetName())


def summary(value, _):
    """A pointer shows what it points to."""
    value = Value(value.GetNonSyntheticValue())
    kind = value.value.GetType().GetCanonicalType()
    if kind.IsPointerType() or kind.IsReferenceType():
        value = ktqtbase_views.safely(value.target)
    if value == ktqtbase_views.UNREADABLE:
        return value
    name = type_name(value.value.GetType())
    return ktqtbase_views.describe(name, value) or f"<not KtQtBase's {name}>"


def __lldb_init_module(debugger, _):
    category = debugger.CreateCategory("KtQtBase")
    for name in ktqtbase_views.VIEWS:
        category.AddTypeSummary(
            lldb.SBTypeNameSpecifier(name),
            lldb.SBTypeSummary.CreateWithFunctionName(
                f"{__name__}.summary", lldb.eTypeOptionHideChildren | lldb.eTypeOptionCascade))
    category.SetEnabled(True)
