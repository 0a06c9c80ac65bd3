"""Exports models as workbooks and checks them with scripts/check-saf.

    check_exports.py COMMAND [FOLDER]

FOLDER is that of the environment variable KELIFC_TEST_DATA by default; if it is not set, the exit
status is 77. Models of releases that cannot be converted are left out. Each workbook is written
twice, and both must have the same bytes.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

CHECK = pathlib.Path(__file__).resolve().parents[3] / "scripts/check-saf"
CANNOT_BE_CONVERTED = 3


def export(command, model, output):
    """The exit status; the second export uses one thread."""
    return subprocess.run([command, "export", "--to", "saf", "--quiet", "--output", output, model],
                          check=False).returncode


def is_valid(command, model, folder):
    first, second, elements = folder / "1.xlsx", folder / "2.xlsx", folder / "elements.json"
    status = export(command, model, first)
    if status == CANNOT_BE_CONVERTED:
        return True
    if status != 0 or export(command, model, second) != 0:
        print(f"{model}: the export failed")
        return False
    if first.read_bytes() != second.read_bytes():
        print(f"{model}: two exports differ")
        return False
    subprocess.run([command, "elements", "--json", "--quiet", "--output", elements, model],
                   check=True)
    checked = subprocess.run([sys.executable, CHECK, "--elements", elements, first], check=False)
    print(f"{model}: status {checked.returncode}", flush=True)
    return checked.returncode == 0


def main():
    command = sys.argv[1]
    data = sys.argv[2] if len(sys.argv) > 2 else os.environ.get("KELIFC_TEST_DATA")
    if not data:
        return 77
    models = sorted(pathlib.Path(data).glob("*.ifc"))
    with tempfile.TemporaryDirectory() as folder:
        results = [is_valid(command, model, pathlib.Path(folder)) for model in models]
    return 0 if results and all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
