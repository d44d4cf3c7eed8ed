"""Tests of Tools/setup on systems that are made up of the commands each test names."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "Tools"


def packages_of(name):
    lines = (TOOLS / name).read_text().splitlines()
    return [line.strip() for line in lines if line.strip() and not line.startswith("#")]


PACKAGES = packages_of("packages.txt")
# What every system has.
COMMON = ("bash", "dirname", "env", "grep", "mktemp", "rm", "sed", "tail")
BUILD = ("g++", "cmake", "ninja", "python3")


class SetupTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.bin = pathlib.Path(folder.name)
        self.calls = self.bin / "calls.txt"
        for name in COMMON:
            (self.bin / name).symlink_to(shutil.which(name))

    def command(self, name, text="exit 0"):
        path = self.bin / name
        path.write_text(f"#!{shutil.which('bash')}\n{text}\n")
        path.chmod(0o755)

    def debian(self, installed, apt="exit 0"):
        """A system whose dpkg knows the packages installed, and of which apt keeps a record."""
        lines = "\n".join(f"installed {name}" for name in installed)
        lines += "\n" + "\n".join(f"config-files {name}" for name in PACKAGES
                                  if name not in installed)
        self.command("dpkg-query", f"echo '{lines}'; exit 1")
        self.command("apt-get", f"echo \"$DEBIAN_FRONTEND apt-get $*\" >>{self.calls}\n{apt}")

    def user(self, number):
        self.command("id", f"echo {number}")

    def run_setup(self, *lists):
        return subprocess.run([TOOLS / "setup", *lists], env={"PATH": str(self.bin), "CI": "true"},
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)

    def recorded(self):
        return self.calls.read_text().splitlines() if self.calls.exists() else []

    def test_says_nothing_when_all_is_there(self):
        self.debian(PACKAGES)
        result = self.run_setup()
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        self.assertEqual(self.recorded(), [])

    def test_installs_only_what_is_missing(self):
        self.debian([name for name in PACKAGES if name not in ("cmake", "fontconfig")])
        self.user(0)
        result = self.run_setup()
        self.assertEqual(result.returncode, 0, result.stderr)
        update, install = self.recorded()
        self.assertTrue(update.startswith("noninteractive apt-get ") and update.endswith(" update"))
        self.assertTrue(install.endswith(" install --no-install-recommends cmake fontconfig"))

    def test_installs_what_a_list_names_only_for_it(self):
        self.debian(PACKAGES)
        self.user(0)
        self.assertEqual(self.run_setup().returncode, 0)
        self.assertEqual(self.recorded(), [])
        for names in (["test"], ["bench"], ["checks"], ["test", "windows"]):
            result = self.run_setup(*names)
            self.assertEqual(result.returncode, 0, result.stderr)
            wanted = self.recorded()[-1].rpartition("--no-install-recommends ")[2].split()
            lists = [packages_of(f"packages-{name}.txt") for name in names]
            self.assertEqual(wanted, sum(lists, []))
            self.assertEqual(sorted(set(wanted) & set(PACKAGES)), [])

    def test_installs_once_what_two_lists_name(self):
        self.debian(PACKAGES)
        self.user(0)
        self.assertEqual(self.run_setup("test", "bench").returncode, 0)
        wanted = self.recorded()[-1].rpartition("--no-install-recommends ")[2].split()
        self.assertEqual(len(wanted), len(set(wanted)))
        self.assertIn("valgrind", wanted)

    def test_uses_sudo_when_not_root(self):
        self.debian(PACKAGES[1:])
        self.user(1000)
        self.command("sudo", f'[ "$1" = -n ] && shift\necho sudo >>{self.calls}\nexec env "$@"')
        self.command("true")
        self.assertEqual(self.run_setup().returncode, 0)
        self.assertEqual(self.recorded().count("sudo"), 3)

    def check_goes_on(self, because):
        for name in BUILD:
            self.command(name)
        result = self.run_setup()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("Wanted, by their Debian names: ", result.stderr)
        self.assertIn(because, result.stderr)
        return result

    def test_goes_on_without_root_and_sudo(self):
        self.debian(PACKAGES[1:])
        self.user(1000)
        result = self.check_goes_on("takes root or sudo")
        self.assertIn(f"names: {PACKAGES[0]}\n", result.stderr)
        self.assertEqual(self.recorded(), [])

    def test_goes_on_when_installing_fails_and_says_why(self):
        self.debian(PACKAGES[1:], apt="echo 'E: no such archive'; exit 100")
        self.user(0)
        result = self.check_goes_on("could not be installed")
        self.assertIn("E: no such archive", result.stderr)

    def test_goes_on_without_apt(self):
        result = self.check_goes_on("no apt")
        self.assertIn("names: " + " ".join(PACKAGES), result.stderr)

    def test_ends_with_the_names_of_what_it_cannot_do_without(self):
        self.command("g++")
        self.command("python3")
        result = self.run_setup()
        self.assertEqual(result.returncode, 1)
        self.assertIn("cannot be built here, missing: cmake 3.22 or newer, ninja.\n", result.stderr)

    def test_the_list_names_each_package_once(self):
        self.assertEqual(len(PACKAGES), len(set(PACKAGES)))
        self.assertNotIn(os.sep, "".join(PACKAGES))


if __name__ == "__main__":
    unittest.main()
