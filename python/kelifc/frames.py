"""Tables of a building as data frames of pandas, which is needed only here."""

from __future__ import annotations

from typing import TYPE_CHECKING

from kelifc._kelifc import tables

if TYPE_CHECKING:
    import pandas as pd

    from kelifc._kelifc import Building

# The types of columns in pandas. These can hold missing values.
_TYPES = {"str": "object", "int": "Int64", "float": "float64", "bool": "boolean"}


def make_frame(building: Building, name: str) -> pd.DataFrame:
    """Returns a table of a building. Raises ValueError for a name that `tables()` does not have."""
    try:
        import pandas
    except ImportError as error:
        raise ImportError("to_dataframe needs the package pandas") from error
    columns = building.table(name)
    types = {column: _TYPES[kind] for column, (kind, _) in tables()[name].items()}
    return pandas.DataFrame(columns).astype(types)
