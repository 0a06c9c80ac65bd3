"""Runs the tasks of all models on a cluster, and keeps the database up to date."""

from __future__ import annotations

import asyncio
import concurrent.futures
import os
import time
from collections import Counter
from collections.abc import Callable, Sequence
from dataclasses import dataclass, field
from typing import Any

import kelifc
from kelifc.batch.database import write_database
from kelifc.batch.failure import Failure
from kelifc.batch.inputs import ModelFile
from kelifc.batch.options import Options
from kelifc.batch.store import Store
from kelifc.batch.task import Outcome, process_model
from kelifc.batch.text import path_text, printable

# The scheduler knows only the next models, so its memory does not grow with their number.
_LEAST_WINDOW = 64
_WINDOW_PER_THREAD = 16

# The database is written meanwhile, too, but that takes at most this share of the time.
_SECONDS_BETWEEN_DATABASES = 60.0
_SHARE_OF_DATABASES = 0.05

Reporter = Callable[[Outcome], None]


@dataclass
class Run:
    """One run over models. `name` is that of its folder for unfinished work."""

    store: Store
    name: str
    options: Options
    report: Reporter
    outcomes: list[Outcome] = field(default_factory=list)
    _next_database: float = field(
        default_factory=lambda: time.monotonic() + _SECONDS_BETWEEN_DATABASES
    )

    def process(self, client: Any, models: Sequence[ModelFile]) -> None:
        """Reads all models, in their order, and adds their outcomes.

        Raises Failure if the cluster cannot be used. What was read until then is on the disk.
        """
        import distributed

        as_completed: Any = distributed.as_completed
        window = max(_LEAST_WINDOW, _WINDOW_PER_THREAD * sum(client.nthreads().values()))
        waiting = iter(enumerate(models))
        model_of: dict[Any, ModelFile] = {}
        running = as_completed(loop=client.loop)
        for _ in range(window):
            self._submit_next(client, waiting, model_of, running)
        for future in running:
            model = model_of.pop(future)
            self._add(_outcome_of(future, model))
            self._submit_next(client, waiting, model_of, running)

    def _submit_next(self, client: Any, waiting: Any, model_of: Any, running: Any) -> None:
        number, model = next(waiting, (0, None))
        if model is None:
            return
        future = client.submit(
            process_model,
            model.path,
            str(self.store.root),
            self.name,
            self.options,
            kelifc.__version__,
            key=f"kelifc-{self.name}-{number}",
            priority=-number,
            pure=False,
        )
        model_of[future] = model
        running.add(future)

    def _add(self, outcome: Outcome) -> None:
        if outcome.hash and self.store.read_shared(outcome.hash) is None:
            raise Failure(f"{self.store.root}: the cluster does not share this folder")
        self.outcomes.append(outcome)
        self.report(outcome)
        start = time.monotonic()
        if start >= self._next_database:
            write_database(self.store, self.outcomes, self.options)
            end = time.monotonic()
            pause = max(_SECONDS_BETWEEN_DATABASES, (end - start) / _SHARE_OF_DATABASES)
            self._next_database = end + pause

    def counts(self) -> Counter[str]:
        """Returns the number of models for each status."""
        return Counter(outcome.status for outcome in self.outcomes)


def _outcome_of(future: Any, model: ModelFile) -> Outcome:
    from distributed import KilledWorker

    try:
        return Outcome(**future.result())
    except KilledWorker:
        # It is not known whether the model is the cause, so the next run reads it again.
        return Outcome(model.path, model.size, "", "crash", "workers ended while they had it")
    except (asyncio.CancelledError, concurrent.futures.CancelledError) as error:
        raise Failure("the connection to the scheduler was lost") from error
    except FileNotFoundError as error:
        raise Failure(f"{error.filename}: the cluster does not share this folder") from error
    except Exception as error:
        text = f"{path_text(model.path)}: {type(error).__name__}: {error}"
        raise Failure(f"the cluster failed at {printable(text)}") from error


def new_name() -> str:
    """Returns a name for a run that no other run has."""
    return f"run-{os.getpid()}-{os.urandom(6).hex()}"
