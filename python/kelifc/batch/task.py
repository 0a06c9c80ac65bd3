"""The task of one model. It runs on a machine of the cluster."""

from __future__ import annotations

import hashlib
import os
import shutil
import stat
from dataclasses import asdict, dataclass
from typing import Any

import kelifc
from kelifc.batch.limited import read_in_process
from kelifc.batch.options import Options
from kelifc.batch.store import FINAL_STATUSES, Result, Store, is_done


@dataclass(frozen=True)
class Outcome:
    """How the task of a model ended. `hash` is empty if no result is on the disk."""

    path: str
    size: int
    hash: str
    status: str
    message: str = ""
    is_skipped: bool = False


class VersionError(Exception):
    """A machine of the cluster has another version of kelifc than the client."""


def process_model(path: str, root: str, run: str, options: Options, version: str) -> dict[str, Any]:
    """Reads a model unless its result is in the folder `root` already.

    Returns an Outcome as a dict. Raises VersionError if `version`, that of the client, differs.
    """
    if version != kelifc.__version__:
        raise VersionError(f"this machine has kelifc {kelifc.__version__}, the client {version}")
    try:
        return asdict(_process(path, Store(root), run, options))
    except UnreadableFile as error:
        return asdict(Outcome(path, error.size, "", "unreadable", str(error)))


class UnreadableFile(Exception):
    """The file of a model cannot be read, or changed meanwhile."""

    def __init__(self, text: str, size: int = 0) -> None:
        super().__init__(text)
        self.size = size


def _process(path: str, store: Store, run: str, options: Options) -> Outcome:
    before = _stat(path)
    content_hash = _hash_of(path)
    present = store.read(content_hash)
    if present is not None and is_done(present, options):
        return _outcome(path, before.st_size, present, is_skipped=True)
    work = store.new_work_folder(run)
    try:
        exports = _exports(options, present)
        ended = read_in_process(path, work, list(exports), options)
        after = _stat(path)
        if (before.st_size, before.st_mtime_ns) != (after.st_size, after.st_mtime_ns):
            raise UnreadableFile("the file changed while it was read", after.st_size)
        stored = {**options.to_dict(), "exports": list(exports)}
        result = {"hash": content_hash, "size": before.st_size, "options": stored, **ended}
        store.publish(work, result, options)
    finally:
        shutil.rmtree(work, ignore_errors=True)
    return _outcome(path, before.st_size, result, is_skipped=False)


def _exports(options: Options, present: Result | None) -> tuple[str, ...]:
    # The exports of an earlier run stay.
    kept = present is not None and present["status"] in FINAL_STATUSES
    stored = present["options"]["exports"] if present is not None and kept else []
    return tuple(sorted({*options.exports, *stored}))


def _outcome(path: str, size: int, result: Result, is_skipped: bool) -> Outcome:
    return Outcome(path, size, result["hash"], result["status"], result["message"], is_skipped)


def _stat(path: str) -> os.stat_result:
    try:
        found = os.stat(path)
    except OSError as error:
        raise UnreadableFile(error.strerror or "it cannot be found") from error
    except ValueError as error:
        raise UnreadableFile("the path has a NUL character") from error
    if not stat.S_ISREG(found.st_mode):
        raise UnreadableFile("it is not a regular file")
    return found


def _hash_of(path: str) -> str:
    digest = hashlib.sha256()
    try:
        with open(path, "rb") as file:
            while block := file.read(1 << 20):
                digest.update(block)
    except OSError as error:
        raise UnreadableFile(error.strerror or "it cannot be read") from error
    return digest.hexdigest()
