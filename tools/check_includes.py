#!/usr/bin/env python3
"""Compares every #include of the tree with the arrows of src/rooms.txt.

    check_includes.py [ROOT]

Says each include that goes where its room has no arrow to, each that names no file of the tree, and each
by which one dialog includes another's header. Ends with 1 when there is any.
"""
import os
import re
import sys

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+"([^"]+)"', re.M)
FOLDERS = ("src", "include", "host", "companions", "tests", "fuzz")
# The doors of the platform: its insides are for itself and for the tests that know them.
DOORS = {"platform": ("src/platform/platform.h",)}
KEYHOLDERS = {"platform": ("platform", "tests/platform_native", "tests/store_native", "fuzz/platform", "fuzz/store")}
# Rooms whose names of the window system go through the platform's header.
SAME_NAMES = ("headless",)
# ... but for tests that exist on the headless system alone.
NAMED_BY = ("public", "headless", "tests/fixtures", "tests/dialogs_native") + KEYHOLDERS["platform"]


def read_rooms(root):
    """The rooms of the table, each with all that it reaches."""
    direct = {}
    with open(os.path.join(root, "src/rooms.txt"), encoding="utf-8") as table:
        for line in table:
            line = line.split("#")[0].strip()
            if line:
                room, _, below = line.partition(":")
                direct[room] = below.split()
    reach = {}
    for room in direct:
        reach[room], open_ends = {room}, [room]
        while open_ends:
            for below in direct.get(open_ends.pop(), ()):
                # Tests and fuzz targets may share among each other; the rooms themselves may not.
                if below == room and "/" not in room:
                    sys.exit("src/rooms.txt: a circle through " + room)
                if below not in reach[room]:
                    reach[room].add(below)
                    open_ends.append(below)
    return reach


def room_of(path):
    parts = path.split("/")
    if path.startswith("include/zxadlg/headless/"):
        return "headless"
    if parts[0] in ("companions", "tests", "fuzz"):
        return "/".join(parts[:2])
    if parts[0] == "src":
        return parts[1]
    return {"include": "public"}.get(parts[0], parts[0])


def dialog_of(path, dialogs):
    """The dialog of a dialogs' room that a file belongs to, by its name; None for shared files."""
    folder, name = os.path.split(path)
    owners = [d for f, d in dialogs if (folder + "/").startswith(f + "/") and name.startswith(d)]
    return max(owners, key=len, default=None)


def sources(root):
    for folder in FOLDERS:
        for where, _, names in os.walk(os.path.join(root, folder)):
            for name in names:
                if name.endswith((".h", ".cpp")):
                    yield os.path.relpath(os.path.join(where, name), root).replace(os.sep, "/")


def folder_of(room):
    if room in ("public", "headless"):
        return "include"
    return room if "/" in room or room in ("host", "resources") else "src/" + room


def target_of(name, path, room, reach, files):
    """The file of the tree that an include names, as the compiler's folders find it."""
    tops = ["src", "include", "resources", "tests"] + [folder_of(r) for r in sorted(reach.get(room, {room}))]
    for top in [os.path.dirname(path)] + tops:
        candidate = os.path.normpath(os.path.join(top, name)).replace(os.sep, "/")
        if candidate in files:
            return candidate
    # A header that one of several folders of a room provides, by system.
    inner = [re.compile(re.escape(top) + "/[^/]+/" + re.escape(name)) for top in tops]
    return next((f for f in sorted(files) if any(i.fullmatch(f) for i in inner)), None)


def check(root):
    reach = read_rooms(root)
    paths = sorted(sources(root))
    files = set(paths)
    folder = os.path.join(root, "resources")
    files.update("resources/" + name for name in (os.listdir(folder) if os.path.isdir(folder) else ()))
    dialogs = [(os.path.dirname(p), os.path.basename(p)[: -len("Dialog.h")]) for p in paths
               if re.fullmatch(r"src/(fit|arithmetic|sigproc|measure|traceops)/(.*/)?\w+Dialog\.h", p)]
    findings = []
    for path in paths:
        room = room_of(path)
        with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
            text = file.read()
        for found in INCLUDE.finditer(text):
            name = found.group(1)
            where = "%s:%d: " % (path, text.count("\n", 0, found.start()) + 1)
            target = target_of(name, path, room, reach, files)
            if target is None:
                findings.append(where + '"%s" is no file of the tree' % name)
                continue
            below = room_of(target)
            if room not in reach:
                findings.append(where + "the room %s is not in src/rooms.txt" % room)
            elif below not in reach[room]:
                findings.append(where + "%s may not include %s" % (room, below))
            elif below in SAME_NAMES and room not in NAMED_BY:
                findings.append(where + "the window system's names come through platform/platform.h or zxadlg/headless.h")
            elif below in DOORS and target not in DOORS[below] and room not in KEYHOLDERS[below]:
                findings.append(where + "%s is private to %s" % (target, below))
            if path.startswith("src/") and room_of(path) == below:
                theirs = dialog_of(target, dialogs)
                if theirs is not None and theirs != dialog_of(path, dialogs):
                    findings.append(where + "a header of the dialog %s, which this file is no part of" % theirs)
    return findings


if __name__ == "__main__":
    found = check(sys.argv[1] if len(sys.argv) > 1 else ".")
    print("\n".join(found), end="\n" if found else "")
    sys.exit(1 if found else 0)
