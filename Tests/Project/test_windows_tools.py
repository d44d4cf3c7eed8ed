"""Tests of what ./test-windows leans on: the summary must find what is wrong with a run."""

import contextlib
import importlib.machinery
import importlib.util
import os
import pathlib
import signal
import subprocess
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "Tools"


def load(name):
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), str(TOOLS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


SUMMARY = load("windows-summary")
RUN = """<?xml version="1.0"?><testsuite>
<testcase name="Files.A" status="run"><system-out>
SKIP   : ATest::links() no links here
   Loc: [ATest.cpp(3)]
Totals: 7 passed, 0 failed, 1 skipped, 0 blacklisted, 2ms</system-out></testcase>
<testcase name="Files.B" status="run"><system-out>
Totals: 5 passed, 0 failed, 0 skipped, 0 blacklisted, 2ms</system-out></testcase>
<testcase name="Files.C" status="fail"><failure message="Failed"/><system-out/></testcase>
</testsuite>"""


class SummaryTest(unittest.TestCase):
    def summary(self, run=RUN, here=("Files.A", "Files.B", "Files.C"),
                windows=("Files.A", "Files.B", "Files.C"), reasons=(), is_whole=True):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "tests.xml"
            path.write_text(run, encoding="utf-8")
            results = SUMMARY.Results(path)
        return SUMMARY.summarize(results, set(here), set(windows), list(reasons), is_whole)

    def test_counts_and_names_what_failed(self):
        lines, faults = self.summary()
        self.assertEqual(lines[-1], "2 passed, 1 failed")
        self.assertIn("FAILED: Files.C", lines)
        self.assertIn("On both platforms: 3 tests, the same sources", lines)
        self.assertIn("Test functions that passed: 12", lines)
        self.assertEqual(faults, [])

    def test_what_could_not_be_started_has_failed(self):
        lines, _ = self.summary(run=RUN.replace('status="fail"', 'status="notrun"'))
        self.assertEqual(lines[-1], "2 passed, 1 failed")
        self.assertIn("FAILED: Files.C", lines)

    def test_a_whole_run_has_a_result_of_each_test(self):
        known = ("Files.A", "Files.B", "Files.C", "Files.D")
        lines, faults = self.summary(here=known, windows=known)
        self.assertEqual(faults, ["Files.D has no result"])
        self.assertIn("TO MEND: Files.D has no result", lines)
        _, faults = self.summary(here=known, windows=known, is_whole=False)
        self.assertEqual(faults, [])

    def test_tells_what_was_skipped_and_why(self):
        lines, _ = self.summary()
        self.assertIn("  no links here: ATest::links", "\n".join(lines))

    def test_one_platform_needs_a_reason(self):
        lines, faults = self.summary(here=("Files.A", "Files.B"))
        self.assertEqual(len(faults), 1)
        self.assertIn("Files.C runs under Windows only", faults[0])
        self.assertIn("TO MEND: " + faults[0], lines)
        lines, faults = self.summary(here=("Files.A", "Files.B"),
                                     reasons=[("Files.C*", "the shell's")])
        self.assertEqual(faults, [])
        self.assertIn("  Files.C: the shell's", lines)

    def test_a_reason_that_nothing_needs_must_go(self):
        _, faults = self.summary(reasons=[("Files.C", "the shell's")])
        self.assertEqual(len(faults), 1)
        self.assertIn("names no test", faults[0])


class PrefixTest(unittest.TestCase):
    def start(self, stub):
        """Starts Wine with a stand-in for it: what came of that, whether a prefix is ready, and
        whether the program that keeps Wine up was."""
        with tempfile.TemporaryDirectory() as folder:
            for name, script in (("wine", stub), ("wineserver", "exit 0")):
                program = pathlib.Path(folder) / name
                program.write_text(f'#!/bin/sh\nmkdir -p "$WINEPREFIX"\n{script}\n',
                                   encoding="utf-8")
                program.chmod(0o755)
            prefix = pathlib.Path(folder) / "state/prefix"
            environment = {**os.environ, "ZORVANE_WINEPREFIX": str(prefix),
                           "PATH": folder + os.pathsep + os.environ["PATH"]}
            run = subprocess.Popen([TOOLS / "wine", "--start"], env=environment,
                                   start_new_session=True, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                code = run.wait()
                is_up = (pathlib.Path(folder) / "is-up").exists()
                return code, (prefix / "ready").exists(), is_up
            finally:
                # What keeps Wine up would stay.
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(run.pid, signal.SIGKILL)

    def test_a_prefix_that_fails_halfway_is_not_kept(self):
        for name, stub in (("no prefix", "exit 1"), ("no setting", '[ "$1" = wineboot ]')):
            with self.subTest(name):
                code, is_ready, _ = self.start(stub)
                self.assertNotEqual(code, 0)
                self.assertFalse(is_ready)

    def test_a_start_ends_when_wine_is_up(self):
        slow = 'case "$*" in *"set /p"*) sleep 1; touch "$WINEPREFIX/../../is-up"; echo up ;; esac'
        self.assertEqual(self.start(slow), (0, True, True))


if __name__ == "__main__":
    unittest.main()
