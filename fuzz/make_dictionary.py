#!/usr/bin/env python3
"""Writes the dictionary of the fuzzer: the tokens of the file format, the names of all entities,
and the values of the enumerations.

    make_dictionary.py OUT KELIFC.schema...
"""

import re
import sys

MARKS = ["ISO-10303-21;", "HEADER;", "DATA;", "ENDSEC;", "END-ISO-10303-21;", "FILE_SCHEMA((",
         "IFC151", "IFC20_LONGFORM", "IFC2X", "IFC2X_FINAL", "IFC2X2", "IFC2X2_FINAL", "IFC2X3",
         ";\n", "\n#", "=", "(", ")", "((", "))", ",", "$", "*", "#1", "''", "'", "/*", "*/",
         "\\X2\\", "\\X4\\", "\\X0\\", "\\X\\", "\\S\\", "\\PB\\",
         "\\\\", "\xef\xbb\xbf", "FILE_NAME(", "ENDSEC;\nDATA;\n", "!A(", ".T.", ".F.", ".U.", "1.E5", "-0.", "\"0", "\r\n",
         "\0"]


def quoted(text):
    escaped = "".join(c if 32 <= ord(c) < 127 and c not in "\"\\" else f"\\x{ord(c):02x}"
                      for c in text)
    return f'"{escaped}"'


def main():
    words = set()
    for path in sys.argv[2:]:
        with open(path, encoding="ascii") as file:
            text = file.read()
        words.update(name.upper() + "(" for name in re.findall(r"\bIfc[A-Za-z0-9]+", text))
        words.update(f".{row}." for row in re.findall(r"\b[A-Z][A-Z0-9_]{2,}\b", text))
    with open(sys.argv[1], "w", encoding="ascii") as out:
        for word in MARKS + sorted(words):
            out.write(quoted(word) + "\n")


if __name__ == "__main__":
    main()
