"""The results on the disk: one folder for each model, named by the hash of its content.

    results/models/3f/3f2a.../result.json       what was found; the model is done if it exists
    results/models/3f/3f2a.../elements.jsonl.gz rows of the table of elements
    results/models/3f/3f2a.../losses.jsonl.gz   rows of the table of losses
    results/models/3f/3f2a.../model.glb         the exports
    results/work/RUN/                           what is not finished

A folder is written below `work` and renamed at its end, so a folder below `models` is complete.
"""

from __future__ import annotations

import errno
import json
import os
import shutil
import tempfile
import time
from pathlib import Path
from typing import Any

import kelifc
from kelifc.batch.options import Options

# It changes when files of a result change their meaning; results of another layout are made again.
LAYOUT = 1

# The status of a model whose result does not depend on the limits.
FINAL_STATUSES = ("ok", "losses", "unreadable", "unsupported")

Result = dict[str, Any]


class Store:
    """The folder of the results of all models. All machines of a cluster share it."""

    def __init__(self, root: str | os.PathLike[str]) -> None:
        self.root = Path(os.path.abspath(root))

    def folder(self, content_hash: str) -> Path:
        """Returns the folder of the model with this content. It may not exist."""
        return self.root / "models" / content_hash[:2] / content_hash

    def read(self, content_hash: str) -> Result | None:
        """Returns the result of a model, or None if there is none that this version can use."""
        try:
            result = json.loads((self.folder(content_hash) / "result.json").read_bytes())
        except (OSError, ValueError):
            return None
        if not isinstance(result, dict) or result.get("layout") != LAYOUT:
            return None
        same = result.get("version") == kelifc.__version__ and result.get("hash") == content_hash
        return result if same else None

    def read_shared(self, content_hash: str, seconds: float = 5.0) -> Result | None:
        """Does what `read` does, but waits for a network file system that shows the result late."""
        end = time.monotonic() + seconds
        while True:
            result = self.read(content_hash)
            if result is not None or time.monotonic() > end:
                return result
            time.sleep(0.2)
            if self.folder(content_hash).parent.is_dir():
                os.listdir(self.folder(content_hash).parent)

    def new_work_folder(self, run: str) -> Path:
        """Creates an empty folder for one model. Raises FileNotFoundError if the run has ended."""
        return Path(tempfile.mkdtemp(prefix="model-", dir=self.root / "work" / run))

    def publish(self, work: Path, result: Result, options: Options) -> None:
        """Makes the content of a work folder the result of a model."""
        result = {"layout": LAYOUT, "version": kelifc.__version__, **result}
        with open(work / "result.json", "w", encoding="utf-8") as file:
            json.dump(result, file, indent=1, allow_nan=False)
            file.flush()
            os.fsync(file.fileno())
        target = self.folder(result["hash"])
        target.parent.mkdir(parents=True, exist_ok=True)
        work.chmod(0o755)
        try:
            work.rename(target)
        except OSError as error:
            if error.errno not in (errno.EEXIST, errno.ENOTEMPTY):
                raise
            self._replace(work, target, options)

    def _replace(self, work: Path, target: Path, options: Options) -> None:
        # Another task may have read a copy of the model meanwhile.
        present = self.read(target.name)
        if present is not None and is_done(present, options):
            shutil.rmtree(work)
            return
        old = Path(tempfile.mkdtemp(prefix="old-", dir=work.parent))
        target.rename(old / "result")
        work.rename(target)
        shutil.rmtree(old)


def is_done(result: Result, options: Options) -> bool:
    """Returns whether a result is what a run with these options would make.

    A failure by a limit is made again if the limit is now higher.
    """
    stored = result["options"]
    status = result["status"]
    if status in FINAL_STATUSES:
        return set(options.exports) <= set(stored["exports"])
    if list(options.exports) != stored["exports"]:
        return False
    if status == "timeout":
        return bool(options.timeout <= stored["timeout"])
    if status == "memory":
        return bool(options.memory <= stored["memory"])
    return bool(options.retries <= stored["retries"])
