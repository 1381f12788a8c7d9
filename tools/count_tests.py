#!/usr/bin/env python3
"""Prints "passed failed skipped" of a GoogleTest report; 0 0 0 where there is none."""
import json
import sys

passed = failed = skipped = 0
try:
    with open(sys.argv[1], encoding="latin-1") as report:
        suites = json.load(report)["testsuites"]
except (OSError, ValueError, KeyError):
    suites = []
for suite in suites:
    for test in suite["testsuite"]:
        if test.get("failures"):
            failed += 1
        elif test.get("result") == "SKIPPED":
            skipped += 1
        elif test.get("status") == "RUN":
            passed += 1
print(passed, failed, skipped)
