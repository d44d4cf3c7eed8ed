"""The files of the project, for the checks beside this module."""

import pathlib
import subprocess

OWN_ROOT = pathlib.Path(__file__).resolve().parent.parent
SKIPPED_FOLDERS = {".git", ".cache", "build", "__pycache__"}


def _from_git(root):
    """Tracked files and new ones that nothing ignores; None where git cannot tell."""
    command = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    try:
        top = subprocess.run(["git", "rev-parse", "--show-toplevel"], cwd=root, check=True,
                             capture_output=True, text=True).stdout.strip()
        if pathlib.Path(top).resolve() != root.resolve():
            return None
        listed = subprocess.run(command, cwd=root, check=True, capture_output=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return None
    return [name.decode() for name in listed.split(b"\0") if name]


def _from_folders(root):
    for path in root.rglob("*"):
        relative = path.relative_to(root)
        if path.is_file() and not SKIPPED_FOLDERS.intersection(relative.parts):
            yield relative.as_posix()


def project_files(root, *endings):
    """Sorted paths below the root, with forward slashes, of files with one of the endings."""
    names = _from_git(root)
    if names is None:
        names = _from_folders(root)
    return sorted(name for name in set(names)
                  if (not endings or name.endswith(endings)) and (root / name).is_file())


def add_root_option(parser):
    parser.add_argument("--root", type=pathlib.Path, default=OWN_ROOT,
                        help="folder to check instead of this project's")


def report(findings, what):
    """Prints the findings, or that all is well; returns the status to end with."""
    for finding in findings:
        print(finding)
    print(f"{what}: {len(findings)} to mend" if findings else f"{what}: in order")
    return 1 if findings else 0
