"""Compares the functions that the installed headers declare with those that the library exports.

    exports_test.py CMAKE BUILD-FOLDER INCLUDE-FOLDER LIBRARY-FOLDER WORK-FOLDER COMPILER [FLAG...]

The folders of headers and libraries are relative to the installation, which the test makes. The
programs that the tests compile are never run: it is enough that they link.
"""

import os
import re
import shutil
import subprocess
import sys
import unittest

import declarations

CMAKE, BUILD, INCLUDE_NAME, LIBRARY_NAME, WORK, COMPILER = sys.argv[1:7]
FLAGS = sys.argv[7:]
PREFIX = os.path.join(WORK, "prefix")
INCLUDE = os.path.join(PREFIX, INCLUDE_NAME)
LIBRARY = os.path.join(PREFIX, LIBRARY_NAME, "libkelifc.so")
SYNTAX = "clang++"  # reads the headers, also where another compiler made the library

# Helpers of public headers. A host needs the size of those that public classes have as members, but
# calls none of their functions, which may stay inside the library.
INTERNAL = re.compile(r"\bKelIFC::detail::")

# Thunks, and instances of templates of the standard library.
BY_PRODUCTS = re.compile(r"(virtual thunk to |non-virtual thunk to |(\S+ )?std::)")

# Makes the compiler generate each special member that a class has.
SPECIAL_MEMBERS = """
#include <type_traits>
#include <utility>

template <class T>
void UseSpecialMembers(T* object) {
  if constexpr (std::is_default_constructible_v<T>) T();
  if constexpr (std::is_copy_constructible_v<T>) T(*const_cast<const T*>(object));
  if constexpr (std::is_move_constructible_v<T>) T(std::move(*object));
  if constexpr (std::is_copy_assignable_v<T>) *object = *const_cast<const T*>(object);
  if constexpr (std::is_move_assignable_v<T>) *object = std::move(*object);
  if constexpr (std::is_destructible_v<T>) object->~T();
}
"""


def run(*command):
    done = subprocess.run(command, capture_output=True, encoding="utf-8", check=False)
    if done.returncode != 0:
        errors = "\n".join(readable(done.stderr.splitlines()[:30]))
        raise AssertionError("%s\n%s" % (" ".join(command), errors))
    return done.stdout


def readable(names):
    """The names of the source that belong to names of the linker, in the same order."""
    return subprocess.run(["c++filt"], input="\n".join(names), capture_output=True,
                          encoding="utf-8", check=True).stdout.splitlines()


def symbols(path, *options):
    """The linker's names in a file, each with the letter that tells its kind."""
    lines = run("nm", "--format=posix", *options, path).splitlines()
    return [line.split()[:2] for line in lines]


def write(name, lines):
    path = os.path.join(WORK, name)
    with open(path, "w", encoding="ascii") as file:
        file.write("\n".join(lines) + "\n")
    return path


def compile_as_host(source, *arguments):
    run(COMPILER, *FLAGS, "-std=c++17", "-I" + INCLUDE, source, *arguments)


class Exports(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        os.makedirs(WORK)
        run(CMAKE, "--install", BUILD, "--prefix", PREFIX)
        cls.headers = declarations.including(INCLUDE)
        source = write("headers.cpp", [cls.headers])
        cls.found = declarations.Declarations(
            declarations.syntax_trees(SYNTAX, INCLUDE, source))
        cls.exported = dict(symbols(LIBRARY, "-D", "--defined-only"))

    def test_headers_are_read(self):
        """The other tests would pass if the reading of the headers found nothing."""
        undefined = readable(self.found.undefined())
        for name in ("KelIFC::IfcServer::LoadIfcFile(char const*)", "DllCanUnloadNow",
                     "KelIFC::Isometry3::Set(KelIFC::Point3 const&, KelIFC::Point3 const&, "
                     "KelIFC::Point3 const&)"):
            self.assertIn(name, undefined)
        self.assertIn("KelIFC2x3::IfcWall", self.found.classes)
        self.assertIn("KelIFC::LIST<KelIFC::INTEGER>", self.found.instances)

    def test_each_declared_function_links(self):
        undefined = self.found.undefined()
        names = [name for name, text in zip(undefined, readable(undefined))
                 if not INTERNAL.match(text)]
        lines = ['extern "C" void f%d() __asm__("%s");' % pair for pair in enumerate(names)]
        lines.append("void (*const all[])() = {")
        lines += ["  f%d," % i for i in range(len(names))]
        lines.append("};\nint main(int, char** text) { return all[text[0][0]] == nullptr; }")
        compile_as_host(write("calls.cpp", lines), LIBRARY, "-o", os.path.join(WORK, "calls"))

    def test_inline_functions_call_exported_ones(self):
        """Special members that are not declared and instances of templates are inline, too."""
        lines = [self.headers, SPECIAL_MEMBERS]
        lines += ["template class %s;" % name for name in self.found.instances
                  if not INTERNAL.match(name)]
        lines += ["template void UseSpecialMembers(%s*);" % name for name in self.found.classes
                  if not INTERNAL.match(name)]
        keep = "-femit-all-decls" if "clang" in os.path.basename(COMPILER) else \
            "-fkeep-inline-functions"
        result = os.path.join(WORK, "inline.o")
        compile_as_host(write("inline.cpp", lines), keep, "-c", "-o", result)
        missing = [name for name, _ in symbols(result, "--undefined-only")
                   if name not in self.exported]
        self.assertEqual([text for text in readable(missing)
                          if "KelIFC" in text and not INTERNAL.search(text)], [])

    def test_each_exported_function_is_declared(self):
        declared = set(readable(self.found.linked))
        functions = [name for name, kind in self.exported.items() if kind in "TWBD"]
        self.assertEqual([text for text in readable(functions)
                          if text not in declared and not BY_PRODUCTS.match(text)], [])


if __name__ == "__main__":
    if shutil.which(SYNTAX) is None:
        print("%s is not installed" % SYNTAX)
        sys.exit(77)
    unittest.main(argv=sys.argv[:1], verbosity=2)
