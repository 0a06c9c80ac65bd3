"""Reads, changes and writes building models in IFC, and reads their structure.

    import kelifc

    model = kelifc.open("house.ifc")
    for wall in model.by_type("IfcWall"):
        print(wall.Name, wall.GlobalId)
    model.building().export("glb", "house.glb")

`open` returns a Model. Its instances have the attributes of the schema. Model.building() returns the
structural elements as plain data, and Model.structure() a simpler structure of storeys, columns,
beams, walls, plates, foots and sections. Exceptions that concern a file derive from Error.
"""

from __future__ import annotations

from kelifc import errors
from kelifc._kelifc import *  # noqa: F403 (__all__ is there)
from kelifc._kelifc import __all__ as _compiled
from kelifc._kelifc import __version__ as __version__
from kelifc.errors import CancelledError as CancelledError
from kelifc.errors import ConversionError as ConversionError
from kelifc.errors import Error as Error
from kelifc.errors import ExportError as ExportError
from kelifc.errors import LimitError as LimitError
from kelifc.errors import NotBuiltError as NotBuiltError
from kelifc.errors import OpenError as OpenError
from kelifc.errors import SaveError as SaveError
from kelifc.errors import UnsupportedReleaseError as UnsupportedReleaseError
from kelifc.opening import open as open
from kelifc.values import TypedValue as TypedValue

__all__ = [name for name in _compiled if not name.startswith("open_")]
__all__ += [name for name in vars(errors) if name.endswith("Error")]
__all__ += ["TypedValue", "open"]
