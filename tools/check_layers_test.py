#!/usr/bin/env python3
"""The layering check itself: it passes a tree whose includes point down and
fails, naming the include, on every kind of upward or sideways include."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "check-layers.py"

LAYERS = """\
# folder: folders it uses
core:
platform: core
platform/posix: platform
state: core platform
settings: state
support: state
addin: settings support
"""


def run_check(files):
    """Runs the check over a tree made of `files` (path -> text)."""
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        (root / "tools").mkdir()
        (root / "tools" / "layers.txt").write_text(LAYERS)
        for path, text in files.items():
            (root / path).parent.mkdir(parents=True, exist_ok=True)
            (root / path).write_text(text)
        done = subprocess.run([sys.executable, str(CHECK), str(root)],
                              capture_output=True, text=True, check=False)
        return done.returncode, done.stdout


# Headers every tree below has, so that includes of them resolve.
BASE = {name: "#pragma once\n" for name in (
    "core/failure.h", "platform/platform.h", "platform/posix/posix_system.h",
    "state/addin_state.h", "settings/my_settings.h", "support/file_module.h",
    "addin/main_module.h", "sim/outlook.h")}


class LayeringCheck(unittest.TestCase):
    def test_includes_that_point_down_pass(self):
        cases = {
            "its own folder": ("settings/a.cpp", '#include "settings/my_settings.h"\n'),
            "a folder on its line": ("settings/a.cpp", '#include "state/addin_state.h"\n'),
            "a folder further down": ("addin/a.cpp", '#include "core/failure.h"\n'),
            "a system header": ("core/a.cpp", "#include <string>\n"),
            "an unchecked folder": ("sim/a.cpp", '#include "addin/main_module.h"\n'),
            "a nested folder using its parent": (
                "platform/posix/a.cpp", '#include "platform/platform.h"\n'),
        }
        for why, (path, text) in cases.items():
            with self.subTest(why):
                self.assertEqual(run_check({**BASE, path: text}), (0, ""))

    def test_includes_that_point_up_or_sideways_fail(self):
        cases = {
            "upward": ("support/a.cpp", 2, '#include "addin/main_module.h"\n',
                       "support -> addin"),
            "two layers up": ("state/a.h", 2, '#include "settings/my_settings.h"\n',
                              "state -> settings"),
            "sideways": ("settings/a.cpp", 2, '#include "support/file_module.h"\n',
                         "settings -> support"),
            "into the simulator": ("core/a.cpp", 2, '#include "sim/outlook.h"\n',
                                   "core -> sim"),
            "into one platform": ("state/a.cpp", 2,
                                  '#include "platform/posix/posix_system.h"\n',
                                  "state -> platform/posix"),
        }
        for why, (path, line, text, edge) in cases.items():
            with self.subTest(why):
                code, out = run_check({**BASE, path: '#include <string>\n' + text})
                self.assertEqual(code, 1)
                self.assertEqual(out, f"{path}:{line}: {edge}\n")

    def test_every_offence_is_listed(self):
        code, out = run_check({
            **BASE,
            "support/a.cpp": '#include "addin/main_module.h"\n',
            "core/b.h": '#include "state/addin_state.h"\n#include "core/failure.h"\n',
        })
        self.assertEqual(code, 1)
        self.assertEqual(out.splitlines(),
                         ["core/b.h:1: core -> state", "support/a.cpp:1: support -> addin"])


if __name__ == "__main__":
    unittest.main()
