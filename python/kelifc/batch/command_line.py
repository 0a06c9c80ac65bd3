"""The command `python3 -m kelifc.batch`."""

from __future__ import annotations

import argparse
import fcntl
import os
import shutil
import sys
import time
from collections.abc import Sequence
from pathlib import Path
from typing import IO, Any, NoReturn

import kelifc
from kelifc.batch import failure
from kelifc.batch.cluster import ClusterOptions, check_options, connect
from kelifc.batch.csv_tables import write_csv_tables
from kelifc.batch.database import write_database
from kelifc.batch.failure import Failure
from kelifc.batch.inputs import ModelFile, find_models
from kelifc.batch.options import EXPORT_NAMES, MEGABYTE, Options
from kelifc.batch.progress import Progress, duration
from kelifc.batch.report import write_report
from kelifc.batch.run import Run, new_name
from kelifc.batch.store import Store
from kelifc.batch.text import printable

_STATUSES = ("ok", "losses", "unreadable", "unsupported", "timeout", "memory", "crash")


def main(arguments: Sequence[str] | None = None) -> int:
    """Runs the command and returns its exit status."""
    try:
        given = _parser().parse_intermixed_args(arguments)
        return _run(given, _options(given), _cluster_options(given))
    except Failure as error:
        print(f"kelifc.batch: {error}", file=sys.stderr)
        return error.status
    except KeyboardInterrupt:
        print("kelifc.batch: interrupted; the same command goes on from here", file=sys.stderr)
        return failure.INTERRUPTED


class _Parser(argparse.ArgumentParser):
    def error(self, message: str) -> NoReturn:
        raise Failure(message, failure.WRONG_USAGE)


def _parser() -> argparse.ArgumentParser:
    parser = _Parser(
        prog="python3 -m kelifc.batch",
        description="Reads many models, and writes their tables, exports and a report.",
        epilog="Exit status: 0 done, 1 a file or the cluster failed, 4 done with --fail-on-loss "
        "and a model that is not ok, 64 wrong usage, 69 a missing component, 130 "
        "Ctrl-C.",
    )
    add = parser.add_argument
    add("models", nargs="+", metavar="MODELS",
        help="a model, a folder, a pattern, or a list of those (@FILE or FILE.txt)")
    add("--out", required=True, metavar="DIR", help="the folder of the results")
    add("--scheduler", default="", metavar="ADDRESS",
        help="an existing scheduler of Dask, such as tls://host:8786")
    add("--workers", type=_count, metavar="N", help="workers on this machine; default: its cores")
    add("--export", default="", metavar="LIST", help="such as csv,sqlite,saf,glb,svg,view")
    add("--timeout", type=_seconds, default=600.0, metavar="S",
        help="seconds for each model; default: 600")
    add("--memory-limit", type=_megabytes, default=4096, metavar="M",
        help="megabytes of address space for each model; default: 4096")
    add("--retry", type=_retries, default=1, metavar="K",
        help="how often a model is read again after a crash; default: 1")
    add("--report", metavar="FILE", help="write a page with tables and plots of the collection")
    add("--tls-ca", metavar="FILE", help="the certificate of the authority of the cluster")
    add("--tls-cert", metavar="FILE", help="the certificate of this client")
    add("--tls-key", metavar="FILE", help="the key of this client")
    add("--insecure", action="store_true", help="allow a cluster without TLS")
    add("--fail-on-loss", action="store_true", help="end with 4 if a model is not ok")
    add("--quiet", action="store_true", help="no progress and no summary")
    add("--version", action="version", version=kelifc.__version__)
    return parser  # fmt: skip


def _number(text: str, kind: Any, least: float) -> Any:
    try:
        value = kind(text)
    except ValueError:
        value = None
    if value is None or not least <= value <= 1e9:
        raise argparse.ArgumentTypeError(f"{text!r} is not a number from {least:g}")
    return value


def _count(text: str) -> int:
    return int(_number(text, int, 1))


def _retries(text: str) -> int:
    return int(_number(text, int, 0))


def _megabytes(text: str) -> int:
    return int(_number(text, int, 64))


def _seconds(text: str) -> float:
    return float(_number(text, float, 0.1))


def _options(given: argparse.Namespace) -> Options:
    names = tuple(sorted({name for name in given.export.split(",") if name}))
    built = kelifc.export_formats()
    for name in names:
        if name not in EXPORT_NAMES:
            formats = ", ".join(EXPORT_NAMES)
            raise Failure(f"no export format {name!r}; there are {formats}", failure.WRONG_USAGE)
        if built.get(name, "the format"):
            missing = built.get(name, "the format")
            raise Failure(f"--export {name}: this build lacks {missing}", failure.NOT_BUILT)
    return Options(names, given.timeout, given.memory_limit * MEGABYTE, given.retry)


def _cluster_options(given: argparse.Namespace) -> ClusterOptions:
    if given.scheduler and given.workers:
        raise Failure("--workers is for a run without --scheduler", failure.WRONG_USAGE)
    workers = given.workers or len(os.sched_getaffinity(0))
    files = (given.tls_ca, given.tls_cert, given.tls_key)
    cluster = ClusterOptions(given.scheduler, workers, *files, given.insecure)
    check_options(cluster)
    return cluster


def _run(given: argparse.Namespace, options: Options, cluster: ClusterOptions) -> int:
    start = time.monotonic()
    models = find_models(given.models)
    store = Store(given.out)
    lock = _prepare(store)
    with lock:
        progress = Progress(
            len(models), sum(model.size for model in models), sys.stderr, given.quiet
        )
        run = Run(
            store,
            new_name(),
            options,
            lambda outcome: progress.add(outcome.size, outcome.status, outcome.is_skipped),
        )
        _process(run, cluster, models)
        progress.end()
        database = write_database(store, run.outcomes, options)
        write_csv_tables(database, store.root)
        if given.report:
            write_report(database, Path(given.report))
    if not given.quiet:
        _print_summary(run, time.monotonic() - start)
    is_bad = any(outcome.status != "ok" for outcome in run.outcomes)
    return failure.LOST if given.fail_on_loss and is_bad else failure.DONE


def _prepare(store: Store) -> IO[str]:
    """Creates the folder, and returns a file whose lock keeps other runs out of it."""
    try:
        (store.root / "models").mkdir(parents=True, exist_ok=True)
        (store.root / "work").mkdir(exist_ok=True)
        lock = open(store.root / "work" / "lock", "w", encoding="ascii")
    except OSError as error:
        raise Failure(f"{printable(str(store.root))}: {error.strerror}") from error
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except OSError as error:
        lock.close()
        raise Failure(f"{printable(str(store.root))}: another run uses this folder") from error
    for left in (store.root / "work").glob("run-*"):
        shutil.rmtree(left, ignore_errors=True)
    return lock


def _process(run: Run, cluster: ClusterOptions, models: Sequence[ModelFile]) -> None:
    work = run.store.root / "work" / run.name
    work.mkdir()
    try:
        with connect(cluster) as client:
            run.process(client, models)
    except BaseException:
        # The tables show what is done even if the run ends here.
        if run.outcomes:
            write_database(run.store, run.outcomes, run.options)
        raise
    finally:
        shutil.rmtree(work, ignore_errors=True)


def _print_summary(run: Run, seconds: float) -> None:
    counts = run.counts()
    skipped = sum(outcome.is_skipped for outcome in run.outcomes)
    print(f"{len(run.outcomes)} models in {duration(seconds)}, {skipped} of them done before")
    for status in _STATUSES:
        if counts[status]:
            print(f"  {status:<12}{counts[status]}")
    print(f"The results are in {printable(str(run.store.root))}")
