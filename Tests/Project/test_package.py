"""Installs the library and builds on what was installed, as other projects do.

Takes the build folder to install from, and a folder for what comes of it.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

SOURCES = pathlib.Path(__file__).resolve().parents[2]
BUILD, WORK = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
PREFIX = WORK / "prefix"

ENVIRONMENT = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}


def run(*command, **environment):
    result = subprocess.run(list(map(str, command)), text=True, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, env={**ENVIRONMENT, **environment},
                            check=False)
    if result.returncode != 0:
        raise AssertionError(f"{command[:3]} ended with {result.returncode}:\n{result.stdout}")
    return result.stdout


def read(name):
    return (SOURCES / name).read_text(encoding="utf-8")


def configure(source, name, *options):
    run("cmake", "-S", source, "-B", WORK / name, "-G", "Ninja",
        f"-DCMAKE_PREFIX_PATH={PREFIX}", *options)
    return WORK / name


def installed_headers():
    """As they are included."""
    return sorted(path.relative_to(folder).as_posix() for folder in (PREFIX / "include").iterdir()
                  for path in folder.rglob("*.h"))


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        run("cmake", "--install", BUILD, "--prefix", PREFIX)

    def test_another_project_builds_on_the_package(self):
        build = configure(SOURCES / "Tests/Project/Consumer", "consumer")
        run("cmake", "--build", build)
        self.assertEqual(run(build / "consumer"), "Part 7 1\n")

    def test_a_project_builds_it_as_a_part_of_its_own(self):
        build = configure(SOURCES / "Tests/Project/Parent", "parent",
                          f"-DZORVANE_SOURCES={SOURCES}")
        run("cmake", "--build", build)
        self.assertEqual(run(build / "parent"), "Part 1 1\n")
        # Only the two libraries are built, in a folder of their own, and no install rule is added.
        outputs = {path.name for path in build.rglob("*") if path.suffix == ".a"}
        self.assertEqual(outputs, {"libZorvaneHost.a", "libZorvaneUiTools.a"})
        folders = {path.name for path in build.iterdir() if path.is_dir()}
        self.assertEqual(folders - {"CMakeFiles", "parent_autogen"}, {"zorvane"})
        targets = run("ninja", "-C", build, "-t", "targets", "all")
        self.assertNotRegex(targets, r"workbench|Test_|Benchmark_")
        run("cmake", "--install", build, "--prefix", WORK / "parent-prefix")
        self.assertFalse((WORK / "parent-prefix").exists())

    def test_a_program_loads_no_other_minor_version(self):
        version = re.search(r"project\(.* VERSION (\d+\.\d+)\.", read("CMakeLists.txt"))[1]
        for name in ("ZorvaneHost", "ZorvaneUiTools"):
            library, = PREFIX.glob(f"lib*/**/lib{name}.so")
            soname = re.search(r"\(SONAME\).*\[(.*)\]", run("readelf", "-d", library))[1]
            self.assertEqual(soname, f"lib{name}.so.{version}")

    def test_installed_headers_need_nothing_that_is_not_installed(self):
        headers = installed_headers()
        self.assertIn("TreeModel/ModelItemToZVTreeModelSyncronizer.h", headers)
        project = WORK / "headers-source"
        project.mkdir()
        listing = (SOURCES / "Tests/Project/Consumer/CMakeLists.txt").read_text()
        (project / "CMakeLists.txt").write_text(listing)
        lines = [f'#include "{header}"' for header in headers] + ["int main() {}", ""]
        (project / "Main.cpp").write_text("\n".join(lines))
        run("cmake", "--build", configure(project, "headers"))

    def test_a_class_of_an_installed_header_can_be_linked(self):
        for header in installed_headers():
            if (SOURCES / header).with_suffix(".cpp").exists():
                with self.subTest(header=header):
                    self.assertRegex((SOURCES / header).read_text(),
                                     r"\bZORVANE_(HOST|UITOOLS)_EXPORT\b")

    def test_no_path_of_the_sources_is_installed(self):
        for path in PREFIX.rglob("*.cmake"):
            with self.subTest(path=path):
                self.assertNotIn(str(SOURCES), path.read_text().replace(str(PREFIX), ""))

    def test_the_workbench_is_installed_with_its_samples(self):
        samples = PREFIX / "share/zorvane-workbench/samples"
        for name in ("drawn-cup/drawn-cup.dsg", "drawn-cup/geometry/cup.stl",
                     "door-panel/door-panel.dsg"):
            self.assertTrue((samples / name).is_file(), name)
        self.assertIn("Workbench", run(PREFIX / "bin/workbench", "--version"))

    def test_the_library_builds_on_a_host_from_a_package(self):
        build = configure(SOURCES, "library", "-DZORVANE_HOST_FROM_PACKAGE=ON",
                          "-DZORVANE_BUILD_TESTS=OFF", "-DZORVANE_BUILD_WORKBENCH=OFF")
        item = "TreeModel/CMakeFiles/ZorvaneUiTools_TreeModel.dir/ModelItem.cpp.o"
        # A compiler cache may answer with the file names of another build.
        run("cmake", "--build", build, "--target", item, CCACHE_DISABLE="1")
        headers = run("ninja", "-C", build, "-t", "deps", item).split()
        of_host = {header for header in headers if "/Host/" in header}
        self.assertIn(f"{PREFIX}/include/zorvane-host/Host/Identifiers/IDCombiner.h", of_host)
        self.assertEqual([name for name in of_host if name.startswith(f"{SOURCES}/Host/")], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
