#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The life of an installed Rook: an older version is installed and used, upgraded, used, and removed.

The package goes to a folder with a package database of its own. Programs run from there with the
libraries of this machine; what names /usr is checked, then pointed at the folder.
"""
import os
import re
import stat
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.processes import wait_until  # noqa: E402

PACKAGE = Path(os.environ["ROOK_PACKAGE"]).resolve()
VERSION = PACKAGE.name.split("_")[1]
OLDER = "0.0.9"
AS_ROOT = [] if os.geteuid() == 0 else ["fakeroot", "--"]
CALL = ["gdbus", "call", "--session", "--timeout", "60", "--dest", "org.rook.Rook", "--object-path", "/org/rook/Rook"]
BUS = ["gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/org/freedesktop/DBus"]


def run(*arguments: object, environment: dict[str, str] | None = None, check: bool = True) -> str:
    result = subprocess.run([str(argument) for argument in arguments], env=environment, capture_output=True, text=True,
                            timeout=120)
    if check and result.returncode != 0:
        raise AssertionError(f"{arguments}: {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout + result.stderr


def older_package(directory: Path) -> Path:
    """The same package under an older number."""
    content = directory / "older"
    run("dpkg-deb", "--raw-extract", PACKAGE, content)
    control = content / "DEBIAN/control"
    control.write_text(control.read_text().replace(f"Version: {VERSION}\n", f"Version: {OLDER}\n"))
    run("dpkg-deb", "--root-owner-group", "-Znone", "--build", content, directory / "older.deb")
    return directory / "older.deb"


class InstalledPackage(unittest.TestCase):
    def setUp(self) -> None:
        self.desktop = Desktop("openbox", "two")
        self.addCleanup(self.desktop.close)
        self.session = self.desktop.session
        self.root = self.session.work.path / "root"
        for name in ("info", "updates"):
            (self.root / "var/lib/dpkg" / name).mkdir(parents=True)
        for name in ("status", "available"):
            (self.root / "var/lib/dpkg" / name).touch()
        self.environment = self.session.environment | {
            "PATH": f"{self.root}/usr/bin:{os.environ['PATH']}",
            "XDG_DATA_DIRS": f"{self.root}/usr/share:/usr/local/share:/usr/share"}
        os.umask(0o022)

    def dpkg(self, *arguments: object) -> None:
        # Small machines are told to install no manual pages; that is not what is tested here.
        run(*AS_ROOT, "dpkg", f"--root={self.root}", "--path-include=/usr/*", "--force-depends", "--force-not-root",
            *arguments,
            environment={**os.environ, "DEBIAN_FRONTEND": "noninteractive",
                         "PATH": f"{os.environ['PATH']}:/usr/sbin:/sbin"})

    def rook(self, *arguments: str, check: bool = True) -> str:
        return run("rook", *arguments, environment=self.environment, check=check)

    def activate_through_bus(self) -> None:
        """Lets the private bus find what the package tells every bus."""
        installed = (self.root / "usr/share/dbus-1/services/org.rook.Rook.service").read_text()
        self.assertIn("\nExec=/usr/bin/rook\n", installed)
        unit = re.search(r"^SystemdService=(.*)$", installed, re.MULTILINE)
        self.assertIn("ExecStart=/usr/bin/rook\n", (self.root / "usr/lib/systemd/user" / unit[1]).read_text())
        relocated = installed.replace("/usr/bin", f"{self.root}/usr/bin").replace(unit[0], "")
        (self.session.work.path / "services/org.rook.Rook.service").write_text(relocated)
        run(*BUS, "--method", "org.freedesktop.DBus.ReloadConfig", environment=self.environment)

    def stored_windows(self) -> int:
        return int(re.search(r'"storedWindows": (\d+)', self.rook("status", "--json"))[1])

    def folder(self, name: str) -> Path:
        return self.session.data / "Rook" / name

    def check_that_only_the_owner_can_read(self) -> None:
        for directory in (self.session.data / "Rook", self.session.config / "Rook"):
            files = [file for file in directory.rglob("*") if file.is_file()]
            self.assertTrue(files, directory)
            for file in files:
                self.assertFalse(stat.S_IMODE(file.stat().st_mode) & 0o077, f"others can read {file}")

    def check_that_questions_start_nothing(self) -> None:
        for command in ("status", "list", "windows", "plan", "quit"):
            with self.subTest(command):
                result = subprocess.run(["rook", command], env=self.environment, capture_output=True, timeout=60)
                self.assertEqual((result.returncode, result.stdout), (3, b""))
        self.assertIn("false", run(*BUS, "--method", "org.freedesktop.DBus.NameHasOwner", "org.rook.Rook",
                                   environment=self.environment))

    def check_actions(self) -> None:
        """What a panel offers on the launcher does its work though Rook does not run yet."""
        entry = (self.root / "usr/share/applications/org.rook.Rook.desktop").read_text()
        actions = re.findall(r"^\[Desktop Action (\w+)\]\n(?:Name.*\n)+Exec=(.+)$", entry, re.MULTILINE)
        self.assertEqual(f"Actions={';'.join(name for name, _ in actions)};", re.search("^Actions=.*$", entry, re.M)[0])
        windows = {"StoredWindows": "Stored Windows", "Preferences": "Preferences"}
        for name, command in actions:
            with self.subTest(name):
                run("sh", "-c", command, environment=self.environment)
                if name in windows:
                    self.session.run("xdotool", "search", "--sync", "--onlyvisible", "--name", windows[name])
                self.rook("quit")

    def check_pages(self) -> None:
        """The manual page and every shell know what --help knows."""
        share = self.root / "usr/share"
        commands = re.findall(r"^  ([a-z]\S+) ", self.rook("--help").partition("Subcommands:")[2], re.MULTILINE)
        self.assertIn("store-all", commands)
        manual = run("man", "--local-file", share / "man/man1/rook.1.gz",
                     environment={**os.environ, "MANPAGER": "cat", "MANWIDTH": "80", "LC_ALL": "C.UTF-8"})
        bash = self.bash_completions()
        fish = run("fish", "-c", f"source {share}/fish/vendor_completions.d/rook.fish; complete -C 'rook '")
        zsh = (share / "zsh/vendor-completions/_rook").read_text()
        for command in commands:
            with self.subTest(command):
                self.assertRegex(manual, rf"(?m)^ +{command}\b")
                self.assertIn(command, bash)
                self.assertRegex(fish, rf"(?m)^{command}\t")
                self.assertIn(f"'{command}:", zsh)
        self.assertIn("xterm", " ".join(self.bash_completions("restore-app")).lower())
        self.assertEqual([words.count("--json") for words in (self.bash_completions("list"),
                                                              self.bash_completions("list", "--json"))], [1, 0])

    def bash_completions(self, *words: str) -> list[str]:
        script = self.root / "usr/share/bash-completion/completions/rook"
        return run("bash", "-c", f". {script}; COMP_WORDS=(rook {' '.join(words)} ''); COMP_CWORD={len(words) + 1}; _rook;"
                   'printf "%s\\n" "${COMPREPLY[@]}"', environment=self.environment).split()

    def test_life_of_an_installation(self) -> None:
        self.dpkg("--install", older_package(self.session.work.path))
        self.desktop.applications.open("xterm", "first shell")
        self.session.start("gio", ["gio", "launch", f"{self.root}/usr/share/applications/org.rook.Rook.desktop"],
                           environment=self.environment)
        wait_until(lambda: "storedWindows" in self.rook("status", "--json", check=False), "the started program", 20.0)
        self.rook("store-all")
        stored = self.stored_windows()
        self.assertGreater(stored, 0)
        self.assertTrue(list(self.folder("Screenshots").glob("*.png")))
        self.rook("quit")
        self.assertFalse(list(self.folder("Backups").glob("*")))
        settings = self.session.config / "Rook/settings.ini"
        settings.write_text(settings.read_text().replace(f"RookVersion={VERSION}", f"RookVersion={OLDER}")
                            + "SuppressStoreAllAlert=true\nSuppressStoreAllSuccess=true\n")

        self.dpkg("--install", PACKAGE)
        self.assertEqual(self.rook("--version").strip(), f"rook {VERSION}")
        self.activate_through_bus()
        self.check_that_questions_start_nothing()
        answer = run(*CALL, "--method", "org.rook.Rook1.RestoreAll", environment=self.environment)
        self.assertEqual(answer.strip(), "(true,)")
        self.assertEqual(self.stored_windows(), stored)
        self.assertEqual(len(list(self.folder("Backups").glob(f"Stored Windows {OLDER} (*).sqlite"))), 1)
        self.check_pages()
        self.check_that_only_the_owner_can_read()
        self.rook("quit")
        self.check_actions()

        self.dpkg("--purge", "rook")
        database = self.root / "var/lib/dpkg"
        left = [path for path in self.root.rglob("*") if database not in path.parents
                and (path.is_symlink() or not path.is_dir() or not any(path.iterdir()))]
        self.assertEqual(left, [])
        self.assertTrue(self.folder("Stored Windows.sqlite").exists(), "the user's data is not the package's")


if __name__ == "__main__":
    unittest.main(verbosity=2)
