"""What MkDocs does for this site beside its own work: the navigation, and a search that works from a
disk."""

import pathlib
import re

# The tabs of the site. A page that none of them names joins the last one.
TABS = (
    ("Overview", ("index.md", "installation.md", "glossary.md", "security.md", "third-party.md",
                  "changelog.md")),
    ("Guides", ("object-model.md", "building.md", "exports.md", "windows.md", "examples.md")),
    ("Entities", ("reference/*.md",)),
    ("C++ API", ("cpp-api.md",)),
    ("Inside", ("architecture.md", "conversion.md", "schema-notation.md", "robustness.md",
                "performance.md", "contributing.md")),
)


def reference_pages(pages):
    """The pages of the entity classes, in the order in which their first page lists them."""
    first = pages / "reference" / "README.md"
    listed = re.findall(r"\]\(([\w-]+\.md)\)", first.read_text(encoding="utf-8"))
    return ["reference/README.md"] + ["reference/" + page for page in listed]


def navigation(pages):
    left = {page.relative_to(pages).as_posix() for page in pages.glob("**/*.md")}
    result = []
    for title, names in TABS:
        if names == ("reference/*.md",):
            names = reference_pages(pages)
        result.append((title, [name for name in names if name in left]))
        left -= set(names)
    result[-1][1].extend(sorted(left))
    return [{title: names[0] if len(names) == 1 else names} for title, names in result]


def on_config(config):
    config["nav"] = navigation(pathlib.Path(config["docs_dir"]))
    return config


def on_post_build(config):
    """Writes the index of the search as a script, too: a page from a disk may read scripts only."""
    folder = pathlib.Path(config["site_dir"]) / "search"
    index = (folder / "search_index.json").read_text(encoding="utf-8")
    script = "var __search = { index: Promise.resolve(%s) };\n" % index
    (folder / "search_index.js").write_text(script, encoding="utf-8")
