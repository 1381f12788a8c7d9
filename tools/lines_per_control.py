#!/usr/bin/env python3
"""Tells what a control costs: the lines of the dialogs' folders over the control objects that they bind.

    lines_per_control.py [FOLDER...]      (default: the dialogs' folders of src/)

A control object is a member of a dialog or a tab whose type is one of the library's control classes; an array of
them counts each, and so does a struct of them. Files without a window (rules, checks, a model) are left out: they cost what their rules cost.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("fit", "arithmetic", "sigproc", "measure", "traceops")
CONTROL = re.compile(r"^\s+(?:ADM_(?!Dialog|Tab|Wnd\b)\w+|CZxDlg\w+(?:<[\w:]+>)?) (m_\w+(?:, m_\w+)*);", re.M)

ARRAY = re.compile(r"^\s+std::array<(?:ADM_|CZxDlg)\w+, (\w+)> m_\w+;", re.M)
# A struct of controls, and the members that are such structs.
STRUCT = re.compile(r"^    struct (\w+) \{\n((?:        .*;\n)+)    \};", re.M)
IN_STRUCT = re.compile(r"^        (?:ADM_(?!Dialog|Tab|Wnd\b)\w+|CZxDlg\w+(?:<[\w:]+>)?) (\w+(?:, \w+)*);", re.M)
MEMBERS = r"^    %s (m_\w+(?:, m_\w+)*);"
CONSTANT = re.compile(r"constexpr [\w:]+ (\w+) = (\d+);")
ALIAS = re.compile(r"constexpr [\w:]+ (\w+) = (?:\w+::)+(\w+);")
WINDOW = re.compile(r"\b(?:ADM_|CEditPage|CRecordPage|COptionsTab|CParentDialog|CUntabbedDialog|CSinglePage|C\w*(?:Tab|Dialog)\b)")


def in_structs(text):
    count = 0
    for name, body in STRUCT.findall(text):
        each = sum(names.count(",") + 1 for names in IN_STRUCT.findall(body))
        members = re.findall(MEMBERS % name, text, re.M)
        count += each * sum(names.count(",") + 1 for names in members)
    return count


def main(folders):
    lines = controls = 0
    for folder in folders:
        files = [f for f in (ROOT / "src" / folder).rglob("*") if f.suffix in (".h", ".cpp")]
        every = [f.read_text(encoding="utf-8") for f in files]
        constants = {name: int(value) for text in every for name, value in CONSTANT.findall(text)}
        for name, other in [pair for text in every for pair in ALIAS.findall(text)]:
            if other in constants:
                constants.setdefault(name, constants[other])
        texts = [text for text in every if WINDOW.search(text)]
        own_lines = sum(text.count("\n") for text in texts)
        own_controls = sum(m.group(1).count(",") + 1 for text in texts for m in CONTROL.finditer(text))
        own_controls += sum(constants.get(n) or int(n) for text in texts for n in ARRAY.findall(text))
        own_controls += sum(in_structs(text) for text in texts)
        if own_controls:
            print(f"{folder}: {own_lines} lines, {own_controls} controls, {own_lines / own_controls:.1f} each")
            lines, controls = lines + own_lines, controls + own_controls
    if controls:
        print(f"all: {lines} lines, {controls} controls, {lines / controls:.1f} each")


main(sys.argv[1:] or [f for f in FOLDERS if (ROOT / "src" / f).is_dir()])
