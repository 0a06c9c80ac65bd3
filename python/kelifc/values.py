"""The small type of values that have a name of their type."""

from __future__ import annotations

from typing import Any, NamedTuple


class TypedValue(NamedTuple):
    """A value with the name of its type, such as `IFCLABEL('text')` in a file.

    >>> TypedValue("IfcLabel", "text")
    TypedValue(type='IfcLabel', value='text')

    An inline instance without a number is a typed value, too; its value is the tuple of its
    attributes.
    """

    type: str
    value: Any
