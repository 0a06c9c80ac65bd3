#!/usr/bin/env python3
"""Measures loads, saves, conversions and resets of whole models, and prints them as a table.

    python3 bench/measure.py [--growth] BUILD WORK [MODEL.ifc...]

BUILD is the build folder of the preset release. Without MODEL arguments the script makes models in
the folder WORK and keeps them for the next run; with MODEL arguments it measures these instead. If
the environment variable KELIFC_TEST_DATA names a folder of real models, the script also copies each
of them that has 2 MB or more until it has 200 MB, and measures the copies. --growth measures models
of 10, 100 and 1,000 MB: a made one, and the first of the real ones.
Times are processor time, the median of five runs. Memory is the peak of `kelifc info`, `kelifc
save` and `kelifc structure`, each in a process of its own. Nothing else should run meanwhile.

The second table has the processor times in byte loops: a byte loop counts the `;` outside of quotes
in the same file in memory. It takes the shortest of five runs, and has the page faults, too. Unlike
the first table, it measures in new processes, where the system has to provide all memory. Its first
row has the targets, which hold for the copies of real models.
"""

import argparse
import collections
import json
import os
import statistics
import subprocess
import sys

from amplify_model import amplify

HERE = os.path.dirname(os.path.abspath(__file__))
REPETITIONS = 5
MEGABYTE = 1e6
WORKS = ("LoadWholeModel", "ResetWholeModel", "SaveWholeModel", "ConvertWholeModel")
# In byte loops.
TARGETS = {"load": 6.2, "conversion": 0.5, "building": 8.5, "save": 3.5, "reset": 0.6}
LEAST_REAL = 2 * MEGABYTE
REAL_MEGABYTES = 200
GROWTH = (10, 100, 1000)  # megabytes
LOOKUPS = ("FindInstance", "GetItemByNumber", "GetItemByNumberAnywhere")

Made = collections.namedtuple("Made", "release order megabytes")
MADE = ([Made("2x3", "ascending", size) for size in (10, 50, 200)] +
        [Made("2x3", "shuffled", size) for size in (50, 200)] +
        [Made("2x2", "ascending", size) for size in (50, 200)])


def make(model, folder):
    """Makes a model unless the folder already has it, and returns its path."""
    path = os.path.join(folder, f"{model.release}-{model.order}-{model.megabytes}.ifc")
    if not os.path.exists(path):
        options = ["--shuffled"] if model.order == "shuffled" else []
        subprocess.run([sys.executable, os.path.join(HERE, "make_model.py"), "--megabytes",
                        str(model.megabytes), "--release", model.release, *options, path + ".part"],
                       check=True)
        os.rename(path + ".part", path)
    return path


def real_models():
    """Returns the paths of the real models that are large enough to be copied."""
    folder = os.environ.get("KELIFC_TEST_DATA")
    if not folder:
        return []
    paths = sorted(os.path.join(folder, name) for name in os.listdir(folder)
                   if name.endswith(".ifc"))
    return [path for path in paths if os.path.getsize(path) >= LEAST_REAL]


def copies_of(model, megabytes, folder):
    """Copies a real model unless the folder already has the copies, and returns their path."""
    path = os.path.join(folder, f"{name_of(model)}-{megabytes}.ifc")
    if not os.path.exists(path):
        amplify(model, path + ".part", int(megabytes * MEGABYTE))
        os.rename(path + ".part", path)
    return path


def models_to_measure(growth, folder):
    real = real_models()
    if growth:
        return ([make(Made("2x3", "ascending", size), folder) for size in GROWTH] +
                [copies_of(model, size, folder) for model in real[:1] for size in GROWTH])
    return ([make(model, folder) for model in MADE] +
            [copies_of(model, REAL_MEGABYTES, folder) for model in real])


def run_benchmarks(build, path):
    """Returns the median of each benchmark: in milliseconds for WORKS, nanoseconds for LOOKUPS."""
    names = "|".join(f"^{name}" for name in WORKS + LOOKUPS)
    done = subprocess.run(
        [os.path.join(build, "bench", "kelifc_bench"), f"--benchmark_filter={names}",
         f"--benchmark_repetitions={REPETITIONS}", "--benchmark_report_aggregates_only=true",
         "--benchmark_format=json"],
        env={**os.environ, "KELIFC_BENCH_MODEL": path}, check=True, capture_output=True)
    return {row["run_name"].split("/")[0]: row
            for row in json.loads(done.stdout)["benchmarks"] if row["aggregate_name"] == "median"}


def peak_memory(*command):
    """Runs a command and returns its peak memory in bytes."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, _, usage = os.wait4(process.pid, 0)
    return usage.ru_maxrss * 1024


def measure(build, path):
    size = os.path.getsize(path)
    rows = run_benchmarks(build, path)
    load, reset, save, convert = (rows[name]["cpu_time"] for name in WORKS)
    command = os.path.join(build, "tools", "kelifc", "kelifc")
    saved = path + ".saved"
    peaks = [peak_memory(command, "info", path), peak_memory(command, "save", path, saved),
             peak_memory(command, "structure", path)]
    if os.path.exists(saved):
        os.remove(saved)
    return [f"{size / MEGABYTE:.1f}",
            f"{load:.0f}", f"{size / load / 1e3:.0f}", f"{load / size * MEGABYTE:.2f}",
            f"{save:.0f}", f"{size / save / 1e3:.0f}",
            f"{convert:.1f}", f"{100 * convert / load:.0f}",
            f"{rows['ConvertWholeModel']['elements']:.0f}",
            f"{reset:.1f}", f"{100 * reset / load:.0f}",
            *(f"{peak / size:.2f}" for peak in peaks),
            *(f"{rows[name]['cpu_time']:.0f}" for name in LOOKUPS)]


def run_byte_loops(build, path):
    """Returns the least seconds and page faults of all runs, by the name of the work.

    Other programs on the machine only make a run longer.
    """
    saved = path + ".saved"
    runs = collections.defaultdict(list)
    for _ in range(REPETITIONS):
        done = subprocess.run([os.path.join(build, "bench", "byte_loops"), path, saved], check=True,
                              capture_output=True, text=True)
        for line in done.stdout.splitlines():
            name, seconds, faults = line.split()
            runs[name].append((float(seconds), int(faults)))
    os.remove(saved)
    return {name: [min(column) for column in zip(*rows)]
            for name, rows in runs.items()}


def print_byte_loops(build, paths):
    print("| model | loop ms | " + " | ".join([*TARGETS, *["faults"] * len(TARGETS)]) + " |")
    print("|---|" + "---:|" * (1 + 2 * len(TARGETS)))
    targets = " | ".join(f"{target:.2f}" for target in TARGETS.values())
    print(f"| target | | {targets} |" + " |" * len(TARGETS))
    for path in paths:
        works = run_byte_loops(build, path)
        loop, _ = works.pop("loop")
        cells = [f"{1000 * loop:.0f}"]
        cells += [f"{works[name][0] / loop:.2f}" for name in TARGETS]
        cells += [f"{works[name][1]:.0f}" for name in TARGETS]
        print(f"| {name_of(path)} | " + " | ".join(cells) + " |", flush=True)


def name_of(path):
    return os.path.splitext(os.path.basename(path))[0]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--growth", action="store_true", help="measure 10, 100 and 1,000 MB")
    parser.add_argument("build", metavar="BUILD")
    parser.add_argument("work", metavar="WORK")
    parser.add_argument("models", metavar="MODEL.ifc", nargs="*")
    arguments = parser.parse_args()
    build, work = arguments.build, arguments.work
    os.makedirs(work, exist_ok=True)
    paths = arguments.models or models_to_measure(arguments.growth, work)
    print("| model | MB | load ms | MB/s | ms per MB | save ms | MB/s | convert ms | % of load | "
          "elements | reset ms | % of load | B/B load | B/B save | B/B structure | find ns | "
          "item ns | item anywhere ns |")
    print("|---|" + "---:|" * 17)
    for path in paths:
        print(f"| {name_of(path)} | " + " | ".join(measure(build, path)) + " |", flush=True)
    print()
    print_byte_loops(build, paths)


if __name__ == "__main__":
    main()
