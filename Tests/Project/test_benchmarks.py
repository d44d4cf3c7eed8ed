"""Runs one cheap row of the benchmark programs, to see that all of them start and select rows.

Takes the list of programs.
"""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "Tools"
PROGRAMS = sys.argv[1]


class BenchmarksTest(unittest.TestCase):
    def measure(self, *arguments):
        with tempfile.TemporaryDirectory() as folder:
            rows = pathlib.Path(folder) / "bench.json"
            result = subprocess.run(
                [sys.executable, TOOLS / "bench-table", PROGRAMS, "--json", rows, *arguments,
                 "--benchmark_repetitions=1", "--benchmark_min_time=0.001"],
                text=True, capture_output=True, check=False)
            return result, json.loads(rows.read_text())

    def test_measures_the_rows_asked_for(self):
        result, rows = self.measure("^ids/hash$")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual([row["name"] for row in rows], ["ids/hash"])
        self.assertGreater(rows[0]["value"], 0)
        self.assertGreater(rows[0]["peer"], 0)
        self.assertAlmostEqual(rows[0]["ratio"], rows[0]["value"] / rows[0]["peer"])
        self.assertEqual(rows[0]["unit"], "ms")

    def test_tells_of_a_filter_that_is_no_expression(self):
        result, rows = self.measure("ids/(")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(rows, [])
        self.assertIn("no regular expression", result.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
