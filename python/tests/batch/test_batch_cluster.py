"""Runs on real clusters, over models of which some end badly, with workers and clients that die."""

from __future__ import annotations

import contextlib
import json
import os
import signal
import subprocess
import sys
import time
from collections.abc import Callable, Iterator
from pathlib import Path
from typing import Any

import pytest
from collection import command, contents, environment, make_collection, query, run

psutil = pytest.importorskip("psutil")

OPTIONS = ("--timeout", 15, "--memory-limit", 200, "--export", "csv,svg")

HOSTILE = {
    "slow.ifc": "timeout",
    "killer.ifc": "crash",
    "hog.ifc.gz": "memory",
    "empty.ifc": "unreadable",
    "noise.ifc": "unreadable",
    "later.ifc": "unsupported",
    "nowhere.ifc": "unreadable",
    "pipe.ifc": "unreadable",
    "text.ifc": "losses",
}


@pytest.fixture(scope="module")
def folder(tmp_path_factory: pytest.TempPathFactory) -> Path:
    path = tmp_path_factory.mktemp("cluster")
    make_collection(path)
    return path


@pytest.fixture(scope="module")
def undisturbed(folder: Path) -> dict[str, list[Any]]:
    """The contents of the database of a run on two workers to which nothing happens."""
    run("models", "--out", "undisturbed", "--workers", 2, *OPTIONS, folder=folder)
    return contents(folder / "undisturbed")


@contextlib.contextmanager
def started(arguments: list[str], folder: Path, log: str) -> Iterator[subprocess.Popen[bytes]]:
    """A process for the time of the context. It is stopped at the end."""
    with open(folder / log, "wb") as file:
        process = subprocess.Popen(
            arguments, cwd=folder, env=environment(folder), stdout=file, stderr=file
        )
    try:
        yield process
    finally:
        process.kill()
        process.wait()


def wait_until(condition: Callable[[], bool], seconds: float = 120) -> None:
    end = time.monotonic() + seconds
    while not condition():
        assert time.monotonic() < end, "it takes too long"
        time.sleep(0.05)


def results_of(results: Path) -> int:
    return sum(1 for _ in results.glob("models/*/*/result.json"))


def workers_of(client: int) -> list[Any]:
    children = psutil.Process(client).children(recursive=True)
    return [child for child in children if "spawn_main" in " ".join(child.cmdline())]


def test_bad_models_cost_no_other_model_its_result(
    folder: Path, undisturbed: dict[str, list[Any]]
) -> None:
    rows = query(folder / "undisturbed", "SELECT path, status, products FROM models")
    by_name = {Path(path).name: (status, products) for path, status, products in rows}
    for name, status in HOSTILE.items():
        assert by_name[name][0] == status, name
    small = [by_name[name] for name in by_name if name.startswith("house-")]
    assert small == [("losses", 13)] * 200
    assert by_name["barn.ifc"] == ("ok", 8)
    assert len(undisturbed["models"]) == len(rows)


def test_a_worker_that_is_killed_changes_nothing(
    folder: Path, undisturbed: dict[str, list[Any]]
) -> None:
    arguments = command("models", "--out", "worker", "--workers", 2, *OPTIONS)
    with started(arguments, folder, "worker.log") as client:
        wait_until(lambda: results_of(folder / "worker") >= 20)
        workers = workers_of(client.pid)
        workers[0].kill()
        assert client.wait(300) == 0, (folder / "worker.log").read_text()
    assert len(workers) == 2
    assert contents(folder / "worker") == undisturbed


def test_a_client_that_is_killed_goes_on_where_it_was(
    folder: Path, undisturbed: dict[str, list[Any]]
) -> None:
    arguments = ("models", "--out", "client", "--workers", 2, *OPTIONS)
    with started(command(*arguments), folder, "client.log") as client:
        wait_until(lambda: results_of(folder / "client") >= 50)
        processes = psutil.Process(client.pid).children(recursive=True)
        client.kill()
        assert client.wait() == -signal.SIGKILL
    _, alive = psutil.wait_procs(processes, timeout=60)
    assert not alive
    done = results_of(folder / "client")
    assert 50 <= done < len(undisturbed["models"]) - 10
    finished = run(*arguments, folder=folder)
    skipped = int(finished.stdout.split(", ")[1].split()[0])
    assert skipped >= done
    assert contents(folder / "client") == undisturbed
    assert list((folder / "client" / "work").glob("run-*")) == []


def certificates(folder: Path) -> dict[str, Path]:
    """Files with a certificate and a key, which sign themselves."""
    distributed = pytest.importorskip("distributed")
    pytest.importorskip("cryptography")
    security = distributed.Security.temporary()
    texts = {"ca": security.tls_ca_file, "cert": security.tls_client_cert,
             "key": security.tls_client_key}  # fmt: skip
    for name, text in texts.items():
        descriptor = os.open(folder / f"{name}.pem", os.O_WRONLY | os.O_CREAT, 0o600)
        os.write(descriptor, text.encode())
        os.close(descriptor)
    return {name: folder / f"{name}.pem" for name in texts}


@contextlib.contextmanager
def remote_cluster(
    folder: Path, protocol: str, tls: list[str]
) -> Iterator[tuple[str, subprocess.Popen[bytes]]]:
    """The address and the process of a scheduler on this machine that has two workers."""
    address_file = folder / f"{protocol}.json"
    dask = [sys.executable, "-m"]
    scheduler = [*dask, "distributed.cli.dask_scheduler", "--protocol", protocol, "--port", "0",
                 "--host", "127.0.0.1", "--no-dashboard", "--scheduler-file", str(address_file),
                 *tls]  # fmt: skip
    worker = [*dask, "distributed.cli.dask_worker", "--scheduler-file", str(address_file),
              "--nworkers", "1", "--nthreads", "1", "--no-nanny", "--no-dashboard",
              "--memory-limit", "0", "--local-directory", str(folder / "dask"), *tls]  # fmt: skip
    with contextlib.ExitStack() as stack:
        log = f"{protocol}-scheduler.log"
        address_file.unlink(missing_ok=True)
        process = stack.enter_context(started(scheduler, folder, log))
        wait_until(lambda: address_file.exists() and b"address" in address_file.read_bytes())
        for number in range(2):
            stack.enter_context(started(worker, folder, f"{protocol}-worker-{number}.log"))
        yield json.loads(address_file.read_bytes())["address"], process


def test_a_remote_scheduler_with_tls_gives_the_same(
    folder: Path, undisturbed: dict[str, list[Any]]
) -> None:
    files = certificates(folder)
    tls = ["--tls-ca-file", str(files["ca"]), "--tls-cert", str(files["cert"]),
           "--tls-key", str(files["key"])]  # fmt: skip
    with remote_cluster(folder, "tls", tls) as (address, _):
        assert address.startswith("tls://127.0.0.1:")
        run("models", "--out", "remote", "--scheduler", address, *OPTIONS, "--tls-ca", files["ca"],
            "--tls-cert", files["cert"], "--tls-key", files["key"], folder=folder)  # fmt: skip
    assert contents(folder / "remote") == undisturbed


def test_a_remote_scheduler_without_tls_must_be_allowed(folder: Path) -> None:
    with remote_cluster(folder, "tcp", []) as (address, _):
        arguments = ("models/house.ifc", "--out", "insecure", "--scheduler", address)
        refused = run(*arguments, folder=folder, status=64)
        assert "needs TLS" in refused.stderr
        run(*arguments, "--insecure", folder=folder)
    assert query(folder / "insecure", "SELECT status FROM models") == [("losses",)]


def test_a_scheduler_that_ends_is_a_failure_and_the_results_stay(folder: Path) -> None:
    with remote_cluster(folder, "tcp", []) as (address, scheduler):
        arguments = command("models/small", "--out", "lost", "--scheduler", address, "--insecure")
        with started(arguments, folder, "lost.log") as client:
            wait_until(lambda: results_of(folder / "lost") >= 5)
            scheduler.kill()
            assert client.wait(120) == 1
    assert "the connection to the scheduler was lost" in (folder / "lost.log").read_text()
    assert 0 < len(query(folder / "lost", "SELECT path FROM models")) < 200
