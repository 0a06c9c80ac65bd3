"""check_links_test.py FOLDER-OF-THE-SCRIPTS"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop())
import check_links  # noqa: E402


class CheckLinks(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.folder = pathlib.Path(self.temporary.name, "site").resolve()

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def findings(self, lenient=None):
        return check_links.Site(self.folder, self.folder / lenient if lenient else None).check()

    def test_links_that_lead_somewhere_are_no_findings(self):
        self.write("index.html", '<p id="top-of-it"><a href="a/page.html#there"></a><a href="a/"></a>'
                   '<a href="#top-of-it"></a><a href="https://elsewhere.example/x"></a>'
                   '<img src="data:image/png;base64,"><script src="a%20b.js"></script>')
        self.write("a b.js", "")
        self.write("a/page.html", '<a name="there"></a><a href="../index.html?q=1"></a>')
        self.write("a/index.html", "")
        self.assertEqual(self.findings(), [])

    def test_a_link_to_a_missing_file_is_a_finding(self):
        self.write("index.html", '<a href="gone.html"></a>')
        self.assertEqual(self.findings(), ["index.html: dead link gone.html"])

    def test_a_link_out_of_the_site_is_a_finding(self):
        self.write("../outside.html", "")
        self.write("index.html", '<a href="../outside.html"></a>')
        self.assertEqual(self.findings(), ["index.html: dead link ../outside.html"])

    def test_a_link_to_a_missing_name_is_a_finding_unless_a_generator_made_it(self):
        self.write("api/page.html", '<a href="#gone"></a>')
        self.assertEqual(self.findings(), ["api/page.html: no such name #gone"])
        self.assertEqual(self.findings("api"), [])

    def test_parts_from_another_host_are_findings(self):
        self.write("index.html", '<script src="https://elsewhere.example/x.js"></script>')
        self.write("site.css", '@import "https://elsewhere.example/y.css"; p { src: url(x.woff) }')
        self.assertEqual(self.findings(), [
            "index.html: another host serves https://elsewhere.example/x.js",
            "site.css: another host serves https://elsewhere.example/y.css",
            "site.css: dead link x.woff"])

    def test_the_page_for_missing_pages_may_name_absolute_places(self):
        self.write("404.html", '<a href="/index.html"></a>')
        self.assertEqual(self.findings(), [])


if __name__ == "__main__":
    unittest.main()
