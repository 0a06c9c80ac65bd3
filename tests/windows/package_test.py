"""Tests the content of the package for Windows, and that it works where it is unpacked.

    package_test.py WINE CPACK BUILD-FOLDER VERSION
"""

import os
import shutil
import subprocess
import sys
import unittest
import zipfile

WINE, CPACK, BUILD, VERSION = sys.argv[1:5]
NAME = "KelIFC-%s-win64" % VERSION
WANTED = (
    "bin/KelIFC.dll", "bin/kelifc.exe", "lib/libKelIFC.dll.a", "include/kelifc/kelifc.h",
    "include/kelifc/geo/interfaces.h", "include/kelifc/schema/ifc2x3.h",
    "share/KelIFC/kelifc.idl", "share/KelIFC/KelIFC.tlb", "share/KelIFC/examples/house.ifc",
    "share/KelIFC/examples/vbscript/structure.vbs", "share/KelIFC/examples/host/main.cpp",
    "share/doc/KelIFC/windows.md", "lib/cmake/KelIFC/KelIFCConfig.cmake")


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        subprocess.run([CPACK, "-B", BUILD], cwd=BUILD, check=True, capture_output=True)
        cls.folder = os.path.join(BUILD, "unpacked")
        shutil.rmtree(cls.folder, ignore_errors=True)
        with zipfile.ZipFile(os.path.join(BUILD, NAME + ".zip")) as archive:
            cls.names = archive.namelist()
            archive.extractall(cls.folder)

    def test_holds_what_hosts_need(self):
        for name in WANTED:
            self.assertIn(NAME + "/" + name, self.names)

    def test_holds_one_library(self):
        libraries = [n for n in self.names if n.lower().endswith(".dll")]
        self.assertEqual(libraries, [NAME + "/bin/KelIFC.dll"])

    def test_command_runs_where_it_is_unpacked(self):
        environment = dict(os.environ, WINEPREFIX=os.path.join(BUILD, "wine"), WINEDEBUG="-all")
        root = os.path.join(self.folder, NAME)
        model = os.path.join(root, "share", "KelIFC", "examples", "house.ifc")
        run = subprocess.run(
            [WINE, os.path.join(root, "bin", "kelifc.exe"), "structure", "Z:" + model],
            env=environment, capture_output=True, timeout=300)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn(b"Ground floor", run.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
