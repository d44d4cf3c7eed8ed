"""Tests of what the documents say: the example is the one that is run, and every link leads on."""

import pathlib
import re
import textwrap
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = sorted([*ROOT.glob("*.md"), *(ROOT / "Docs").glob("*.md")])
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s#]+)(?:#[^)]*)?\)")
CODE_NAME = re.compile(r"`((?:Host|TreeModel|Files|FileDialogs|Actions|Dialogs|Utilities|Workbench|"
                       r"Tests|Benchmarks|Docs|Tools|cmake)/[\w./-]*)`")


class DocumentsTest(unittest.TestCase):
    def test_the_example_is_the_one_that_is_run(self):
        source = (ROOT / "Tests/Project/ReadmeExampleTest.cpp").read_text(encoding="utf-8")
        run = re.search(r"// \[example\]\n(.*?)^ *// \[example\]", source, re.S | re.M)[1]
        readme = (ROOT / "README.md").read_text(encoding="utf-8")
        shown = re.search(r"^```cpp\n(.*?)^```", readme, re.S | re.M)[1]
        self.assertEqual(shown.splitlines(), textwrap.dedent(run).splitlines())

    def test_links_and_names_of_files_lead_somewhere(self):
        for document in DOCUMENTS:
            text = document.read_text(encoding="utf-8")
            targets = [(document.parent, link) for link in LINK.findall(text) if ":" not in link]
            targets += [(ROOT, name) for name in CODE_NAME.findall(text)]
            for folder, target in targets:
                with self.subTest(document=document.name, target=target):
                    self.assertTrue((folder / target).exists())


if __name__ == "__main__":
    unittest.main()
