"""The connection to a cluster of Dask: an existing one, or one on this machine."""

from __future__ import annotations

import asyncio
import contextlib
import logging
import tempfile
from collections.abc import Iterator
from dataclasses import dataclass
from typing import Any

from kelifc.batch.failure import NOT_BUILT, WRONG_USAGE, Failure
from kelifc.batch.text import printable

_SECONDS_TO_CONNECT = 60


@dataclass(frozen=True)
class ClusterOptions:
    """Which cluster runs the tasks.

    `scheduler` is an address such as tls://host:8786; if it is empty, `workers` processes are
    started on this machine. `ca`, `certificate` and `key` are files for TLS; without them the
    configuration of Dask applies.
    """

    scheduler: str = ""
    workers: int = 1
    ca: str | None = None
    certificate: str | None = None
    key: str | None = None
    is_insecure: bool = False


def check_options(options: ClusterOptions) -> None:
    """Raises Failure if the scheduler has no encryption and that is not allowed."""
    encrypted = options.scheduler.startswith(("tls://", "wss://"))
    if options.scheduler and not encrypted and not options.is_insecure:
        raise Failure(
            f"{printable(options.scheduler)}: a scheduler needs TLS (tls://HOST:PORT), "
            "unless --insecure is given",
            WRONG_USAGE,
        )


@contextlib.contextmanager
def connect(options: ClusterOptions) -> Iterator[Any]:
    """Returns a client of `distributed` for the time of the context.

    Raises Failure if Dask is missing or the cluster cannot be reached.
    """
    check_options(options)
    try:
        import dask
        import distributed
    except ImportError as error:
        raise Failure("this needs Dask (python3-distributed)", NOT_BUILT) from error
    settings = {
        # A worker that ends takes the models that it had with it; they are given to others.
        "distributed.scheduler.allowed-failures": 10,
        # Memory is limited for each process that reads a model, not for the workers.
        "distributed.worker.memory.terminate": False,
        "distributed.worker.memory.pause": False,
    }
    with dask.config.set(settings), contextlib.ExitStack() as stack:
        # What matters of the messages of Dask is an outcome or a failure of this command.
        stack.callback(logging.disable, logging.root.manager.disable)
        logging.disable(logging.CRITICAL)
        try:
            client = _client(distributed, options, stack)
            client.wait_for_workers(1, timeout=_SECONDS_TO_CONNECT)
        except (OSError, asyncio.TimeoutError, ValueError) as error:
            address = options.scheduler or "the local cluster"
            raise Failure(f"{printable(address)}: {printable(str(error))}") from error
        yield client


def _client(distributed: Any, options: ClusterOptions, stack: contextlib.ExitStack) -> Any:
    if options.scheduler:
        return stack.enter_context(
            distributed.Client(
                options.scheduler,
                security=_security(distributed, options),
                timeout=_SECONDS_TO_CONNECT,
                set_as_default=False,
            )
        )
    folder = stack.enter_context(tempfile.TemporaryDirectory(prefix="kelifc-batch-"))
    cluster = stack.enter_context(
        distributed.LocalCluster(
            n_workers=options.workers,
            threads_per_worker=1,
            processes=True,
            memory_limit=0,
            dashboard_address=None,
            local_directory=folder,
            security=_local_security(distributed, options),
            host="127.0.0.1",
            silence_logs=logging.CRITICAL,
        )
    )
    return stack.enter_context(distributed.Client(cluster, set_as_default=False))


def _security(distributed: Any, options: ClusterOptions) -> Any:
    if options.is_insecure and not options.scheduler.startswith("tls://"):
        return None
    files = {
        "tls_ca_file": options.ca,
        "tls_client_cert": options.certificate,
        "tls_client_key": options.key,
    }
    given = {name: value for name, value in files.items() if value}
    security = distributed.Security(require_encryption=True, **given)
    if security.get_connection_args("client").get("ssl_context") is None:
        raise Failure("TLS needs --tls-ca, --tls-cert and --tls-key", WRONG_USAGE)
    return security


def _local_security(distributed: Any, options: ClusterOptions) -> Any:
    # Without TLS every user of this machine could run code as this user.
    if options.is_insecure:
        return None
    try:
        return distributed.Security.temporary()
    except ImportError as error:
        raise Failure(
            "TLS on this machine needs python3-cryptography, unless --insecure is given", NOT_BUILT
        ) from error
