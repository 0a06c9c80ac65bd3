"""Tests the library on Windows: its entries in the registry, script hosts, a compiled host, and the
command.

    hosts_test.py WINE KelIFC.dll kelifc.exe early_bound_host.exe EXAMPLES PREFIX
"""

import json
import os
import shutil
import subprocess
import sys
import time
import unittest

WINE, DLL, COMMAND, HOST, EXAMPLES, PREFIX = sys.argv[1:7]
HERE = os.path.dirname(os.path.abspath(__file__))
CONSOLE = "cp437"  # the code page in which a script writes
CONVERTIBLE = ("house", "office", "barn", "hall")
ENVIRONMENT = dict(os.environ, WINEPREFIX=PREFIX, WINEDEBUG="-all", LANG="C.UTF-8")


def wine(*arguments, check=True):
    """Runs a program and returns the result. A failure ends the test, unless `check` is false."""
    run = subprocess.run([WINE, *arguments], env=ENVIRONMENT, capture_output=True, timeout=300)
    if check and run.returncode != 0:
        raise AssertionError("%s: status %d\n%s%s" % (
            arguments, run.returncode, run.stdout.decode("latin1"), run.stderr.decode("latin1")))
    return run


def windows_path(path):
    return "Z:" + os.path.abspath(path).replace("/", "\\")


def script(name, *arguments, check=True):
    return wine("cscript", "//nologo", windows_path(name), *arguments, check=check)


def example(name):
    return windows_path(os.path.join(EXAMPLES, name + ".ifc"))


def registry():
    """Returns the entries of classes and interfaces in the registry: the set of values of each key."""
    target = os.path.join(PREFIX, "export.reg")
    wine("regedit", "/E", windows_path(target), "HKEY_LOCAL_MACHINE\\Software\\Classes")
    keys = {}
    with open(target, encoding="utf-16") as file:
        for line in filter(None, map(str.rstrip, file)):
            if line.startswith("["):
                values = keys.setdefault(line.strip("[]").split("\\Classes\\")[-1], set())
            elif keys:
                values.add(line)
    return keys


def settled_registry():
    """Returns the same after the system has made its own entries, which it does in the background."""
    last = registry()
    for _ in range(30):
        time.sleep(1)
        now = registry()
        if now == last:
            return now
        last = now
    raise AssertionError("the registry keeps changing")


def differences(wanted, given, path=""):
    """Returns where two structures differ. Numbers are compared to the digits that a script shows."""
    if isinstance(wanted, dict) and isinstance(given, dict):
        if list(wanted) != list(given):
            return ["%s: members %s, not %s" % (path, list(given), list(wanted))]
        return [d for k in wanted for d in differences(wanted[k], given[k], path + "." + k)]
    if isinstance(wanted, list) and isinstance(given, list):
        if len(wanted) != len(given):
            return ["%s: %d items, not %d" % (path, len(given), len(wanted))]
        return [d for i, (a, b) in enumerate(zip(wanted, given))
                for d in differences(a, b, "%s[%d]" % (path, i))]
    if isinstance(wanted, float) and isinstance(given, (int, float)):
        if abs(wanted - given) <= 1e-13 * max(1.0, abs(wanted)):
            return []
    return [] if wanted == given else ["%s: %r, not %r" % (path, given, wanted)]


class Hosts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(PREFIX, ignore_errors=True)
        wine("wineboot", "-i", check=False)
        # The name of the folder of the library contains a blank.
        cls.dll = os.path.join(PREFIX, "a folder", "KelIFC.dll")
        os.makedirs(os.path.dirname(cls.dll))
        shutil.copy(DLL, cls.dll)
        # The script host makes entries of its own at its first run.
        empty = os.path.join(PREFIX, "empty.vbs")
        with open(empty, "w", encoding="ascii") as file:
            file.write("WScript.Quit 0\n")
        script(empty)
        cls.untouched = settled_registry()
        wine("regsvr32", "/s", windows_path(cls.dll))

    @classmethod
    def tearDownClass(cls):
        subprocess.run([WINE, "wineboot", "-k"], env=ENVIRONMENT, capture_output=True)

    def test_command_prints_the_same_as_a_script(self):
        for name in CONVERTIBLE:
            with self.subTest(name):
                path = example(name)
                printed = wine(COMMAND, "structure", "--json", path).stdout
                wanted = json.loads(printed.decode("utf-8"))
                wanted.pop("release")
                shown = script(os.path.join(EXAMPLES, "vbscript", "structure.vbs"), path).stdout
                given = json.loads(shown.decode(CONSOLE))
                self.assertEqual(differences(wanted, given), [])
                self.assertTrue(wanted["storeys"] and wanted["sections"])

    def test_script_walks_by_each_way_and_sees_errors(self):
        for name in ("house", "hall"):
            with self.subTest(name):
                for walks in ("walks.vbs", "walks.js"):
                    run = script(os.path.join(HERE, walks), example(name), example("pavilion"),
                                 check=False)
                    self.assertEqual((run.returncode, run.stdout.decode("latin1")), (0, "The walk has ended.\r\n"), walks)

    def test_script_tells_of_a_file_that_is_no_model(self):
        run = script(os.path.join(EXAMPLES, "vbscript", "structure.vbs"),
                     windows_path(__file__), check=False)
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"is not an IFC file that can be read.", run.stdout)

    def test_compiled_host_reaches_all_interfaces(self):
        printed = wine(HOST, example("house")).stdout.decode().split("\r\n")
        self.assertEqual(printed[0], "40 classes with 67 interfaces")
        self.assertEqual(printed[1:3], ["6 walls", "South wall"])

    def test_registry_has_each_class(self):
        new = {k: v for k, v in registry().items() if k not in self.untouched}
        servers = [v for k, v in new.items() if k.endswith("InprocServer32")]
        self.assertEqual(len(servers), 40)
        for values in servers:
            self.assertIn('"ThreadingModel"="Both"', values)
            self.assertTrue(any("a folder\\\\KelIFC.dll" in v for v in values), values)
        clsid = '@="{39A9D627-0D20-4A20-9A95-8938494CC566}"'
        self.assertEqual(new["KelIFC.IFCServer.1\\CLSID"], {clsid})
        self.assertEqual(new["KelIFC.IFCServer\\CLSID"], {clsid})
        self.assertEqual(new["KelIFC.IFCServer\\CurVer"], {'@="KelIFC.IFCServer.1"'})

    def changed_keys(self):
        now = registry()
        return sorted(k for k in now.keys() | self.untouched.keys()
                      if now.get(k) != self.untouched.get(k))

    def test_zz_unregistering_leaves_the_registry_as_it_was(self):
        wine("regsvr32", "/s", "/u", windows_path(self.dll))
        self.assertEqual(self.changed_keys(), [])
        wine("regsvr32", "/s", "/u", windows_path(self.dll))
        self.assertEqual(self.changed_keys(), [])
        run = script(os.path.join(EXAMPLES, "vbscript", "structure.vbs"), example("house"),
                     check=False)
        self.assertEqual(run.stdout, b"")
        wine("regsvr32", "/s", windows_path(self.dll))

    def test_command_works_without_the_registry(self):
        for arguments, status in ((("info", example("shed")), 0), (("structure", example("shed")), 3),
                                  (("info", "missing.ifc"), 1), (("structure",), 64),
                                  (("--version",), 0)):
            self.assertEqual(wine(COMMAND, *arguments, check=False).returncode, status, arguments)
        saved = os.path.join(PREFIX, "saved.ifc")
        wine(COMMAND, "save", example("hall"), windows_path(saved))
        first = json.loads(wine(COMMAND, "structure", "--json", example("hall")).stdout)
        again = json.loads(wine(COMMAND, "structure", "--json", windows_path(saved)).stdout)
        first.pop("file")
        again.pop("file")
        self.assertEqual(differences(first, again), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
