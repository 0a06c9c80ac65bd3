"""Builds the package kelifc with CMake. The wheel contains the library.

The environment variable KELIFC_CMAKE_ARGUMENTS has further arguments for CMake. If
KELIFC_BUILD_FOLDER names a folder that CMake has configured with the module, and with "." as
KELIFC_PYTHON_FOLDER, that build is used instead of a new one.
"""

import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent
VERSION = re.search(r"project\(KelIFC VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]


class CMakeBuild(build_ext):
    """Builds and installs the CMake component `python` into the folder of the wheel."""

    def build_extension(self, extension: Extension) -> None:
        target = Path(self.get_ext_fullpath(extension.name)).resolve().parents[1]
        configured = os.environ.get("KELIFC_BUILD_FOLDER")
        build = Path(configured or self.build_temp).resolve()
        if not configured:
            self.configure(build)
        jobs = str(os.cpu_count() or 1)
        self.run_cmake("--build", build, "--parallel", jobs, "--target", "kelifc_python_package")
        self.run_cmake("--install", build, "--prefix", target, "--component", "python", "--strip")

    def configure(self, build: Path) -> None:
        options = [
            "-DCMAKE_BUILD_TYPE=Release",
            "-DKELIFC_BUILD_PYTHON=ON",
            "-DBUILD_TESTING=OFF",
            "-DKELIFC_INSTALL=OFF",  # only the component of the module is installed
            f"-DPython3_EXECUTABLE={sys.executable}",
            "-DKELIFC_PYTHON_FOLDER=.",
            *shlex.split(os.environ.get("KELIFC_CMAKE_ARGUMENTS", "")),
        ]
        self.run_cmake("-S", ROOT, "-B", build, "-G", "Ninja", *options)

    def run_cmake(self, *arguments: object) -> None:
        subprocess.run(["cmake", *map(str, arguments)], check=True)


setup(
    version=VERSION,
    packages=[],
    ext_modules=[Extension("kelifc._kelifc", sources=[])],
    cmdclass={"build_ext": CMakeBuild},
)
