#!/usr/bin/env python3
"""Prints a public header as Doxygen should read it.

    header_filter.py HEADER

- Names whose meaning follows from their form get a sentence, so that the headers need not repeat it
  for each of some 650 classes.
- What is protected becomes private: hosts do not derive from the classes of the library.
- The sentence above a namespace describes the header, since many headers share one namespace.
- In comments, a dot at the end of a piece of code ends no sentence, and `#n` is no link.
- The header itself counts as described: otherwise Doxygen leaves out what is in no namespace.

Each line keeps its number.
"""

import re
import sys

# The first form that a line has tells the sentence.
FORMS = (
    (r"(\w+)\(const \1& *\w*\)", "Copies the value."),
    (r"(\w+)\(\1&& *\w*\)", "Moves the value."),
    (r"~\w+\(\)", "Destroys the object."),
    (r"(\w+)& operator=\(const \1& *\w*\)", "Copies the value."),
    (r"(\w+)& operator=\(\1&& *\w*\)", "Moves the value."),
    (r"static void\* operator new", "Allocates the memory of an object."),
    (r"static void operator delete", "Frees the memory of an object."),
    (r"static const char\* GetItemName\(\)", "The name as the schema spells it."),
    (r"static constexpr IID kIid\b", "The identifier of the interface."),
    (r"static constexpr IFC_RELEASE kRelease\b", "The release."),
    (r"virtual HRESULT Reserved\d+\(", "Keeps the place of an operation; returns E_NOTIMPL."),
    (r"using (\w+) = KelIFC\w*::\1;", "The class of this release."),
)
SPECIFIERS = r"\s*(?:explicit |inline |constexpr |virtual )*"
DOCUMENTED = re.compile(r"\s*(///|\*/)")


def readable_comment(line):
    """A line of a comment, with the marks that Doxygen needs to read it as it is meant."""
    line = re.sub(r"`([^`<>&]*\.)`", r"<code>\1\\ </code>", line)
    return re.sub(r"(?<![`\w\\])#(?=\w)", r"\\#", line)


def filtered_line(before, line, after):
    """The line as Doxygen should read it, between its neighbours in the header."""
    sentence = re.match(r"/// (.*)", line)
    if sentence and after.startswith("namespace "):
        return "/** @ofheader %s */\n" % sentence.group(1)
    if re.match(r"\s*///", line):
        return readable_comment(line)
    if not DOCUMENTED.match(before) and "///<" not in line:
        for form, sentence in FORMS:
            if re.match(SPECIFIERS + form, line):
                return "/** %s */ %s" % (sentence, line)
    return re.sub(r"^(\s*)protected:", r"\1private:", line)


def filtered(lines):
    result = [filtered_line(*neighbours)
              for neighbours in zip([""] + lines[:-1], lines, lines[1:] + [""])]
    if result:
        result[0] = "/** @file */ " + result[0]
    return result


def main():
    with open(sys.argv[1], encoding="utf-8") as header:
        sys.stdout.writelines(filtered(header.readlines()))


if __name__ == "__main__":
    main()
