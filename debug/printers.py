# Shows the objects of VEKPrt2DModel in gdb; docs/debugging.md says how it is loaded.
#
# Everything is read from memory, by the fields that the debug information describes.  Nothing in the program is
# called, so that core dumps work, and what a framework lays out otherwise is left to gdb.  Where there is garbage
# a line says so: each printer hands errors of reading on as text.
import re
import sys
from itertools import islice

import gdb
import gdb.printing

# What is shown with its class and count of references, and what is derived from it.
COUNTED = {"VEKPrtGraphicPrimitiveElt", "VEKPrtModel", "VEKPixelImage"}

# What an element is called by.
NAMES = [("", "_id"), (", title", "_title"), (", description", "_description")]

# The arrays that objects own: columns, and the fields (an array by its entries) that add up to the number of rows.
ARRAYS = {
    "_points": (2, ["_count"]),
    "VEKPrtPolyPolygonElt._points": (2, ["_counts"]),
    "_counts": (1, ["_polygonCount"]),
    "_controlPoints": (2, ["_count"]),
    "_knots": (1, ["_order", "_count"]),
    "_weights": (1, ["_count"]),
    "_pattern": (1, ["_patternLength"]),
}

# What is shown as one line: fields, with a word before those that do not speak for themselves.
LINES = {
    "VEKPrtStrokeAttributes": [("colour", "_colourIndex"), ("width", "_width"), ("", "_type"), ("dashes", "_pattern")],
    "VEKPrtFillAttributes": [("colour", "_colourIndex"), ("", "_style"), ("", "_rule"), ("pattern", "_image")],
    "VEKPrtTextAttributes": [("", "_font"), ("height", "_height"), ("", "_weight"), ("", "_anchor")],
    "VEKPrtMarkerAttributes": [("", "_style")],
    "VEKPrtGroupAttributes": [("link", "_linkURI")],
    "VEKPrintLinkURI": [("", "_uri")],
    "VEKFont": [("", "_family")],
}

# Where the values of transforms are, in the order of the kinds; the names of these are the framework's.
TRANSFORMS = ["_matrices", "_translations", "_rotations", "_scalesX", "_scalesY", "_skewsX", "_skewsY"]


def plain(type_):
    return type_.unqualified().strip_typedefs()


def lineage(type_):
    """The names of a class and of its bases."""
    names = [plain(type_).name]
    for field in plain(type_).fields():
        if field.is_base_class:
            names += lineage(field.type)
    return names


def fields(value):
    """Class, name and value of what an object has besides the base of its family."""
    class_ = plain(value.type)
    for field in class_.fields():
        if field.is_base_class:
            if field.name not in COUNTED and field.name != "VEKBaseUnknown":
                yield from fields(value.cast(field.type))
        elif hasattr(field, "bitpos") and not field.artificial and not field.name.startswith("_vptr"):
            yield class_.name, field.name, value[field]


def limit(setting):
    """A limit that is set in gdb, where none is None, 0 or -1."""
    number = gdb.parameter(setting)
    return number if number and number > 0 else sys.maxsize


def counted(number, noun):
    return "%d %s%s" % (number, noun, "" if number == 1 else "s")


def named(value):
    """The name of an enumerator, if the framework has one for it."""
    return next((field.name for field in plain(value.type).fields() if field.enumval == int(value)), None)


def show(value):
    """A value as one line of text, empty for a null pointer."""
    value = pointee(value)
    type_ = plain(value.type)
    if type_.code == gdb.TYPE_CODE_FLT:
        text = repr(float(value)) if type_.sizeof == 8 else "%.9g" % float(value)
        return text[:-2] if text.endswith(".0") else text
    if type_.code == gdb.TYPE_CODE_PTR and not int(value):
        return ""
    if type_.code == gdb.TYPE_CODE_ENUM:
        return named(value) or "value %d" % int(value)
    printer = find_printer(type_)
    return printer(value).to_string() if printer else value.format_string(pretty_structs=False)


def pointee(value):
    """What a pointer leads to, if that has a printer here; else the value itself."""
    if value.type.code != gdb.TYPE_CODE_PTR or not int(value):
        return value
    if find_printer(value.type.target()):
        return value.dereference()
    # gdb would take bytes for a string.
    return value.cast(gdb.lookup_type("void").pointer()) if value.type.target().sizeof == 1 else value


def total(owner, class_, name):
    """A count, or the sum of an array of counts."""
    if owner[name].type.code != gdb.TYPE_CODE_PTR:
        return int(owner[name])
    counts = array(owner, class_, name, owner[name])
    return 0 if isinstance(counts, str) else sum(int(counts[i]) for i in range(counts.type.range()[1] + 1))


def array(owner, class_, name, value):
    """A field, as an array where it is one that the object owns."""
    columns, rows = ARRAYS.get(class_ + "." + name) or ARRAYS.get(name) or (0, [])
    if not columns or value.type.code != gdb.TYPE_CODE_PTR or not int(value):
        return pointee(value)
    type_ = value.type.target()
    most = limit("max-value-size") // (columns * type_.sizeof)
    count = min(sum(total(owner, class_, field) for field in rows), most)
    if count <= 0:
        return "{}"
    for length in (columns, count) if columns > 1 else (count,):
        type_ = type_.array(length - 1)
    return value.cast(type_.pointer()).dereference()


def object_at(address):
    """Class and object that an address lies in, by the virtual table; no object where the debug information does
    not have the class, and no class where there is no such table."""
    void = gdb.lookup_type("void").pointer()
    try:
        table = address.cast(void.pointer().pointer()).dereference()
        symbol = gdb.execute("info symbol %d" % int(table), to_string=True)
        class_ = re.match(r"vtable for (.+?)( \+ \d+)? in ", symbol)[1]
        to_top = int((table - 2).dereference().cast(gdb.lookup_type("long")))
    except (gdb.error, TypeError):  # unreadable, or another symbol
        return None, None
    try:
        type_ = gdb.lookup_type(class_)
    except gdb.error:
        return class_, None
    place = address.cast(gdb.lookup_type("char").pointer()) + to_top
    return class_, place.cast(type_.pointer()).dereference() if type_.fields() else None


def resolve(value):
    """Class and object, as the class that it really has; no class where no such object is."""
    declared = plain(value.type).name
    if value.address is None:
        return declared, value
    class_, own = object_at(value.address)
    if own is None:
        return class_, value
    return (class_, own) if declared in lineage(own.type) else (None, value)


def readable(part):
    """The value, or why it cannot be read: gdb would print nothing at all of the object that it is part of."""
    try:
        if isinstance(part, gdb.Value):
            part.fetch_lazy()
        return part
    except gdb.error as error:
        return "<%s>" % error


class Line:
    """A value shown as one line of text."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        try:
            return self.line()
        except gdb.error as error:
            return "<%s>" % error


class Missing(Line):
    """A class that the debug information only names."""

    def line(self):
        return "<no debug information on %s: install libvekprt2dmodel1-dbgsym, or build the library with -g>" % (
            plain(self.value.type).name)


class Tree(Line):
    """A value that has parts, too."""

    def children(self):
        try:
            for name, part in self.parts():
                yield name, readable(part)
        except gdb.error as error:
            yield "...", "<%s>" % error


class String(Line):
    def line(self):
        if not int(self.value["_utf8"]):
            return '""'
        return re.sub(r"^0x[0-9a-f]+ (?=\")", "", self.value["_utf8"].format_string())


class Pair(Line):
    def line(self):
        return "(%s, %s)" % (show(self.value["_x"]), show(self.value["_y"]))


class Matrix(Line):
    def line(self):
        rows = [self.value["_coefficients"][row] for row in (0, 1)]
        return "[%s]" % "; ".join("%s, %s" % (show(row[0]), show(row[1])) for row in rows)


class Record(Line):
    def line(self):
        class_ = next(name for name in lineage(self.value.type) if name in LINES)
        words = []
        for word, name in LINES[class_]:
            text = show(array(self.value, class_, name, self.value[name]))
            if text:
                words.append((word + " " + text).strip())
        return ", ".join(words)


class Transform(Line):
    def line(self):
        kinds = self.value["_kinds"]
        count = int(kinds["count"])
        if not count:
            return "no transforms"
        if not int(kinds["array"]):
            return "%s, lost" % counted(count, "transform")
        words, seen = [], {}
        most = limit("print elements")
        for position in range(min(count, most)):
            kind = int(kinds["array"][position])
            nth = seen[kind] = seen.get(kind, 0) + 1
            if not 0 <= kind < len(TRANSFORMS):
                words.append("kind %d" % kind)
                continue
            values = self.value[TRANSFORMS[kind]]
            name = named(kinds["array"][position]) or TRANSFORMS[kind].strip("_")
            there = int(values["array"]) and nth <= int(values["count"])
            words.append("%s %s" % (name, show(values["array"][nth - 1]) if there else "without a value"))
        return ", ".join(words + ["..."] * (count > most))


class ColourTable(Tree):
    def line(self):
        return counted(int(self.value["_count"]), "colour")

    def parts(self):
        for index in range(int(self.value["_count"])):
            rgb = tuple(int(self.value[name][index]) for name in ("_red", "_green", "_blue"))
            yield "[%d]" % index, "(%d, %d, %d)" % rgb


class Collection(Tree):
    def line(self):
        size, capacity = int(self.value["_size"]), int(self.value["_capacity"])
        return counted(size, "member") if 0 <= size <= capacity else "<no collection>"

    def parts(self):
        if not 0 <= int(self.value["_size"]) <= int(self.value["_capacity"]):
            return
        # A typed list says what it holds; in others it is told by its virtual table.
        typed = [name[len("VEKListPtr"):] for name in lineage(self.value.type) if name.startswith("VEKListPtr")]
        for position in range(int(self.value["_size"])):
            pointer = self.value["_pointers"][position]
            if not int(pointer):
                part = "null"
            elif typed:
                part = pointer.cast(gdb.lookup_type(typed[0]).pointer()).dereference()
            else:
                part = object_at(pointer)[1]
            yield "[%d]" % (position + 1), pointer if part is None else part


class Counted(Tree):
    """An element, a model or a pixel image, as the class that it really has."""

    def line(self):
        class_, value = resolve(self.value)
        if not class_:
            return "<no %s: destroyed, or never made>" % plain(value.type).name
        text = class_
        for word, name in NAMES if "VEKPrtGraphicPrimitiveElt" in lineage(value.type) else []:
            if find_printer(value[name].type) and show(value[name]) != '""':
                text += word + " " + show(value[name])
        try:
            count = value["_references"]
            count = int(count["_M_i"] if count.type.code == gdb.TYPE_CODE_STRUCT else count)
            return text + ", " + counted(count, "reference")
        except gdb.error:  # a framework that counts otherwise
            return text

    def parts(self):
        class_, value = resolve(self.value)
        for owner, field, part in fields(value) if class_ else []:
            part = array(value, owner, field, part)
            if not is_list(part):
                yield field, part
        for position, part in members(self.value):
            yield position, Counted(part).line() + ", which holds itself" if holds_itself(part) else part


def is_list(part):
    return isinstance(part, gdb.Value) and find_printer(part.type) is Collection


def members(value):
    """Positions and members of the lists that an element or a model has."""
    class_, value = resolve(value)
    for _, _, part in fields(value) if class_ else []:
        if is_list(pointee(part)):
            yield from Collection(pointee(part)).children()


def holds_itself(part):
    """Whether an element is among what it holds, as far as gdb shows that: it would go on and on."""
    seen, left = set(), [part]
    while left:
        holder = left.pop()
        if not isinstance(holder, gdb.Value) or find_printer(holder.type) is not Counted:
            continue
        if seen and holder.address == part.address:
            return True
        if int(holder.address) not in seen:
            seen.add(int(holder.address))
            left += [held for _, held in islice(members(holder), limit("print elements"))]
    return False


class Reference(Tree):
    """VEKRef: what it holds."""

    def line(self):
        pointer = self.value["_object"]
        printer = find_printer(pointer.type.target())
        if not int(pointer):
            return "null"
        return printer(pointer.dereference()).line() if printer else "%#x" % int(pointer)

    def parts(self):
        pointer = self.value["_object"]
        if int(pointer) and find_printer(pointer.type.target()) is Counted:
            yield from Counted(pointer.dereference()).parts()


# Printers, and the fields (of any type, for None) without which a class is some framework's own.
PRINTERS = {
    "VEKUnicodeString": (String, {"_utf8": gdb.TYPE_CODE_PTR}),
    "VEKMathPoint2D": (Pair, {"_x": gdb.TYPE_CODE_FLT, "_y": gdb.TYPE_CODE_FLT}),
    "VEKMathVector2D": (Pair, {"_x": gdb.TYPE_CODE_FLT, "_y": gdb.TYPE_CODE_FLT}),
    "VEKMath2x2Matrix": (Matrix, {"_coefficients": gdb.TYPE_CODE_ARRAY}),
    "VEKPrtTransformAttributes": (Transform, {"_kinds": None}),
    "VEKPrtColourTable": (ColourTable, {"_count": None}),
    "VEKRawCollPV": (Collection, {"_pointers": gdb.TYPE_CODE_PTR, "_size": None, "_capacity": None}),
    **{name: (Record, {field: None for _, field in line}) for name, line in LINES.items()},
    **{name: (Counted, {}) for name in COUNTED},
}


def find_printer(type_):
    """The printer of a class: its own, or that of a base; or none."""
    type_ = plain(type_)
    if type_.code != gdb.TYPE_CODE_STRUCT or not type_.name:
        return None
    if type_.name.startswith("vekprt::VEKRef<"):
        return Reference
    if not type_.sizeof and (type_.name in PRINTERS or type_.name.startswith("VEKPrt")):
        return Missing
    if type_.name in PRINTERS:
        printer, needed = PRINTERS[type_.name]
        found = {field.name: field.type.code for field in type_.fields()}
        fits = all(name in found and code in (None, found[name]) for name, code in needed.items())
        return printer if fits else None
    for field in type_.fields():
        if field.is_base_class and find_printer(field.type):
            return find_printer(field.type)
    return None


class Printers(gdb.printing.PrettyPrinter):
    def __call__(self, value):
        if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            value = value.referenced_value()
        printer = find_printer(value.type)
        return printer(value) if printer else None


gdb.printing.register_pretty_printer(gdb.current_objfile(), Printers("VEKPrt2DModel"), replace=True)
