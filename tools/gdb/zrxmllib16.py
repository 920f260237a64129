# SPDX-License-Identifier: MIT
"""gdb pretty-printers for the values, collections and nodes of ZrXmlLib16:

    (gdb) source /usr/local/share/ZrXmlLib16/gdb/zrxmllib16.py

They only read memory and call nothing in the program, so they work on core files too. They need the debug information
of the library (build types Debug and RelWithDebInfo).
"""
import gdb
import gdb.printing

NAMESPACE = "ZrXmlLib16::"
MAX_OCTETS = 32
MAX_TEXT = 60
MAX_ATTRIBUTES = 8
SHORTAGE = "<no debug information of libZrXmlLib16>"


def memory(address, size):
    return bytes(gdb.selected_inferior().read_memory(int(address), size)) if size else b""


def narrow(string):
    """Text of a std::string."""
    return memory(string["_M_dataplus"]["_M_p"], int(string["_M_string_length"])).decode("utf-8", "replace")


def wide(string):
    """Text of a std::wstring, which holds UTF-16 units, one per character."""
    units = memory(string["_M_dataplus"]["_M_p"], 4 * int(string["_M_string_length"]))
    text = units.decode("utf-32-le", "surrogatepass")
    return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def quoted(text):
    text = text if len(text) <= MAX_TEXT else text[:MAX_TEXT] + "..."
    return '"%s"' % text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n")


def qualified(namespace, name):
    return "{%s}%s" % (namespace, name) if namespace else name


def owned(unique_ptr):
    """The pointer in a std::unique_ptr whose deleter has no state."""
    target = unique_ptr.type.strip_typedefs().template_argument(0)
    if target.strip_typedefs().code == gdb.TYPE_CODE_ARRAY:
        target = target.strip_typedefs().target()
    return unique_ptr.address.cast(target.pointer().pointer()).dereference()


def items_of(vector, kind=None):
    """The items of a std::vector, taken for values of another type where one is given."""
    item, end = vector["_M_impl"]["_M_start"], vector["_M_impl"]["_M_finish"]
    if kind:
        item, end = item.cast(kind.pointer()), end.cast(kind.pointer())
    while item != end:
        yield item.dereference()
        item += 1


def dynamic(pointer):
    """The pointer with the class that the object really has."""
    return pointer.cast(pointer.dynamic_type) if pointer else pointer


class Text:
    """Prints what a function makes of the value."""

    def __init__(self, value, describe):
        self.value = value
        self.describe = describe

    def to_string(self):
        try:
            return self.describe(self.value)
        except gdb.error:
            return SHORTAGE


def decimal(value):
    digits, fraction = narrow(value["m_digits"]), int(value["m_fractionDigits"])
    text = digits.rjust(fraction + 1, "0")
    if fraction:
        text = text[:-fraction] + "." + text[-fraction:]
    return ("-" if value["m_negative"] else "") + (text or "0")


def integer(value):
    return ("-" if value["m_negative"] else "") + (narrow(value["m_digits"]) or "0")


def fraction(nanos):
    return (".%09d" % nanos).rstrip("0") if nanos else ""


def date_time(value):
    kind = int(value["m_kind"])
    fields = {name: int(value["m_" + name]) for name in ("year", "month", "day", "hour", "minute", "second", "nanos")}
    fields["sign"] = "-" if fields["year"] < 0 else ""
    fields["year"] = abs(fields["year"])
    fields["fraction"] = fraction(fields["nanos"])
    date, time = "{sign}{year:04d}-{month:02d}-{day:02d}", "{hour:02d}:{minute:02d}:{second:02d}{fraction}"
    forms = (date + "T" + time, date, time, "{sign}{year:04d}-{month:02d}", "{sign}{year:04d}",
             "--{month:02d}-{day:02d}", "--{month:02d}", "---{day:02d}")
    text = forms[kind].format(**fields) if 0 <= kind < len(forms) else "<kind %d>" % kind
    if value["m_hasZone"]:
        zone = int(value["m_zone"])
        text += "%s%02d:%02d" % ("-" if zone < 0 else "+", abs(zone) // 60, abs(zone) % 60) if zone else "Z"
    return text


def duration(value):
    def part(field, unit):
        return "%d%s" % (int(value[field]), unit) if value[field] else ""

    nanos = sum(int(value[f]) * s for f, s in (("m_milliSeconds", 10**6), ("m_microSeconds", 10**3), ("m_nanoSeconds", 1)))
    seconds = int(value["m_seconds"]) + nanos // 10**9
    time = part("m_hours", "H") + part("m_minutes", "M")
    if seconds or nanos:
        time += "%d%sS" % (seconds, fraction(nanos % 10**9))
    date = part("m_years", "Y") + part("m_months", "M") + part("m_days", "D")
    return ("-" if value["m_negative"] else "") + "P" + date + ("T" + time if time else "")


def binary(value):
    if not value["m_holder"]:
        return "0 octets"
    holder = value["m_holder"].dereference()
    length, data = int(holder["m_length"]), owned(holder["m_data"])
    octets = memory(data, min(length, MAX_OCTETS)).hex(" ").upper()
    return "%d octets: %s%s" % (length, octets, " ..." if length > MAX_OCTETS else "")


def reference(pointer):
    pointer = dynamic(pointer)
    if not pointer:
        return "null"
    return "(%s) 0x%x, %d references" % (pointer.type, int(pointer), int(pointer["m_referenceCount"]))


def variant(value):
    stored = value["m_value"]
    # member of the union by item type, and how it is printed
    forms = {
        "hexBinary": ("binary", binary), "base64Binary": ("binary", binary),
        "i1": ("i1", int), "i2": ("i2", int), "i4": ("i4", int), "i8": ("i8", int),
        "ui1": ("ui1", int), "ui2": ("ui2", int), "ui4": ("ui4", int), "ui8": ("ui8", int),
        "r4": ("r4", str), "r8": ("r8", str), "duration": ("duration", duration),
        "yearMonth": ("dateTime", date_time), "monthDay": ("dateTime", date_time),
        "year": ("ui2", int), "month": ("ui1", int), "day": ("ui1", int),
        "date": ("dateTime", date_time), "datetime": ("dateTime", date_time), "time": ("dateTime", date_time),
        "char": ("character", str), "string": ("string", lambda text: quoted(wide(text))), "boolean": ("boolean", str),
        "decimal": ("decimal", decimal), "integer": ("integer", integer),
        "object": ("object", lambda pointer: reference(pointer["m_object"])),
        "collection": ("collection", lambda pointer: reference(pointer["m_object"])),
    }
    name = str(value["m_type"]).rpartition("ItemType_")[2]
    if value["m_nil"]:
        return "nil" if name == "none" else "nil " + name
    if name not in forms:
        return "invalid" if name == "none" else "<type %s>" % name
    member, describe = forms[name]
    return "%s %s" % (name, describe(stored[member]))


def xml_name(node):
    name = owned(node["m_name"])
    return "" if not name else qualified(wide(name["namespaceUri"]), name_text(name["objectName"]))


def node_text(text):
    """Text of a NodeText: 16-bit units, or the wide form that a caller asked for."""
    if int(text["m_capacity"]) == 0xFFFFFFFF:
        return wide(text["m_forms"].dereference()["text"])
    return memory(text["m_units"], 2 * int(text["m_length"])).decode("utf-16-le", "replace")


def name_text(name):
    """Text of a NameText: 16-bit units inside it, or the wide form."""
    length = int(name["m_length"])
    if length == 0xFF:
        return wide(name["m_wide"])
    return memory(name["m_units"].address, 2 * length).decode("utf-16-le", "replace")


def attributes_of(element):
    """The attributes stand in a ring; the element knows the last one."""
    last = element["m_lastAttribute"]
    attribute = last["m_next"] if last else last
    while attribute:
        yield attribute.dereference()
        attribute = attribute["m_next"] if attribute != last else None


def xml_attribute(value):
    return "%s=%s" % (xml_name(value), quoted(node_text(value["m_value"])))


def xml_element(value):
    text = "<" + xml_name(value)
    attributes = list(attributes_of(value))
    for attribute in attributes[:MAX_ATTRIBUTES]:
        text += " " + xml_attribute(attribute)
    text += " ...>" if len(attributes) > MAX_ATTRIBUTES else ">"
    children, child = 0, value["m_firstChild"]
    while child:
        children, child = children + 1, child["m_nextSibling"]
    content = node_text(value["m_text"])
    return text + " %d children" % children + (", text " + quoted(content) if content else "")


def attribute(value):
    return "%s=%s" % (qualified(wide(value["m_namespace"]), wide(value["m_name"])), quoted(wide(value["m_value"])))


def element(value):
    text = "<%s>" % qualified(wide(value["m_namespace"]), name_text(value["m_elementName"]))
    content = wide(value["m_text"])
    return text + (" text " + quoted(content) if content else "")


class Collection:
    """The class, the number of items and the items: values, or pointers to objects."""

    def __init__(self, value, items):
        self.value = value
        self.items = items

    def to_string(self):
        return "%s of %d" % (self.value.type.unqualified(), sum(1 for _ in self.items(self.value)))

    def children(self):
        for index, item in enumerate(self.items(self.value)):
            yield "[%d]" % index, item

    def display_hint(self):
        return "array"


def objects(value):
    node = value["m_first"]
    while node:
        yield dynamic(node["m_item"]["m_object"])
        node = node["m_next"]


def attributes(value):
    pointer = gdb.lookup_type(NAMESPACE + "CAttribute").pointer()  # each in a std::unique_ptr
    return (item.dereference() for item in items_of(value["m_items"], pointer))


def values(value):
    return items_of(value["m_items"])


TEXTS = {"CDecimal": decimal, "CBigInteger": integer, "CDateTime": date_time, "CDateTimeSpan": duration,
         "CBinaryData": binary, "ZrVariant": variant, "CXmlElement": xml_element, "CXmlAttribute": xml_attribute,
         "CAttribute": attribute, "CElement": element}
COLLECTIONS = {"CXmlCollection": objects, "CAttributeCol": attributes}


def bases(kind):
    """A class and those that it derives from, nearest first."""
    yield kind
    for field in kind.fields():
        if field.is_base_class:
            yield from bases(field.type.strip_typedefs())


def has_items(kind):
    return any(field.name == "m_items" for field in kind.fields())


class Printers(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("ZrXmlLib16")

    def __call__(self, value):
        kind = value.type.strip_typedefs().unqualified()
        if kind.code != gdb.TYPE_CODE_STRUCT or not kind.name:
            return None
        name = kind.name[len(NAMESPACE):] if kind.name.startswith(NAMESPACE) else ""
        if name in TEXTS:
            return Text(value, TEXTS[name])
        if name.startswith("CSmartPtr<"):
            return Text(value, lambda pointer: reference(pointer["m_object"]))
        # Generated collections derive from the library's; everything else of theirs is printed as usual.
        for base in bases(kind):
            items = COLLECTIONS.get((base.name or "")[len(NAMESPACE):])
            if items and base.name.startswith(NAMESPACE):
                return Collection(value, items)
            if base.name == NAMESPACE + "CXmlTypeCollection" and any(has_items(known) for known in bases(kind)):
                return Collection(value, values)
        return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), Printers(), replace=True)
