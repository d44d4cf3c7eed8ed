"""Tests of what the documents say: the example is the one that is run, every link leads on, and
what they name is there."""

import pathlib
import re
import textwrap
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = sorted([*ROOT.glob("*.md"), *(ROOT / "Docs").glob("*.md")])
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s#]+)(?:#[^)]*)?\)")
LINK_TO_HEADING = re.compile(r"\]\(([^)\s#:]*)#([^)]+)\)")
HEADING = re.compile(r"^#+ (.*)$", re.M)
CODE_NAME = re.compile(r"`((?:Host|TreeModel|Files|FileDialogs|Actions|Dialogs|Utilities|Workbench|"
                       r"Tests|Benchmarks|Docs|Tools|cmake)/[\w./-]*)`")
CODE = re.compile(r"^```.*?^```|`([^`\n]+)`", re.S | re.M)
IDENTIFIER = re.compile(r"\b[A-Za-z_]\w*[a-z0-9][A-Z]\w*")
SOURCE_FOLDERS = ("Host", "TreeModel", "Files", "FileDialogs", "Actions", "Dialogs", "Utilities",
                  "Workbench", "Tests", "Benchmarks", "Tools", "cmake")


def anchor(heading):
    """What a link calls a heading."""
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")

HOST_INCLUDE = re.compile(r'^#include "(Host/[^"]+)"', re.M)
HOST_ROW = re.compile(r"^\| `(Host/[\w/]+\.h)` \| (.+) \| (library|Workbench) \|$", re.M)
# What a header of the host declares for its users: types and functions at the margin.
HOST_NAME = re.compile(r"^(?:class|struct|enum class) (?:ZORVANE_HOST_EXPORT )?([\w:]+)\b(?![:;])|"
                       r"^ZORVANE_HOST_EXPORT [^;(]*?\b(\w+)\(|^using (\w+) =", re.M)


def host_headers_of(*folders):
    sources = [path for folder in folders for ending in ("*.h", "*.cpp")
               for path in (ROOT / folder).rglob(ending)]
    return {header for path in sources
            for header in HOST_INCLUDE.findall(path.read_text(encoding="utf-8"))}


class HostGuideTest(unittest.TestCase):
    def setUp(self):
        text = (ROOT / "Docs/HostGuide.md").read_text(encoding="utf-8")
        self.rows = HOST_ROW.findall(text)

    def headers_for(self, user):
        return {header for header, _, of in self.rows if of == user}

    def test_the_table_has_the_headers_that_are_included(self):
        library = host_headers_of("TreeModel", "Files", "FileDialogs", "Actions", "Dialogs",
                                  "Utilities")
        more = host_headers_of("Workbench", "Benchmarks", "Tools")
        self.assertGreater(len(library), 20)
        self.assertEqual(self.headers_for("library"), library)
        self.assertEqual(self.headers_for("Workbench"), more - library)

    def test_the_table_names_what_each_header_declares(self):
        for header, names, _ in self.rows:
            with self.subTest(header=header):
                text = (ROOT / header).read_text(encoding="utf-8")
                declared = {"".join(groups) for groups in HOST_NAME.findall(text)}
                self.assertEqual(set(re.findall(r"`([\w:]+)`", names)), declared)


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

    def test_links_to_headings_lead_somewhere(self):
        for document in DOCUMENTS:
            for name, wanted in LINK_TO_HEADING.findall(document.read_text(encoding="utf-8")):
                with self.subTest(document=document.name, target=f"{name}#{wanted}"):
                    target = document.parent / name if name else document
                    headings = HEADING.findall(target.read_text(encoding="utf-8"))
                    self.assertIn(wanted, list(map(anchor, headings)))

    def test_names_of_the_code_are_in_the_code(self):
        texts = [f"{path.name}\n{path.read_text(encoding='utf-8')}"
                 for folder in SOURCE_FOLDERS for path in (ROOT / folder).rglob("*")
                 if path.suffix in {".h", ".cpp", ".txt", ".cmake", ".in"}]
        words = set().union(*map(re.compile(r"\w+").findall, texts))
        # The page of the actions is made by a program, and has a test of its own.
        for document in (name for name in DOCUMENTS if name.name != "Actions.md"):
            text = document.read_text(encoding="utf-8")
            named = {name for code in CODE.findall(text) for name in IDENTIFIER.findall(code)}
            with self.subTest(document=document.name):
                # A name may be told by its end, such as "...ForTypes".
                unknown = [name for name in sorted(named - words)
                           if not any(name in text for text in texts)]
                self.assertEqual(unknown, [])


if __name__ == "__main__":
    unittest.main()
