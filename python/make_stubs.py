"""Writes the type stubs of the compiled module.

The types of the members of a class are the annotations that the class has. The signature of a
function is the first line of its docstring.
"""

from __future__ import annotations

import inspect
import sys
from pathlib import Path
from typing import Any

HEAD = '''"""The compiled part of kelifc. The build writes this file."""

import os
from collections.abc import Callable, Iterator, Sequence
from typing import Any, NoReturn, SupportsIndex, Union, overload

import numpy as np
import pandas as pd
from numpy.typing import NDArray

StrPath = Union[str, os.PathLike[str]]

__version__: str
__all__ = {names!r}
'''

LIST = '''
class {name}(Sequence[{item}]):
    def __len__(self) -> int: ...
    @overload
    def __getitem__(self, index: int) -> {item}: ...
    @overload
    def __getitem__(self, index: slice) -> list[{item}]: ...
'''


def signature_of(function: Any) -> str:
    """Returns the first line of a docstring, `name(arguments) -> type`."""
    return (inspect.getdoc(function) or "").split("\n")[0]


def method_stub(name: str, signature: str) -> str:
    assert signature.startswith(name + "("), f"{name} has no signature"
    arguments = signature[len(name) + 1 :]
    separator = "" if arguments.startswith(")") else ", "
    return f"    def {name}(self{separator}{arguments}: ...\n"


def class_stub(kind: type) -> str:
    if hasattr(kind, "item_type"):
        return LIST.format(name=kind.__name__, item=kind.item_type)
    lines = [f"\nclass {kind.__name__}:\n"]
    annotations = vars(kind).get("__annotations__", {})
    for name, type_text in annotations.items():
        lines.append(f"    @property\n    def {name}(self) -> {type_text}: ...\n")
    for name, member in sorted(vars(kind).items()):
        signature = signature_of(member)
        if callable(member) and signature.startswith(name + "("):
            lines.append(method_stub(name, signature))
        elif callable(member) and not name.startswith("_") and name not in annotations:
            raise SystemExit(f"{kind.__name__}.{name} has no signature")
    if kind.__name__ == "Instance":
        lines.append("    def __getattr__(self, name: str) -> Any: ...\n")
        lines.append("    def __setattr__(self, name: str, value: Any) -> None: ...\n")
    if len(lines) == 1:
        lines.append("    pass\n")
    return "".join(lines)


def module_stub(module: Any) -> str:
    parts = [HEAD.format(names=module.__all__)]
    for name in module.__all__:
        member = getattr(module, name)
        if isinstance(member, type):
            parts.append(class_stub(member))
        else:
            signature = signature_of(member)
            assert signature.startswith(name + "("), f"{name} has no signature"
            parts.append(f"\ndef {signature}: ...\n")
    return "".join(parts)


def main() -> None:
    target = Path(sys.argv[1]).resolve()
    sys.path[0] = str(target.parents[1])  # the folder of the built package
    from kelifc import _kelifc

    temporary = target.with_suffix(".new")
    temporary.write_text(module_stub(_kelifc), encoding="utf-8")
    temporary.replace(target)


if __name__ == "__main__":
    main()
