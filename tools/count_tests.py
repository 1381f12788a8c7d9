#!/usr/bin/env python3
"""Prints "passed failed skipped" of a GoogleTest report; 0 0 0 where there is none. With "failures" behind it,
the names of the failed tests instead, as a filter."""
import json
import sys

passed = failed = skipped = 0
failures = []
try:
    with open(sys.argv[1], encoding="latin-1") as report:
        suites = json.load(report)["testsuites"]
except (OSError, ValueError, KeyError):
    suites = []
for suite in suites:
    for test in suite["testsuite"]:
        if test.get("failures"):
            failed += 1
            failures.append(f'{suite["name"]}.{test["name"]}')
        elif test.get("result") == "SKIPPED":
            skipped += 1
        elif test.get("status") == "RUN":
            passed += 1
print(":".join(failures) if sys.argv[2:] == ["failures"] else f"{passed} {failed} {skipped}")
