"""What the headers of a folder declare, by the syntax tree that clang++ makes of them."""

import json
import os
import re
import subprocess

RECORDS = ("CXXRecordDecl", "ClassTemplateSpecializationDecl")
FUNCTIONS = ("FunctionDecl", "CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl",
             "CXXConversionDecl")
BEGIN = "headers_begin_here"


def headers(include_dir):
    """The path of each header, relative to the folder."""
    found = [os.path.relpath(os.path.join(folder, name), include_dir)
             for folder, _, names in os.walk(include_dir) for name in names if name.endswith(".h")]
    return sorted(found)


def including(include_dir):
    """A source that includes all headers, after those of the system that they need and a mark."""
    system = set()
    for header in headers(include_dir):
        with open(os.path.join(include_dir, header), encoding="ascii") as file:
            system.update(re.findall(r"^#include <(.*)>$", file.read(), re.MULTILINE))
    lines = ["#if __has_include(<%s>)\n#include <%s>\n#endif" % (name, name)
             for name in sorted(system)]
    lines.append("struct %s;" % BEGIN)
    lines += ['#include "%s"' % header for header in headers(include_dir)]
    return "\n".join(lines) + "\n"


def syntax_trees(compiler, include_dir, source):
    """The tree of each declaration at the top level of the headers. The text of the trees of the
    system's headers is passed over, not parsed: it is many times longer."""
    command = [compiler, "-std=c++17", "-I" + include_dir, "-fsyntax-only", "-Xclang",
               "-ast-dump=json", source]
    with subprocess.Popen(command, stdout=subprocess.PIPE, encoding="utf-8") as process:
        has_begun = False
        lines = None
        for line in process.stdout:
            if not has_begun:
                has_begun = '"%s"' % BEGIN in line
            elif line.startswith("    {"):
                lines = [line]
            elif lines is not None:
                lines.append(line)
                if line.startswith("    }"):
                    yield json.loads("".join(lines).rstrip().rstrip(","))
                    lines = None
    if process.returncode != 0 or not has_begun:
        raise RuntimeError("%s ended with %d" % (compiler, process.returncode))


class Declarations:
    """Sorts what the trees hold."""

    def __init__(self, trees):
        self.linked = {}     # a function's name at link time -> whether the headers define it
        self.public = set()  # those of the keys that hosts can call
        self.classes = []    # qualified names of classes that are not templates
        self.instances = []  # qualified names of template classes with their arguments
        for tree in trees:
            self._visit(tree, "", True)

    def undefined(self):
        """The public functions whose bodies only the library has."""
        return sorted(name for name in self.public if not self.linked[name])

    def _visit(self, node, scope, is_public):
        kind = node["kind"]
        name = scope + node.get("name", "")
        if kind in ("NamespaceDecl", "LinkageSpecDecl"):
            inside = name + "::" if kind == "NamespaceDecl" else scope
            for child in node.get("inner", ()):
                self._visit(child, inside, is_public)
        elif kind == "CXXRecordDecl" and node.get("completeDefinition"):
            self._visit_class(node, name, is_public)
        elif kind == "ClassTemplateDecl":
            self._visit_template(node, name)
        elif kind in FUNCTIONS:
            self._visit_function(node, is_public)

    def _visit_class(self, node, name, is_public):
        if is_public and "name" in node and not name.startswith("std::"):
            self.classes.append(name)
        access = node["tagUsed"] != "class"
        for child in node.get("inner", ()):
            if child["kind"] == "AccessSpecDecl":
                access = child["access"] == "public"
            else:
                self._visit(child, name + "::", is_public and access)

    def _visit_template(self, node, name):
        for child in node.get("inner", ()):
            if child["kind"] != "ClassTemplateSpecializationDecl" or "name" not in child:
                continue
            arguments = [argument.get("type", {}).get("qualType", str(argument.get("value")))
                         for argument in child.get("inner", ())
                         if argument["kind"] == "TemplateArgument"]
            if child.get("completeDefinition"):
                self.instances.append("%s<%s>" % (name, ", ".join(arguments)))

    def _visit_function(self, node, is_public):
        mangled = node.get("mangledName")
        if mangled is None or node.get("explicitlyDeleted"):
            return
        is_defined = (node.get("isImplicit") or node.get("pure") or "explicitlyDefaulted" in node or
                      any(child["kind"] in ("CompoundStmt", "CXXTryStmt")
                          for child in node.get("inner", ())))
        self.linked[mangled] = self.linked.get(mangled, False) or bool(is_defined)
        # A definition outside its class says nothing of access.
        if is_public and "parentDeclContextId" not in node:
            self.public.add(mangled)
