#!/usr/bin/env python3
"""check_includes.py says what is wrong in a small tree, and says nothing of one that is right."""
import os
import tempfile
import unittest

from check_includes import check

ROOMS = """
headless:
public: headless
text:
platform: text headless
contract: platform public
traceops: contract
entry: traceops
host: public
tests/contract: contract
"""


class Tree(unittest.TestCase):
    def findings(self, **changes):
        files = {
            "src/rooms.txt": ROOMS,
            "include/ZXADLG.h": '#include "zxadlg/Options.h"\n',
            "include/zxadlg/Options.h": "",
            "include/zxadlg/headless/names.h": "",
            "src/text/Numbers.h": "#include <string>\n",
            "src/platform/platform.h": '#include "zxadlg/headless/names.h"\n',
            "src/platform/headless/window/window.h": '#include "text/Numbers.h"\n',
            "src/contract/Records.h": '#include "ZXADLG.h"\n#include "platform/platform.h"\n',
            "src/traceops/OneDialog.h": '#include "contract/Records.h"\n',
            "src/traceops/OneTab.h": "",
            "src/traceops/OneDialog.cpp": '#include "traceops/OneDialog.h"\n#include "traceops/OneTab.h"\n',
            "src/traceops/OneMoreDialog.h": '#include "traceops/SharedBase.h"\n',
            "src/traceops/SharedBase.h": "",
            "src/entry/Show.cpp": '#include "traceops/OneDialog.h"\n#include "traceops/OneMoreDialog.h"\n',
            "host/main.cpp": '#include "Window.h"\n#include "ZXADLG.h"\n',
            "host/Window.h": "",
            "tests/contract/records_test.cpp": '#include "contract/Records.h"\n',
        }
        for path, text in changes.items():
            files[path] = text
        with tempfile.TemporaryDirectory() as root:
            for path, text in files.items():
                os.makedirs(os.path.join(root, os.path.dirname(path)), exist_ok=True)
                with open(os.path.join(root, path), "w", encoding="utf-8") as file:
                    file.write(text)
            return check(root)

    def one(self, path, text, says):
        found = self.findings(**{path: text})
        self.assertEqual(1, len(found), found)
        self.assertIn(says, found[0])

    def test_a_tree_that_keeps_the_arrows(self):
        self.assertEqual([], self.findings())

    def test_an_arrow_upward(self):
        self.one("src/text/Numbers.h", '\n#include "contract/Records.h"\n', "src/text/Numbers.h:2: text may not include contract")

    def test_an_arrow_past_the_public_headers(self):
        self.one("host/Window.h", '#include "platform/platform.h"\n', "host may not include platform")

    def test_a_header_alone_that_would_link(self):
        self.one("src/platform/headless/window/window.h", '#include "ZXADLG.h"\n', "platform may not include public")

    def test_the_inside_of_the_platform(self):
        self.one("src/contract/Records.h", '#include "platform/headless/window/window.h"\n', "is private to platform")

    def test_the_names_of_one_window_system(self):
        self.one("src/contract/Records.h", '#include "zxadlg/headless/names.h"\n', "come through platform/platform.h")

    def test_another_dialogs_header(self):
        self.one("src/traceops/OneMoreDialog.h", '#include "traceops/OneTab.h"\n', "a header of the dialog One,")

    def test_a_dialogs_header_in_what_all_share(self):
        self.one("src/traceops/SharedBase.h", '#include "traceops/OneDialog.h"\n', "a header of the dialog One,")

    def test_a_file_that_is_not_there(self):
        self.one("src/text/Numbers.h", '#include "text/Nothing.h"\n', "is no file of the tree")

    def test_a_room_that_is_not_in_the_table(self):
        self.one("src/attic/Old.h", '#include "text/Numbers.h"\n', "the room attic is not in src/rooms.txt")


if __name__ == "__main__":
    unittest.main(verbosity=0)
