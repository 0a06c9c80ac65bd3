"""How a model is opened from a path, from bytes or from a file object."""

from __future__ import annotations

import os
import tempfile
from typing import Any, BinaryIO, Callable, Union

from kelifc._kelifc import Limits, Model, open_bytes, open_path

_PACKED_STARTS = (b"PK\x03\x04", b"\x1f\x8b")


def open(  # noqa: A001 (the name that users expect)
    source: Union[str, os.PathLike[str], bytes, bytearray, memoryview, BinaryIO],
    dialect: str = "iso",
    *,
    limits: Limits | None = None,
    progress: Callable[[int, int], object] | None = None,
) -> Model:
    """Loads a model.

    `source` is a path, the bytes of a file, or a file object that returns bytes. Packed models
    (.ifczip, .ifc.gz) are expanded. `dialect` is "iso", the rules of ISO 10303-21 for the text of a
    file, or "classic". `progress` is called with the bytes done and the bytes in total; both count
    the two passes over the file. If it returns False, CancelledError is raised.

    Raises OpenError if the source is not a model, LimitError if it exceeds a limit, and
    UnsupportedReleaseError for a later release.

    >>> import kelifc
    >>> kelifc.open(b"no model")
    Traceback (most recent call last):
    ...
    kelifc.errors.OpenError: <bytes>: not a STEP file
    """
    allowed = Limits() if limits is None else limits
    if isinstance(source, (str, os.PathLike)):
        return open_path(os.fsdecode(source), dialect, allowed, progress)
    if isinstance(source, (bytes, bytearray, memoryview)):
        content, name = bytes(source), "<bytes>"
    else:
        content, name = _content_of(source)
    if content.startswith(_PACKED_STARTS):
        return _open_packed(content, dialect, allowed, progress)
    return open_bytes(content, name, dialect, allowed, progress)


def _content_of(file: Any) -> tuple[bytes, str]:
    content = file.read()
    if not isinstance(content, bytes):
        raise TypeError("the file must be opened in binary mode")
    return content, str(getattr(file, "name", "<file>"))


def _open_packed(
    content: bytes,
    dialect: str,
    limits: Limits,
    progress: Callable[[int, int], object] | None,
) -> Model:
    with tempfile.NamedTemporaryFile(prefix="kelifc-", suffix=".ifczip") as file:
        file.write(content)
        file.flush()
        return open_path(file.name, dialect, limits, progress)
