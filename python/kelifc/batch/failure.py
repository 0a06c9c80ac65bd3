"""How the command ends if it cannot do its work."""

from __future__ import annotations

DONE = 0
FILE_FAILED = 1
LOST = 4
WRONG_USAGE = 64
NOT_BUILT = 69
INTERRUPTED = 130


class Failure(Exception):
    """The command cannot go on. `status` is its exit status; the text is one line for the user."""

    def __init__(self, text: str, status: int = FILE_FAILED) -> None:
        super().__init__(text)
        self.status = status
