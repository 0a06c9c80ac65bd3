"""header_filter_test.py FOLDER-OF-THE-SCRIPTS"""

import sys
import unittest

sys.path.insert(0, sys.argv.pop())
import header_filter  # noqa: E402


def filtered(*lines):
    """What the lines become below a first line."""
    return "".join(header_filter.filtered(["\n"] + [line + "\n" for line in lines])).splitlines()[1:]


class HeaderFilter(unittest.TestCase):
    def test_a_name_of_a_known_form_gets_a_sentence(self):
        self.assertEqual(filtered("  IfcWall(const IfcWall&);"),
                         ["/** Copies the value. */   IfcWall(const IfcWall&);"])
        self.assertEqual(filtered("  virtual HRESULT Reserved2(void*) = 0;")[0][:4], "/** ")

    def test_a_comment_of_the_header_wins(self):
        for comment in ("  /// Shares the list.", "   */"):
            lines = [comment, "  IfcWall(const IfcWall&);"]
            self.assertEqual(filtered(*lines), lines)
        line = "  ~Wall();  ///< Tears it down."
        self.assertEqual(filtered(line), [line])

    def test_an_ordinary_name_gets_no_sentence(self):
        for line in ("  IfcWall(const IfcSlab&);", "  using Wall = KelIFC2x3::IfcWall;", "  void Reset();"):
            self.assertEqual(filtered(line), [line])

    def test_what_is_protected_becomes_private(self):
        self.assertEqual(filtered(" protected:"), [" private:"])

    def test_the_sentence_above_a_namespace_describes_the_header(self):
        self.assertEqual(filtered("/// Walls.", "namespace KelIFC2x3 {"),
                         ["/** @ofheader Walls. */", "namespace KelIFC2x3 {"])

    def test_a_dot_in_code_ends_no_sentence(self):
        self.assertEqual(filtered("/// Reads `.T.` and `a.b`."),
                         ["/// Reads <code>.T.\\ </code> and `a.b`."])

    def test_an_instance_number_is_no_link(self):
        self.assertEqual(filtered("/// The n of #n, as in `#n=`."), ["/// The n of \\#n, as in `#n=`."])

    def test_the_first_line_describes_the_header(self):
        self.assertEqual(header_filter.filtered(["#pragma once\n"]), ["/** @file */ #pragma once\n"])
        self.assertEqual(header_filter.filtered([]), [])


if __name__ == "__main__":
    unittest.main()
