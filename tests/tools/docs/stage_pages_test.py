"""stage_pages_test.py FOLDER-OF-THE-SCRIPTS"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop())
import stage_pages  # noqa: E402


class StagePages(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.tree = pathlib.Path(self.temporary.name, "tree")
        self.pages = pathlib.Path(self.temporary.name, "pages")
        self.write("README.md", "")

    def write(self, name, text):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def staged(self, name):
        stage_pages.stage(self.tree, self.pages)
        return (self.pages / name).read_text(encoding="utf-8")

    def test_links_follow_the_pages_to_their_places(self):
        self.write("docs/windows.md", "[start](../README.md#two-commands)")
        self.write("README.md", "[Windows](docs/windows.md), [examples](examples/README.md)")
        self.write("examples/README.md", "")
        self.assertEqual(self.staged("windows.md"), "[start](index.md#two-commands)")
        self.assertEqual(self.staged("index.md"), "[Windows](windows.md), [examples](examples.md)")

    def test_a_link_that_shows_a_path_shows_the_title_of_the_page(self):
        self.write("docs/windows.md", "# On Windows\n")
        self.write("docs/a.md", "[windows.md](windows.md) [docs/windows.md](windows.md) [x](windows.md)")
        self.assertEqual(self.staged("a.md"),
                         "[On Windows](windows.md) [On Windows](windows.md) [x](windows.md)")

    def test_a_link_to_a_file_that_is_no_page_becomes_its_name(self):
        self.write("docs/a.md", "[walk](../examples/main.cpp), [`examples/main.cpp`](../examples/main.cpp)")
        self.write("examples/main.cpp", "")
        self.assertEqual(self.staged("a.md"), "walk (`examples/main.cpp`), `examples/main.cpp`")

    def test_pictures_go_with_the_pages_that_show_them(self):
        self.write("docs/pictures/house.svg", "<svg/>")
        self.write("docs/guide.md", "![A house](pictures/house.svg)\n")
        stage_pages.stage(self.tree, self.pages)
        self.assertEqual((self.pages / "guide.md").read_text(), "![A house](pictures/house.svg)\n")
        self.assertEqual((self.pages / "pictures/house.svg").read_text(), "<svg/>")

    def test_code_stays_as_it_is(self):
        code = "```cpp\n[a](../README.md)\n```\n\n    [a](../README.md)\n"
        self.write("docs/a.md", code)
        self.assertEqual(self.staged("a.md"), code)

    def test_other_links_stay_as_they_are(self):
        text = "[a](gone.md) [b](https://elsewhere.example/) [c](#there)"
        self.write("docs/a.md", text)
        self.assertEqual(self.staged("a.md"), text)


if __name__ == "__main__":
    unittest.main()
