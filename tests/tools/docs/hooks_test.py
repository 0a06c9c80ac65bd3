"""hooks_test.py FOLDER-OF-THE-SCRIPTS"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop())
import hooks  # noqa: E402


class Hooks(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.folder = pathlib.Path(self.temporary.name)

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def test_the_navigation_has_each_page_once(self):
        self.write("reference/README.md", "- [Walls](walls.md)\n- [Axes](axes.md)\n")
        for page in ("index.md", "cpp-api.md", "windows.md", "architecture.md", "unheard-of.md",
                     "reference/axes.md", "reference/walls.md"):
            self.write(page, "")
        self.assertEqual(hooks.on_config({"docs_dir": str(self.folder)})["nav"], [
            {"Overview": "index.md"},
            {"Guides": "windows.md"},
            {"Entities": ["reference/README.md", "reference/walls.md", "reference/axes.md"]},
            {"C++ API": "cpp-api.md"},
            {"Inside": ["architecture.md", "unheard-of.md"]}])

    def test_the_index_of_the_search_is_a_script_too(self):
        self.write("search/search_index.json", '{"docs":[]}')
        hooks.on_post_build({"site_dir": str(self.folder)})
        self.assertEqual((self.folder / "search/search_index.js").read_text(encoding="utf-8"),
                         'var __search = { index: Promise.resolve({"docs":[]}) };\n')


if __name__ == "__main__":
    unittest.main()
