# SPDX-License-Identifier: MIT
"""What a debugger shows for a value of one of the library's types, in one line.

    shown = describe("CRnUiPathname", value)    # {type PT_FILE, category PC_DRIVE, work L"C:/a.txt"...

Each debugger has a module that wraps its values; this one knows no debugger. A wrapped value has

    field(name)        a member, also one of a base class
    number()           the value as an integer
    enumerators()      the names of an enumeration by their numbers
    target()           what a pointer points to
    address(), size()  where the value lies, and how many bytes it has
    read(a, n)         n bytes of the program's memory at the address a
    symbol(address)    what lies there by the program's symbols, such as "vtable for QImage"

and each may raise anything where it has no answer. Values may be unset, freed or overwritten, so
nothing read here is taken for true: a part that cannot be read says so, and lengths are bounded.
"""
from typing import Callable, NamedTuple, Tuple

import ktqtbase_names

CHARACTERS_SHOWN = 200
CHARACTER_SIZE = 4
WORD_SIZE = 8
UNREADABLE = "<unreadable>"
NO_STRING = "<no string>"


class View(NamedTuple):
    """How values of one type are shown; a type of the same name without the fields is not ours."""
    fields: Tuple[str, ...]
    show: Callable


# ---- Parts ---------------------------------------------------------------------------------------

def safely(show, *arguments):
    """What a function makes of its arguments, or a word where the memory does not allow it."""
    try:
        return show(*arguments)
    except Exception:  # a debugger's errors have no common class
        return UNREADABLE


def braced(parts):
    return "{" + ", ".join(part for part in parts if part) + "}"


def number(value, name):
    return value.field(name).number()


def is_null(value, name):
    return number(value, name) == 0


def small_or_hex(given):
    return str(given) if abs(given) < 0x10000 else hex(given & 0xFFFFFFFFFFFFFFFF)


def enumerator(value, name):
    given = number(value, name)
    return value.field(name).enumerators().get(given, str(given))


def bits(given, names):
    """The names of the bits that are set, and the rest as a number."""
    known = [name for bit, name in sorted(names.items()) if given & bit]
    rest = given & ~sum(names)
    return " | ".join(known + ([hex(rest)] if rest or not known else []))


# ---- Texts ---------------------------------------------------------------------------------------

ESCAPES = {ord('"'): '\\"', ord("\\"): "\\\\", 0: "\\0", 9: "\\t", 10: "\\n", 13: "\\r"}


def character(code):
    """A character as a source would have it; numbers that are none stay visible, too."""
    if code in ESCAPES:
        return ESCAPES[code]
    if code > 0x10FFFF or 0xD800 <= code < 0xE000 or not chr(code).isprintable():
        return f"\\u{code:04x}" if code < 0x10000 else f"\\U{code:08x}"
    return chr(code)


def quoted(codes, is_whole=True):
    return 'L"' + "".join(map(character, codes)) + ('"' if is_whole else '"...')


def characters(value, address, count):
    """The codes at an address, as far as they can be read; none at all raises."""
    try:
        memory = value.read(address, count * CHARACTER_SIZE)
    except Exception:  # so that a text at the end of a page is seen
        memory = value.read(address, CHARACTER_SIZE)
        for place in range(1, count):
            try:
                memory += value.read(address + place * CHARACTER_SIZE, CHARACTER_SIZE)
            except Exception:
                break
    words = memoryview(bytes(memory)).cast("I")
    return words.tolist()


def counted_text(value, address, count):
    shown = characters(value, address, min(count, CHARACTERS_SHOWN)) if count else []
    is_whole = len(shown) == count
    return quoted(shown, is_whole) + ("" if is_whole else f" of {count}")


def terminated_text(value, address, terminator=(0,), room=CHARACTERS_SHOWN):
    """The text up to a row of codes, which for a list of texts is two NULs."""
    codes = characters(value, address, min(room, CHARACTERS_SHOWN))
    size = len(terminator)
    for place in range(len(codes) - size + 1):
        if tuple(codes[place:place + size]) == terminator:
            return quoted(codes[:place])
    return quoted(codes, False)


def words(value, address, count):
    return memoryview(bytes(value.read(address, count * WORD_SIZE))).cast("Q").tolist()


# A string's length, its room and where its characters are, by the size that its class has in each
# C++ library. A room below the length is no string's.

def libstdcxx_string(value, address):
    data, length, room = words(value, address, 3)
    is_inside = data == address + 2 * WORD_SIZE
    return length, 3 if is_inside else room, data


def libstdcxx_string_before_cxx11(value, address):
    data = words(value, address, 1)[0]
    length, room = words(value, data - 3 * WORD_SIZE, 2)
    return length, room, data


def libcxx_string(value, address):
    room, length, data = words(value, address, 3)
    if room & 1:
        return length, room - 2, data
    return (room & 0xFF) >> 1, 4, address + CHARACTER_SIZE


STRING_LAYOUTS = {32: libstdcxx_string, 8: libstdcxx_string_before_cxx11, 24: libcxx_string}
LONGEST_STRING = 1 << 40


def text(value):
    if value.size() not in STRING_LAYOUTS:
        return NO_STRING
    length, room, data = STRING_LAYOUTS[value.size()](value, value.address())
    if length > room or length > LONGEST_STRING:
        return NO_STRING
    return counted_text(value, data, length)


def pointed_text(value, name):
    return "null" if is_null(value, name) else safely(text, value.field(name).target())


# ---- Path objects and volumes --------------------------------------------------------------------

def volume_name(value):
    if is_null(value, "m_pVolume"):
        return "null"
    return safely(pointed_text, value.field("m_pVolume").target(), "m_pLocalName")


def category(value):
    """Only a parse sets it."""
    return "category " + enumerator(value, "m_category") if number(value, "m_type") else ""


def path(value):
    return braced([
        "type " + enumerator(value, "m_type"),
        category(value),
        "work " + pointed_text(value, "m_pWork"),
        "prefix " + pointed_text(value, "m_pRelPath"),
        "volume " + volume_name(value),
        "qualified" if number(value, "m_bQualified") else ""])


VOLUME_FLAGS = {0x01: "valid", 0x10: "trusted", 0x20: "read-only", 0x40: "case-sensitive"}
UNSET_FLAG = 0x80  # what the memory held


def set_text(label, value, name):
    return "" if is_null(value, name) else f"{label} {pointed_text(value, name)}"


def volume(value):
    return braced([
        "name " + pointed_text(value, "m_pLocalName"),
        enumerator(value, "m_fsType"),
        "flags " + bits(number(value, "m_flags") & ~UNSET_FLAG, VOLUME_FLAGS),
        f"longest component {number(value, 'm_maxComponentLen')}",
        f"longest name {number(value, 'm_maxPathLen')}",
        set_text("aux", value, "m_pAuxName"),
        set_text("connection", value, "m_pConnectionName")])


# ---- Records -------------------------------------------------------------------------------------

def rectangle(value):
    left, top, right, bottom = (number(value, name) for name in ("left", "top", "right", "bottom"))
    return f"{{({left}, {top}) to ({right}, {bottom}), {right - left} x {bottom - top}}}"


def point(value):
    return f"{{{number(value, 'x')}, {number(value, 'y')}}}"


def extent(value):
    return f"{{{number(value, 'cx')} x {number(value, 'cy')}}}"


def font(value):
    face = value.field("lfFaceName")
    styles = [word for word in ("Italic", "Underline", "StrikeOut") if number(value, "lf" + word)]
    return braced([
        safely(terminated_text, value, face.address(), (0,), face.size() // CHARACTER_SIZE),
        f"height {number(value, 'lfHeight')}",
        f"weight {number(value, 'lfWeight')}",
        *map(str.lower, styles),
        f"charset {number(value, 'lfCharSet')}"])


def member_text(label, value, name, terminator=(0,)):
    if is_null(value, name):
        return ""
    return f"{label} " + safely(terminated_text, value, number(value, name), terminator)


def wrong_size(value):
    told = number(value, "lStructSize")
    return "" if told == value.size() else f"lStructSize {told} in place of {value.size()}"


def file_question(value):
    return braced([
        wrong_size(value),
        member_text("file", value, "lpstrFile"),
        f"room for {number(value, 'nMaxFile')}",
        member_text("title", value, "lpstrTitle"),
        member_text("folder", value, "lpstrInitialDir"),
        member_text("extension", value, "lpstrDefExt"),
        member_text("filter", value, "lpstrFilter", (0, 0)),
        f"filter number {number(value, 'nFilterIndex')}",
        "flags " + bits(number(value, "Flags"), ktqtbase_names.OFN)])


# ---- Drawing and messages ------------------------------------------------------------------------

def device_class(value, address):
    """The name of the class that a device's table of virtual functions belongs to."""
    table = words(value, address, 1)[0]
    return value.symbol(table).partition("vtable for ")[2].split(" ")[0] or "of an unknown class"


def painters(value):
    active = number(value.field("m_pWrappedDevice").target(), "painters")
    return "painted on" if active else "not painted on"


def device(value):
    address = number(value, "m_pWrappedDevice")
    if not address:
        return "no device"
    return f"device {safely(device_class, value, address)}, {safely(painters, value)}"


def clip(value):
    region = number(value.field("m_rClipRegion").field("d"), "qt_rgn")
    rectangles = int.from_bytes(value.read(region, 4), "little") if region else 0
    return f"clip of {rectangles} rectangles" if rectangles else "no clip"


def painter(value):
    return braced([
        device(value),
        "no open path" if is_null(value, "m_pPath") else "an open path",
        safely(clip, value)])


# The numbers from one of these names to its limit belong to window classes and to applications.
FREE_NUMBERS = {"WM_USER": 0x8000, "WM_APP": 0xC000}


def message_name(given):
    for name, limit in FREE_NUMBERS.items():
        first = ktqtbase_names.NUMBERS[name]
        if first <= given < limit:
            return f"{name} + {given - first}"
    return ktqtbase_names.WM.get(given, hex(given))


def message(value):
    return braced([
        message_name(number(value, "m_nMessage")),
        "wParam " + small_or_hex(number(value, "m_wParam")),
        "lParam " + small_or_hex(number(value, "m_lParam"))])


# ---- The types -----------------------------------------------------------------------------------

PATH_FIELDS = ("m_type", "m_category", "m_pWork", "m_pRelPath", "m_pVolume", "m_bQualified")
VOLUME_FIELDS = ("m_pLocalName", "m_fsType", "m_flags", "m_maxComponentLen", "m_pConnectionName")
PATH = View(PATH_FIELDS, path)
VOLUME = View(VOLUME_FIELDS, volume)
RECTANGLE = View(("left", "top", "right", "bottom"), rectangle)
POINT = View(("x", "y"), point)
SIZE = View(("cx", "cy"), extent)
PAINTER = View(("m_pWrappedDevice", "m_pPath", "m_rClipRegion"), painter)

VIEWS = {
    "CStdStr<wchar_t>": View((), text),
    "CRbUiPathname": PATH,
    "CRnUiPathname": PATH,
    "CRbUiVolumeDescriptor": VOLUME,
    "CRbUiNTFSVolumeDescriptor": VOLUME,
    "RECT": RECTANGLE,
    "CRect": RECTANGLE,
    "POINT": POINT,
    "CPoint": POINT,
    "SIZE": SIZE,
    "CSize": SIZE,
    "LOGFONTW": View(("lfHeight", "lfWeight", "lfCharSet", "lfFaceName"), font),
    "OPENFILENAMEW": View(("lStructSize", "lpstrFile", "lpstrFilter", "Flags"), file_question),
    "KtQtPainterWrapper": PAINTER,
    "KtQtPrinterPainter": PAINTER,
    "QKtMsgEvent": View(("m_nMessage", "m_wParam", "m_lParam"), message),
}


def is_ours(value, view):
    """Whether a value has the fields that its view needs."""
    try:
        return all(value.field(name) is not None for name in view.fields)
    except Exception:
        return False


def describe(name, value):
    """The text for a value of a type in VIEWS; None for a host's own type of that name."""
    view = VIEWS[name]
    return safely(view.show, value) if is_ours(value, view) else None
