# SPDX-License-Identifier: MIT
"""Shows the library's types in gdb; the script that gdb loads with the library calls register()."""
import pathlib

import gdb
import gdb.printing
import gdb.types

import ktqtbase_views

TYPES = pathlib.Path(__file__).resolve().parent / "ktqtbase_types.o"


class Value:
    """A value of gdb for the views."""

    def __init__(self, value):
        self.value = value

    def field(self, name):
        return Value(self.value[name])

    def number(self):
        return int(self.value)

    def enumerators(self):
        return {field.enumval: field.name for field in self.value.type.strip_typedefs().fields()}

    def target(self):
        return Value(self.value.dereference())

    def address(self):
        return int(self.value.address)

    def size(self):
        return self.value.type.sizeof

    def read(self, address, size):
        return bytes(gdb.selected_inferior().read_memory(address, size))

    def symbol(self, address):
        return gdb.execute(f"info symbol {address}", to_string=True)


def encodable(text):
    """The text with escapes for what the terminal's character set does not have."""
    charset = gdb.target_charset()
    return text.encode(charset, "backslashreplace").decode(charset)


class Printer:
    def __init__(self, shown):
        self.shown = shown

    def to_string(self):
        return encodable(self.shown)


class Printers(gdb.printing.PrettyPrinter):
    """The printers under one name, by which `disable pretty-printer` finds them."""

    def __init__(self):
        super().__init__("KtQtBase")

    def __call__(self, value):
        name = gdb.types.get_basic_type(value.type).name
        if name not in ktqtbase_views.VIEWS:
            return None
        shown = ktqtbase_views.describe(name, Value(value))
        return shown and Printer(shown)


def add_types():
    """Has gdb read what describes the types, at addresses that no program has."""
    if not any(known.filename == str(TYPES) for known in gdb.objfiles()):
        gdb.execute(f'add-symbol-file "{TYPES}" -o 0x8000000000000000', to_string=True)


def register(objfile):
    """For a library that gdb has loaded; it may have loaded it before."""
    if TYPES.exists():
        ktqtbase_views.safely(add_types)  # gdb reads no names that the locale does not know
    gdb.printing.register_pretty_printer(objfile, Printers(), replace=True)
