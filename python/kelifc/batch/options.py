"""The options on which the result of a model depends."""

from __future__ import annotations

from dataclasses import asdict, dataclass
from typing import Any

MEGABYTE = 1 << 20

# The name of each export in the folder of a model. `csv` and `svg` are folders, `view` is a page.
EXPORT_NAMES = {
    "glb": "model.glb",
    "svg": "svg",
    "csv": "csv",
    "sqlite": "model.sqlite",
    "saf": "model.xlsx",
    "view": "model.html",
}


@dataclass(frozen=True)
class Options:
    """What is made of each model, and within which limits.

    `exports` are names of EXPORT_NAMES in alphabetical order. `timeout` is in seconds, and
    `memory`, the largest address space of the process that reads a model, in bytes. `retries` is
    how often a model is read again after its process has crashed.
    """

    exports: tuple[str, ...] = ()
    timeout: float = 600.0
    memory: int = 4096 * MEGABYTE
    retries: int = 1

    def to_dict(self) -> dict[str, Any]:
        """Returns the options as values of JSON."""
        return {**asdict(self), "exports": list(self.exports)}
