"""Packs the Windows program, unpacks it elsewhere, and takes its tour in an empty Wine prefix.

Takes the build folder, and a folder for what comes of it.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest
import zipfile

SOURCES = pathlib.Path(__file__).resolve().parents[2]
BUILD, WORK = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
PREFIX = WORK / "wine/prefix"
# Nothing of the build is in reach: neither its Wine prefix nor the folders of its libraries.
ENVIRONMENT = {**{name: value for name, value in os.environ.items()
                  if name not in ("WINEPATH", "QT_PLUGIN_PATH")},
               "ZORVANE_WINEPREFIX": str(PREFIX), "ZORVANE_WINE_BARE": "1",
               "ZORVANE_WINE_IS_UP": "", "QT_QPA_PLATFORM": "windows"}


def run(*command, **options):
    return subprocess.run(list(map(str, command)), text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, **options)


def wine(*command):
    return run(SOURCES / "Tools/wine", *command, env=ENVIRONMENT, timeout=400)


class WindowsPackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        WORK.mkdir(parents=True)
        packed = run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", WORK / "zip")
        if packed.returncode != 0:
            raise AssertionError(packed.stdout)
        archive, = (WORK / "zip").glob("*.zip")
        with zipfile.ZipFile(archive) as content:
            content.extractall(WORK / "Program Files")
        cls.folder, = (WORK / "Program Files").iterdir()

    @classmethod
    def tearDownClass(cls):
        wine("--stop")
        shutil.rmtree(WORK / "wine", ignore_errors=True)

    def test_holds_the_program_and_what_it_needs(self):
        names = {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*")}
        for name in ("bin/workbench.exe", "bin/Qt5Core.dll", "bin/platforms/qwindows.dll",
                     "bin/libstdc++-6.dll", "bin/libassimp-5.dll", "README.md",
                     "samples/drawn-cup/drawn-cup.dsg", "samples/door-panel/door-panel.dsg",
                     "share/doc/zorvane-uitools/Workbench.md", "licenses/Qt.txt",
                     "licenses/assimp.txt", "licenses/GCC.txt", "licenses/MinGW-w64.txt"):
            with self.subTest(name):
                self.assertIn(name, names)
        self.assertFalse([name for name in names if "Test" in name])

    def test_starts_in_an_empty_prefix_and_shows_everything(self):
        wine("--stop")
        shutil.rmtree(PREFIX, ignore_errors=True)
        tour = wine(self.folder / "bin/workbench.exe", "--tour", WORK / "tour")
        self.assertEqual(tour.returncode, 0, tour.stdout)
        self.assertGreater(len(list((WORK / "tour").glob("*.png"))), 15)

    def test_has_its_libraries_from_the_zip_only(self):
        for name in ("Qt5Widgets.dll", "libassimp-5.dll", "libstdc++-6.dll"):
            with self.subTest(name):
                path = self.folder / "bin" / name
                aside = path.rename(WORK / name)
                try:
                    start = wine(self.folder / "bin/workbench.exe", "--tour", WORK / "no-tour")
                finally:
                    aside.rename(path)
                self.assertNotEqual(start.returncode, 0, start.stdout)
                self.assertFalse((WORK / "no-tour").exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
