#!/usr/bin/env python3
"""Compiles a resource script with both resource compilers and compares what they made.

Resources must be equal to the byte; dialog templates item by item, with class names compared without
case, because one compiler writes them in capitals.  Exit code 1 names the first difference of each.
"""
import os
import struct
import subprocess
import sys
import tempfile


def name_or_id(data, at):
    first = struct.unpack_from("<H", data, at)[0]
    if first == 0xFFFF:
        return struct.unpack_from("<H", data, at + 2)[0], at + 4
    end = at
    while struct.unpack_from("<H", data, end)[0]:
        end += 2
    return data[at:end].decode("utf-16-le"), end + 2


def resources(path):
    data = open(path, "rb").read()
    found, at = {}, 0
    while at + 8 <= len(data):
        size, header = struct.unpack_from("<II", data, at)
        kind, next_at = name_or_id(data, at + 8)
        name, _ = name_or_id(data, next_at)
        body = data[at + header:at + header + size]
        if size:
            found[(str(kind).upper(), str(name).upper())] = body
        at += (header + size + 3) & ~3
    return found


def dialog_items(data):
    """The template's header and items as comparable tuples."""
    if struct.unpack_from("<HH", data, 0) != (1, 0xFFFF):
        return [("plain template", data)]
    help_id, ex_style, style, count = struct.unpack_from("<IIIH", data, 4)
    rect = struct.unpack_from("<4h", data, 18)
    at = 26
    parts = []
    for _ in range(3):
        if struct.unpack_from("<H", data, at)[0] == 0:
            value, at = "", at + 2
        else:
            value, at = name_or_id(data, at)
        parts.append(str(value))
    items = [("dialog", help_id, ex_style, style, count, rect, parts[0], parts[1].upper(), parts[2])]
    if style & 0x40:
        font = struct.unpack_from("<HHBB", data, at)
        face, at = name_or_id(data, at + 6)
        # One compiler writes weight and character set of a plain FONT row as 0, the other as defaults.
        items.append(("font", font[0], face))
    for _ in range(count):
        at = (at + 3) & ~3
        head = struct.unpack_from("<III4hi", data, at)
        kind, at = name_or_id(data, at + 24)
        if struct.unpack_from("<H", data, at)[0] == 0:
            text, at = "", at + 2
        else:
            text, at = name_or_id(data, at)
        extra = struct.unpack_from("<H", data, at)[0]
        at += 2
        names = {"BUTTON": 0x80, "EDIT": 0x81, "STATIC": 0x82, "LISTBOX": 0x83, "SCROLLBAR": 0x84, "COMBOBOX": 0x85}
        kind = names.get(str(kind).upper(), kind)
        items.append(("item", head, str(kind).upper(), text, data[at:at + extra]))
        at += extra
    return items


def main():
    script = os.path.abspath(sys.argv[1])
    folder = os.path.dirname(script)
    root = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources")
    with tempfile.TemporaryDirectory() as scratch:
        gnu, llvm = os.path.join(scratch, "gnu.res"), os.path.join(scratch, "llvm.res")
        subprocess.run(["i686-w64-mingw32-windres", "-c", "65001", "-I", root, "-I", folder, "-i", script, "-O", "res",
                        "-o", gnu], check=True, cwd=folder)
        flat = os.path.join(scratch, "flat.rc")
        subprocess.run(["i686-w64-mingw32-cpp", "-P", "-DRC_INVOKED", "-I", root, "-I", folder, script, "-o", flat],
                       check=True, cwd=folder)
        # One compiler ignores the code page pragma, and stops at it where nothing preprocesses.
        with open(flat, encoding="utf-8") as source:
            lines = [line for line in source if not line.startswith("#")]
        with open(flat, "w", encoding="utf-8") as target:
            target.writelines(lines)
        subprocess.run(["llvm-rc", "/no-preprocess", "/C", "65001", "/I", root, "/I", folder, "/FO", llvm, flat],
                       check=True, cwd=folder)
        first, second = resources(gnu), resources(llvm)
    bad = 0
    for key in sorted(set(first) | set(second)):
        if key not in first or key not in second:
            print(f"{sys.argv[1]}: {key} is made by one compiler only")
            bad = 1
            continue
        left, right = first[key], second[key]
        if key[0] == "5":
            left, right = dialog_items(left), dialog_items(right)
            for a, b in zip(left, right):
                if a != b:
                    print(f"{sys.argv[1]}: dialog {key[1]}: {a} differs from {b}")
                    bad = 1
                    break
        elif left.rstrip(b"\0") != right.rstrip(b"\0"):
            print(f"{sys.argv[1]}: resource {key} differs")
            bad = 1
    sys.exit(bad)


main()
