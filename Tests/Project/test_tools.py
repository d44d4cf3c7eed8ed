"""Tests of the programs in Tools: each check must find what it is there to find."""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "Tools"


def run_tool(name, *arguments):
    return subprocess.run([sys.executable, TOOLS / name, *map(str, arguments)], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)


class ToolTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def write(self, name, text=""):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def check(self, tool):
        return run_tool(tool, "--root", self.root)


class LayersTest(ToolTest):
    FILES = ("UiToolsExport.h", "Host/HostExport.h", "Host/Identifiers/IDCombiner.h",
             "Host/Widgets/ValueIdentity.h", "Host/Widgets/ZVTreeViewItem.h",
             "Host/Widgets/ZVMessageBox.h", "Files/PathProvider.h", "Files/Portable/Engine.h",
             "Files/Windows/Shell.h", "FileDialogs/FileDialog.h", "Dialogs/ZVSaveDialog.h",
             "Actions/ZVMainActions.h", "TreeModel/ModelItem.h", "Utilities/PostEventTask.h",
             "Workbench/Design/Design.h", "Tests/Support/TestCase.h")

    def setUp(self):
        super().setUp()
        for name in self.FILES:
            self.write(name)

    def check_all(self, cases):
        """Checks with each case in a file of its own; the findings that are expected of it."""
        expected = []
        for number, (source, line) in enumerate(cases):
            name = source.replace("A.", f"A{number}.")
            self.write(name, f"// Some file\n{line}\n")
            expected.append(f"{name}:2: {line.strip()}: ")
        return self.check("check-layers"), expected

    ALLOWED = (
        ("Workbench/A.cpp", '#include "Dialogs/ZVSaveDialog.h"'),
        ("Workbench/A.cpp", '#include "TreeModel/ModelItem.h"'),
        ("Workbench/A.cpp", "#include <assimp/scene.h>"),
        ("Dialogs/A.cpp", '#include "FileDialogs/FileDialog.h"'),
        ("Dialogs/A.cpp", '#include "Files/PathProvider.h"'),
        ("FileDialogs/A.cpp", '#include "Files/PathProvider.h"'),
        ("Files/A.h", '#include "UiToolsExport.h"'),
        ("Files/Windows/A.cpp", '#include "Files/Windows/Shell.h"'),
        ("Files/Windows/A.cpp", "#include <windows.h>"),
        ("Files/Portable/A.cpp", "#include <sys/stat.h>"),
        ("Files/Portable/A.cpp", "#ifdef __linux__"),
        ("Tests/Files/Portable/A.cpp", '#include "Files/Portable/Engine.h"'),
        ("Benchmarks/A.cpp", '#include "Files/Portable/Engine.h"'),
        ("Benchmarks/A.cpp", "#include <benchmark/benchmark.h>"),
        ("Actions/A.cpp", '#include "Host/Widgets/ZVMessageBox.h"'),
        ("TreeModel/A.cpp", '#include "Host/Widgets/ZVTreeViewItem.h"'),
        ("TreeModel/A.cpp", '#include "Host/Identifiers/IDCombiner.h"'),
        ("TreeModel/A.cpp", '#include "Utilities/PostEventTask.h"'),
        ("Host/Widgets/A.cpp", '#include "Host/Identifiers/IDCombiner.h"'),
        ("Host/Signals/A.h", "#include <boost/signals2.hpp>"),
        ("Host/A.cpp", '#include "moc_A.cpp"'),
        ("Tests/A.cpp", '#include "ATest.moc"'),
        ("Tests/A.cpp", "#include <QtTest/QtTest>"),
        ("Tests/A.cpp", "#include <KDescendantsProxyModel>"),
        ("Utilities/A.cpp", "#include <unordered_map>"),
        ("Utilities/A.cpp", "#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)"),
    )

    def test_accepts_what_follows_the_arrows(self):
        result, _ = self.check_all(self.ALLOWED)
        self.assertEqual((result.returncode, result.stdout), (0, "Layers: in order\n"))

    FORBIDDEN = (
        ("Host/A.cpp", '#include "Files/PathProvider.h"'),
        ("Workbench/A.cpp", "#include <QtCore/QSaveFile>"),
        ("Host/A.h", '#include "UiToolsExport.h"'),
        ("Files/A.cpp", '#include "FileDialogs/FileDialog.h"'),
        ("FileDialogs/A.cpp", '#include "Dialogs/ZVSaveDialog.h"'),
        ("Dialogs/A.cpp", '#include "Actions/ZVMainActions.h"'),
        ("Dialogs/A.cpp", '#include "Workbench/Design/Design.h"'),
        ("Actions/A.cpp", '#include "Files/PathProvider.h"'),
        ("Utilities/A.cpp", '#include "TreeModel/ModelItem.h"'),
        ("TreeModel/A.cpp", '#include "Files/PathProvider.h"'),
        ("TreeModel/A.cpp", '#include "Host/Widgets/ZVMessageBox.h"'),
        ("TreeModel/A.cpp", '  #  include "Host/Widgets/ZVMessageBox.h"'),
        ("Workbench/A.cpp", '#include "Tests/Support/TestCase.h"'),
        ("Benchmarks/A.cpp", '#include "Tests/Support/TestCase.h"'),
        ("Files/A.cpp", '#include "Files/Portable/Engine.h"'),
        ("Files/A.cpp", '#include "Files/Windows/Shell.h"'),
        ("Files/Portable/A.cpp", '#include "Files/Windows/Shell.h"'),
        ("Tests/Files/A.cpp", '#include "Files/Portable/Engine.h"'),
        ("Benchmarks/A.cpp", '#include "Files/Windows/Shell.h"'),
        ("Files/A.cpp", "#include <windows.h>"),
        ("Files/A.cpp", "#include <unistd.h>"),
        ("Files/A.cpp", "#ifdef Q_OS_WIN"),
        ("Files/A.cpp", "#if defined(_WIN32)"),
        ("Files/A.cpp", '#include "PathProvider.h"'),
        ("Files/A.cpp", "#include <QString>"),
        ("Files/A.cpp", "#include <QtCore/private/qobject_p.h>"),
        ("Files/A.cpp", "#include <QtTest/QtTest>"),
        ("TreeModel/A.cpp", "#include <QtSvg/QSvgRenderer>"),
        ("Files/A.cpp", "#include <assimp/scene.h>"),
        ("Workbench/A.cpp", "#include <rapidcheck.h>"),
        ("Workbench/A.cpp", "#include <KDescendantsProxyModel>"),
    )

    def test_finds_what_goes_against_them(self):
        result, expected = self.check_all(self.FORBIDDEN)
        self.assertEqual(result.returncode, 1)
        for finding in expected:
            with self.subTest(finding):
                self.assertIn("\n" + finding, "\n" + result.stdout)
        self.assertIn(f"Layers: {len(expected)} to mend\n", result.stdout)

    def test_folders_of_the_workbench_make_no_circle(self):
        self.write("Workbench/Tree/Tree.h", '#include "Workbench/Design/Design.h"\n')
        self.write("Workbench/Window/Window.cpp", '#include "Workbench/Tree/Tree.h"\n'
                                                  '#include "Workbench/Design/Design.h"\n')
        self.write("Workbench/main.cpp", '#include "Workbench/Tree/Tree.h"\n')
        self.write("Workbench/Window/Window.h")
        self.assertEqual(self.check("check-layers").stdout, "Layers: in order\n")
        self.write("Workbench/Design/Design.cpp", '\n#include "Workbench/Window/Window.h"\n')
        result = self.check("check-layers")
        self.assertEqual(result.returncode, 1)
        self.assertIn('Workbench/Design/Design.cpp:2: #include "Workbench/Window/Window.h": folders '
                      'include each other: Design > Window > Design\n', result.stdout)
        self.assertIn('Workbench/Tree/Tree.h:1: #include "Workbench/Design/Design.h": folders '
                      'include each other: Tree > Design > Window > Tree\n', result.stdout)
        self.assertIn("Layers: 4 to mend\n", result.stdout)

    def test_folders_of_the_host_make_no_circle(self):
        self.write("Host/Identifiers/A.cpp", '#include "Host/Widgets/ZVTreeViewItem.h"\n')
        self.assertEqual(self.check("check-layers").stdout, "Layers: in order\n")
        self.write("Host/Widgets/A.cpp", '#include "Host/Identifiers/IDCombiner.h"\n')
        self.assertIn("Layers: 2 to mend\n", self.check("check-layers").stdout)

    def test_internal_headers_stay_inside_their_library(self):
        self.write("Host/Widgets/CMakeLists.txt", "zorvane_internal_headers(ValueIdentity.h)\n")
        include = '#include "Host/Widgets/ValueIdentity.h"\n'
        inside = ("Host/Widgets/A.cpp", "Tests/Host/A.cpp", "Host/Widgets/ValueIdentity.h")
        for name in inside:
            self.write(name, include)
        self.assertEqual(self.check("check-layers").stdout, "Layers: in order\n")
        for name in ("Host/Widgets/A.h", "Utilities/A.cpp", "Workbench/A.cpp"):
            self.write(name, include)
        result = self.check("check-layers")
        line = ":1: " + include.strip() + ": "
        self.assertIn(f"Host/Widgets/A.h{line}an installed header", result.stdout)
        self.assertIn(f"Utilities/A.cpp{line}internal to another", result.stdout)
        self.assertIn(f"Workbench/A.cpp{line}internal to another", result.stdout)
        self.assertIn("Layers: 3 to mend\n", result.stdout)

    def test_internal_headers_of_one_library_may_meet_across_folders(self):
        self.write("Files/CMakeLists.txt", "zorvane_internal_headers(\n    A.h\n    B.h)\n")
        self.write("Files/A.h")
        self.write("Files/B.h")
        self.write("FileDialogs/A.cpp", '#include "Files/B.h"\n')
        self.assertEqual(self.check("check-layers").stdout, "Layers: in order\n")

    def test_a_list_of_internal_headers_names_only_what_is_there(self):
        self.write("Files/CMakeLists.txt", "zorvane_internal_headers(Gone.h)\n")
        self.assertEqual(self.check("check-layers").stdout,
                         "Files/Gone.h: an internal header that is not there\n"
                         "Layers: 1 to mend\n")

    def test_an_empty_folder_is_not_in_order(self):
        self.root = self.root / "nothing"
        self.root.mkdir()
        self.assertEqual(self.check("check-layers").returncode, 1)


class TextTest(ToolTest):
    UNWANTED = ("see /ho" "me/x", "file:///ho" "me/x", "file:///proj" "ects/x",
                "PATH=bin:/mn" "t/x", "copied to '/tm" "p/pictures'", "C:\\Us" "ers\\someone",
                "// TO" "DO later", "FIX" "ME: wrong", "<" * 7 + " ours", ">" * 7 + " theirs")

    def assert_finds(self, name, *findings):
        result = self.check("check-text")
        self.assertEqual(result.returncode, 1)
        for finding in findings:
            self.assertIn(f"{name}:{finding}", result.stdout)
        self.assertIn(f"Text: {len(findings)} to mend\n", result.stdout)

    def assert_in_order(self):
        result = self.check("check-text")
        self.assertEqual((result.returncode, result.stdout), (0, "Text: in order\n"))

    def test_finds_what_must_not_stay(self):
        for text in self.UNWANTED:
            with self.subTest(text=text):
                self.write("Files/A.cpp", f"int a;\n{text}\n")
                self.assert_finds("Files/A.cpp", "2: ")

    def test_accepts_what_only_looks_like_it(self):
        self.write("Files/A.cpp", "path/ho" "me/a $ROOT/ho" "me/b \"${x}/tm" "p/c\" s_todo\n"
                                  ":/ico" "ns/a.svg //ser" "ver/share <<<<<<< ours\n")
        self.write("picture.png").write_bytes(b"\0/ho" b"me/x")
        self.assert_in_order()

    def test_finds_folders_that_no_system_has(self):
        for name in ("Files/A.cpp", "Tools/a", "Docs/A.md", "Tests/Project/test_a.py"):
            with self.subTest(name=name):
                path = self.write(name, "/usr/bin/env /proc/self/statm /etc/apt\n'/proj" "ects/x'\n")
                self.assert_finds(name, "2: a path of one machine")
                path.unlink()

    def test_tests_make_up_folders(self):
        self.write("Tests/Files/A.cpp", "'/proj" "ects/x'\n")
        self.assert_in_order()
        self.write("Tests/Files/A.cpp", "'/ho" "me/x'\n")
        self.assert_finds("Tests/Files/A.cpp", "1: a path of one machine")

    def test_finds_comments_too_wide(self):
        for begin in ("// ", "    // ", "/** ", " * ", "/// ", "# "):
            with self.subTest(begin=begin):
                self.write("Files/A.h", begin + "x" * (100 - len(begin)) + "\n")
                self.assert_in_order()
                self.write("Files/A.h", begin + "x" * (101 - len(begin)) + "\n")
                self.assert_finds("Files/A.h", "1: 101 columns, 100 are the most")

    def test_finds_documents_too_wide(self):
        for line in ("words " * 17, "- words " * 17):
            with self.subTest(line=line):
                self.write("Docs/A.md", line + "\n")
                self.assert_finds("Docs/A.md", f"1: {len(line)} columns")

    def test_accepts_wide_lines_that_cannot_be_broken(self):
        wide = "x" * 120
        self.write("Docs/A.md", f"# {wide}\n| {wide} |\n![{wide}](a.png)\n")
        self.write("Files/A.cpp", f'auto a = "{wide}";\n// clang-format off\n'
                                  f"    // {wide}\n// clang-format on\n")
        self.assert_in_order()
        self.write("Files/A.cpp", f"// clang-format off\n// clang-format on\n// {wide}\n")
        self.assert_finds("Files/A.cpp", "3: ")

    def test_finds_files_too_long_to_read(self):
        self.write("Files/A.cpp", "\n" * 700)
        self.assertEqual(self.check("check-text").returncode, 0)
        self.write("Files/A.cpp", "\n" * 701)
        result = self.check("check-text")
        self.assertEqual(result.returncode, 1)
        self.assertIn("Files/A.cpp: 701 lines", result.stdout)


@unittest.skipUnless(shutil.which("lupdate"), "lupdate is not installed")
class TranslationsTest(ToolTest):
    SOURCE = 'auto text = Translator::translate("Context", "Copy %1");\n'

    def setUp(self):
        super().setUp()
        self.write("Files/A.cpp", self.SOURCE)

    def write_catalogue(self, translation, source="Copy %1", name="zorvane_de", numerus=""):
        self.write(f"Translations/{name}.ts", f"""<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{name.split('_')[1]}" sourcelanguage="en_US">
<context><name>Context</name>
<message{numerus}><source>{source}</source>{translation}</message>
</context></TS>""")

    def assert_finds(self, *findings):
        result = self.check("check-translations")
        self.assertEqual(result.returncode, 1)
        for finding in findings:
            self.assertIn(finding, result.stdout)
        self.assertIn(f"Translations: {len(findings)} to mend\n", result.stdout)

    def test_accepts_a_complete_catalogue(self):
        self.write_catalogue("<translation>%1 kopieren</translation>")
        result = self.check("check-translations")
        self.assertEqual((result.returncode, result.stdout), (0, "Translations: in order\n"))

    def test_finds_texts_that_are_missing_or_gone(self):
        self.write_catalogue("<translation>Alt</translation>", source="Old")
        self.assert_finds("'Copy %1': missing", "'Old': no longer in the sources")

    def test_finds_what_is_not_translated(self):
        for translation in ("<translation></translation>",
                            '<translation type="unfinished">%1 kopieren</translation>'):
            with self.subTest(translation):
                self.write_catalogue(translation)
                self.assert_finds("'Copy %1': not translated")

    def test_finds_other_placeholders(self):
        self.write_catalogue("<translation>%2 kopieren</translation>")
        self.assert_finds("'Copy %1': other placeholders in '%2 kopieren'")

    def test_finds_texts_that_are_hidden_in_a_variable(self):
        self.write_catalogue("<translation>%1 kopieren</translation>")
        self.write("Files/B.cpp", 'return Translator::translate("Hidden", text);\n')
        self.assert_finds("Files/B.cpp: Hidden: has no texts in Translations/zorvane_de.ts")

    def test_fix_takes_texts_in_and_out(self):
        self.write_catalogue("<translation>Alt</translation>", source="Old")
        run_tool("check-translations", "--fix", "--root", self.root)
        self.assert_finds("'Copy %1': not translated")

    def test_each_catalogue_holds_the_texts_of_its_folders(self):
        self.write("Workbench/B.cpp", self.SOURCE.replace("Copy", "Move"))
        self.write_catalogue("<translation>%1 kopieren</translation>")
        self.write_catalogue("<translation>%1 kopieren</translation>", name="workbench_de")
        self.assert_finds("workbench_de.ts: Context: 'Move %1': missing",
                          "workbench_de.ts: Context: 'Copy %1': no longer in the sources")

    def test_in_english_only_what_counts_is_translated(self):
        self.write("Files/A.cpp", 'Translator::translate("Context", "%n files", nullptr, n);\n'
                                  + self.SOURCE)
        self.write_catalogue("<translation><numerusform>%n file</numerusform>"
                             "<numerusform>%n files</numerusform></translation>",
                             source="%n files", name="zorvane_en", numerus=' numerus="yes"')
        self.assertEqual(self.check("check-translations").stdout, "Translations: in order\n")

    def test_finds_sources_that_lupdate_loses_its_way_in(self):
        self.write("Files/A.cpp", "int many = 1'000;\n" + self.SOURCE)
        self.write_catalogue("<translation>%1 kopieren</translation>")
        self.assertIn("Files/A.cpp:1: lupdate takes a digit separator for a quotation mark",
                      self.check("check-translations").stdout)

    def test_finds_catalogues_of_nobody(self):
        self.write_catalogue("<translation>%1 kopieren</translation>", name="other_de")
        self.assert_finds("Translations/other_de.ts: no folders belong to this name")

    def test_a_project_without_catalogues_is_not_in_order(self):
        self.assertEqual(self.check("check-translations").returncode, 1)


class BenchTableTest(ToolTest):
    ROW = {"name": "a/b", "value": 1.5, "peer": 3.0, "ratio": 0.5, "unit": "ms"}

    def list_of(self, *programs):
        names = []
        for i, text in enumerate(programs):
            path = self.write(f"program{i}", f"#!{sys.executable}\n{text}\n")
            path.chmod(0o755)
            names.append(str(path))
        return self.write("list.txt", "\n".join(names) + "\n")

    def run_table(self, *programs, options=()):
        json_file = self.root / "bench.json"
        result = run_tool("bench-table", self.list_of(*programs), "--json", json_file, *options)
        return result, json.loads(json_file.read_text())

    def printing(self, **changes):
        return f"print({json.dumps({**self.ROW, **changes})!r})"

    def test_gathers_the_rows_of_all_programs(self):
        result, rows = self.run_table(self.printing(), self.printing(name="c/d", extra=1))
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual(rows, [self.ROW, {**self.ROW, "name": "c/d"}])
        self.assertRegex(result.stdout, r"a/b +1\.5 +3 +ms +0\.500\n")

    def test_hands_filter_and_options_on(self):
        echo = "import json, sys; " + self.printing().replace(
            "print(", "row = json.loads(") + "; row['name'] = ' '.join(sys.argv[1:]); " \
            "print(json.dumps(row))"
        _, rows = self.run_table(echo, options=("tree/", "--benchmark_repetitions=2"))
        self.assertEqual(rows[0]["name"], "tree/ --benchmark_repetitions=2")

    def test_tells_of_a_program_that_fails_and_keeps_the_other_rows(self):
        result, rows = self.run_table("raise SystemExit(3)", self.printing())
        self.assertEqual(result.returncode, 1)
        self.assertEqual(rows, [self.ROW])
        self.assertIn("ended with status 3", result.stdout)

    def test_tells_when_no_row_was_measured(self):
        result, rows = self.run_table("pass")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(rows, [])
        self.assertIn("No row has such a name.", result.stdout)


if __name__ == "__main__":
    unittest.main()
