#!/usr/bin/env python3
"""Tells what a control costs: the lines of the dialogs' folders over the control objects that they bind.

    lines_per_control.py [FOLDER...]      (default: the dialogs' folders of src/)

A control object is a member of a dialog or a tab whose type is one of the library's control classes.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("fit", "arithmetic", "sigproc", "measure", "traceops")
CONTROL = re.compile(r"^\s+(?:ADM_(?!Dialog|Tab|Wnd\b)\w+|CZxDlg\w+(?:<[\w:]+>)?) (m_\w+(?:, m_\w+)*);", re.M)


def main(folders):
    lines = controls = 0
    for folder in folders:
        files = [f for f in (ROOT / "src" / folder).rglob("*") if f.suffix in (".h", ".cpp")]
        texts = [f.read_text(encoding="utf-8") for f in files]
        own_lines = sum(text.count("\n") for text in texts)
        own_controls = sum(m.group(1).count(",") + 1 for text in texts for m in CONTROL.finditer(text))
        if own_controls:
            print(f"{folder}: {own_lines} lines, {own_controls} controls, {own_lines / own_controls:.1f} each")
            lines, controls = lines + own_lines, controls + own_controls
    if controls:
        print(f"all: {lines} lines, {controls} controls, {lines / controls:.1f} each")


main(sys.argv[1:] or [f for f in FOLDERS if (ROOT / "src" / f).is_dir()])
