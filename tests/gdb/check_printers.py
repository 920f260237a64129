# SPDX-License-Identifier: MIT
# Run inside gdb on the program of values.cpp: prints each variable and compares.
import os
import re
import gdb

# variable, what gdb prints, with # in place of an address
CASES = [
    ("zeroDecimal", "0"), ("decimal", "-12.5"), ("smallDecimal", "0.05"), ("wholeDecimal", "700"),
    ("zeroInteger", "0"), ("integer", "-123456789012345678901234567890"),
    ("dateTime", "-0044-03-15T12:30:05.25-05:30"), ("date", "2024-02-29Z"), ("time", "23:59:59.000000001+14:00"),
    ("gYear", "12024"), ("gMonthDay", "--12-31"), ("gMonth", "--12"), ("gDay", "---31"), ("gYearMonth", "2024-02"),
    ("span", "-P1Y2M3DT4H5M6.7S"), ("noSpan", "P"),
    ("noBinary", "0 octets"), ("binary", "3 octets: 01 AB FF"),
    ("longBinary", "40 octets: 01 AB FF" + " 00" * 29 + " ..."),
    ("invalid", "invalid"), ("nil", "nil i4"), ("i4", "i4 -5000000000"), ("r8", "r8 1.5"),
    ("string", 'string "caf\u00e9 \\"\U0001F600\\"\\n"'), ("boolean", "boolean true"),
    ("decimalVariant", "decimal -12.5"), ("dateVariant", "date 2024-02-29Z"),
    ("binaryVariant", "hexBinary 3 octets: 01 AB FF"),
    ("object", "object (ZrXmlLib16::CElement *) #, 3 references"), ("noObject", "object null"),
    ("nobody", "null"), ("element", "(ZrXmlLib16::CElement *) #, 3 references"),
    ("base", "(ZrXmlLib16::CElement *) #, 3 references"),
    ("elementValue", '<{urn:u}item> text "text"'),
    ("attributes", 'ZrXmlLib16::CAttributeCol of 1 = {{urn:a}id="1"}'),
    ("elements", "ZrXmlLib16::CElementCol of 2 = {#, #}"),
    ("*('ZrXmlLib16::CElement'*)elements.m_first.m_item.m_object", "<child>"),
    ("numbers", "ZrXmlLib16::Ci4Col of 2 = {3, -1}"), ("dates", "ZrXmlLib16::CdateCol of 1 = {2024-02-29Z}"),
    ("root", '<{urn:p}order id="7" {urn:p}x="<"> 2 children, text "a\\nc"'),
    ("firstAttribute", 'id="7"'), ("secondAttribute", '{urn:p}x="<"'),
]


def printed(expression):
    text = gdb.execute("print " + expression, to_string=True).partition(" = ")[2].strip()
    text = re.sub(r"^\([^()]*&\) @0x[0-9a-f]+: ", "", text)  # references
    return re.sub(r"0x[0-9a-f]+( <[^>]*>)?", "#", text)


def check():
    gdb.execute("break Stop")
    try:
        gdb.execute("run", to_string=True)
    except gdb.error as error:
        print("gdb cannot run programs here: %s" % error)
        return 77
    gdb.execute("up", to_string=True)
    if gdb.selected_frame().name() != "main":
        print("The program ends before it stops.")
        return 1
    failures = 0
    for expression, expected in CASES:
        try:
            actual = printed(expression)
        except gdb.error as error:
            actual = str(error)
        if actual != expected:
            failures += 1
            print("%s\n  expected: %r\n  printed:  %r" % (expression, expected, actual))
    print("%d of %d printed wrongly" % (failures, len(CASES)))
    return 1 if failures else 0


status = 2
try:
    status = check()
finally:
    gdb.execute("kill")
    os._exit(status)
