"""The exceptions of kelifc. All derive from Error and know the file and the reason."""

from __future__ import annotations


class Error(Exception):
    """The base of all exceptions that concern a file.

    `path` is the file as the caller named it; it is empty for a model without a file. `reason` is
    one line of text. `place` is the line and the column of the statement at fault, from 1, or None
    if the fault is in no statement.
    """

    path: str
    reason: str
    place: tuple[int, int] | None

    def __init__(self, path: str, reason: str, place: tuple[int, int] | None = None) -> None:
        super().__init__(path, reason, place)
        self.path = path
        self.reason = reason
        self.place = place

    def __str__(self) -> str:
        line = f":{self.place[0]}:{self.place[1]}" if self.place else ""
        return f"{self.path}{line}: {self.reason}" if self.path else self.reason


class OpenError(Error):
    """A model cannot be opened: the file cannot be read, or is not a model."""


class LimitError(OpenError):
    """The file exceeds a limit of `kelifc.Limits`."""


class UnsupportedReleaseError(OpenError):
    """The schema of the file is of a later release."""


class CancelledError(Error):
    """The progress function returned False. A file that existed before did not change."""


class SaveError(Error):
    """A model cannot be saved. A file that existed before did not change."""


class ConversionError(Error):
    """The model cannot be converted into a structure or a building."""


class ExportError(Error):
    """A building cannot be exported. A file that existed before did not change."""


class NotBuiltError(Error):
    """This build of kelifc lacks a component."""
