#!/usr/bin/env python3
"""Compares the tests of the source tree with those that the programs list and those that ran, by name.

compare_tests.py native|win32|win64 names             prints the names in the tree, one "folder Suite.Name" a line
compare_tests.py native|win32|win64 check BUILD_DIR   compares; prints each difference; exit code 1 if there is one

A folder of tests is one program. Its list (--gtest_list_tests) stands in BUILD_DIR/reports/PROGRAM.list, its
report in BUILD_DIR/reports/PROGRAM.json. Folders that end in _native or _windows belong to one system. Tests
over types or values count by their name in the source, and each of their instances must run.
"""
import json
import os
import re
import sys

TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\(\s*(\w+)\s*,\s*(\w+)\s*\)", re.M)
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def tests_in_tree(system):
    """folder -> set of "Suite.Name"."""
    other = "_windows" if system == "native" else "_native"
    found = {}
    tests = os.path.join(ROOT, "tests")
    for folder in sorted(os.listdir(tests)):
        path = os.path.join(tests, folder)
        if not os.path.isdir(path) or folder.endswith(other):
            continue
        for base, _, files in os.walk(path):
            for name in sorted(files):
                if name.endswith("_test.cpp"):
                    with open(os.path.join(base, name), encoding="utf-8") as file:
                        for suite, test in TEST.findall(file.read()):
                            found.setdefault(folder, set()).add(suite + "." + test)
    return found


def tests_listed(path):
    """Full names, in the form that --gtest_list_tests gives: suites flush left, their tests indented."""
    names, suite = [], ""
    with open(path, encoding="latin-1") as file:
        for line in file:
            words = line.split("#")[0].split()
            if len(words) != 1:
                continue
            if line.startswith("  "):
                names.append(suite + words[0])
            elif words[0].endswith("."):
                suite = words[0]
    return names


def tests_that_ran(path):
    """Full names of the tests that came to an end, and of those skipped by their name alone."""
    ran = set()
    with open(path, encoding="latin-1") as file:
        report = json.load(file)
    for suite in report["testsuites"]:
        for test in suite["testsuite"]:
            if test.get("status") == "RUN":
                ran.add(suite["name"] + "." + test["name"])
    return ran


def name_in_source(full):
    """"Prefix/Suite.Test/3" and "Suite/0.Test" are the test Suite.Test of the source."""
    suite, test = full.split(".", 1)
    parts = [p for p in suite.split("/") if not p.isdigit()]
    return parts[-1] + "." + test.split("/")[0]


def check(system, build):
    faults = []
    tree = tests_in_tree(system)
    with open(os.path.join(build, "test-programs.txt")) as file:
        programs = [line.strip() for line in file if line.strip()]
    folders = {re.sub(r"^zx_(.*)_tests$", r"\1", p): p for p in programs}
    for folder in sorted(set(tree) - set(folders)):
        faults.append("%s: no program runs its %d tests" % (folder, len(tree[folder])))
    for folder in sorted(set(folders) - set(tree)):
        faults.append("%s: a program without tests in the tree" % folder)
    count = 0
    for folder in sorted(set(tree) & set(folders)):
        reports = os.path.join(build, "reports", folders[folder])
        try:
            listed = tests_listed(reports + ".list")
        except OSError:
            listed = []
        try:
            ran = tests_that_ran(reports + ".json")
        except (OSError, ValueError, KeyError):
            ran = set()
        count += len(ran)
        sources = {name_in_source(name) for name in listed}
        if not listed:
            faults.append("%s: lists no tests" % folder)
        else:
            faults += ["%s: %s is in the tree and not in the program" % (folder, n) for n in tree[folder] - sources]
            faults += ["%s: %s is in the program and not in the tree" % (folder, n) for n in sources - tree[folder]]
            faults += ["%s: %s is switched off by its name" % (folder, n) for n in listed if "DISABLED_" in n]
            faults += ["%s: %s did not run" % (folder, n) for n in listed if n not in ran and "DISABLED_" not in n]
        faults += ["%s: %s ran and is not listed" % (folder, n) for n in ran - set(listed)]
    for fault in sorted(faults)[:40]:
        print("    " + fault)
    if len(faults) > 40:
        print("    and %d more" % (len(faults) - 40))
    in_tree = sum(len(names) for names in tree.values())
    print("=== %s: %d tests ran, of %d in the tree" % (system, count, in_tree))
    return 1 if faults else 0


if sys.argv[2] == "names":
    for folder, names in tests_in_tree(sys.argv[1]).items():
        for name in sorted(names):
            print(folder, name)
else:
    sys.exit(check(sys.argv[1], sys.argv[3]))
