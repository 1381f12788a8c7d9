#!/usr/bin/env python3
"""What the headless window system shows to its callers, and whether anybody calls it.

Each function that its headers declare stands in src/platform/headless/exports.txt, and nothing else does. Each
function is called somewhere: in the library, its example host, a test that pins what it does, or by another part
of the system that those run; each constant is named somewhere. What is not has no reader and no proof, and
goes. --write-exports writes the list of exports.
"""
import collections
import os
import re
import subprocess
import sys

PUBLIC = "include/zxadlg/headless"
EXPORTS = "src/platform/headless/exports.txt"
OWN = "src/platform/headless/"
FUNCTION = re.compile(r"^(?!#)[A-Za-z_][\w:<>,\s*&]*?[\s*&]([A-Za-z_]\w*)\(", re.M)


def declared_functions():
    """Header → the functions that it declares, in their order; those of namespace headless with its name."""
    functions = {}
    for name in sorted(os.listdir(PUBLIC)):
        if not name.endswith(".h"):
            continue
        text = open(os.path.join(PUBLIC, name), encoding="utf-8").read()
        text = re.sub(r"//[^\n]*", "", text)
        # The lines of macros, and what stands inside of braces, declare no function of the surface.
        text = re.sub(r"^#(?:[^\n]*\\\n)*[^\n]*", "", text, flags=re.M)
        space = "headless::" if "namespace headless" in text else ""
        text = re.sub(r"^(?:struct|enum class|enum)[^;{]*\{.*?^\};", "", text, flags=re.M | re.S)
        text = re.sub(r"^(?:typedef|using)[^;]*;", "", text, flags=re.M)
        found = [space + f for f in FUNCTION.findall(text)]
        if found:
            functions[name] = list(dict.fromkeys(found))
    return functions


def exports_text(functions):
    out = ["# What the headless window system exports, all that its headers declare; tools/headless_surface.py compares",
           "# the two and writes this list with --write-exports."]
    for header, names in functions.items():
        out += ["", "# " + header] + sorted(names)
    return "\n".join(out) + "\n"


def constants():
    for where, _, names in os.walk(PUBLIC):
        for name in sorted(names):
            if "constants" in where:
                text = open(os.path.join(where, name), encoding="utf-8").read()
                for found in re.finditer(r"^(?:inline constexpr \w+|#define) (\w+)", text, re.M):
                    yield found.group(1)


def words_used():
    """How often each word stands in the tree's sources outside of the headers of the headless system."""
    files = subprocess.check_output(["git", "ls-files", "*.h", "*.cpp", "*.rc"], text=True).split()
    outside, inside = collections.Counter(), collections.Counter()
    for name in files:
        if name.startswith(PUBLIC + "/") or not os.path.exists(name):
            continue
        text = re.sub(r"//[^\n]*", "", open(name, encoding="utf-8", errors="replace").read())
        (inside if name.startswith(OWN) else outside).update(re.findall(r"[A-Za-z_]\w*", text))
    return outside, inside


def main():
    functions = declared_functions()
    text = exports_text(functions)
    if "--write-exports" in sys.argv:
        open(EXPORTS, "w", encoding="utf-8").write(text)
        return 0
    outside, inside = words_used()
    findings = []
    if not os.path.exists(EXPORTS) or open(EXPORTS, encoding="utf-8").read() != text:
        findings.append(EXPORTS + " is not what the headers declare; --write-exports writes it")
    for header, names in functions.items():
        findings += ["%s/%s: nobody calls %s and no test does" % (PUBLIC, header, f)
                     for f in names if outside[f.split("::")[-1]] == 0 and inside[f.split("::")[-1]] < 2]
    findings += ["%s/constants: nobody names %s and no test does" % (PUBLIC, c)
                 for c in constants() if outside[c] + inside[c] == 0]
    print("\n".join(findings), end="\n" if findings else "")
    return 1 if findings else 0


if __name__ == "__main__":
    os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    sys.exit(main())
