#!/usr/bin/env bash
# A mutation run: changes the code of some folders of src/ in many small ways, one at a time, and tells which
# changes no test notices. tools/mutate.sh [--fresh] [--jobs N] [FOLDER...]; all five folders take an hour.
set -u
cd "$(dirname "$0")/.." || exit 1
tools/setup.sh native mutate || exit 1
exec env PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 tools/mutate/run.py "$@"
