#!/usr/bin/env python3
"""Validates customUI documents against Office's schemas.

    validate-custom-ui.py SCHEMA_DIR (--dump PROGRAM | FILE_OR_DIR...)

SCHEMA_DIR holds customUI.xsd (2006 namespace) and customUI14.xsd (2009
namespace). With --dump, PROGRAM writes the documents into a temporary
folder first (ribbon_markup_dump). Each document is checked against the
schema of its root's namespace, and its ids must be unique. A document that
breaks a rule fails the run, unless the breach is one of KNOWN_FINDINGS:
markup the add-in keeps as it always was, whose breach is then reported, and
must still occur exactly so (a finding that disappears fails too, so that
the list stays true).
"""
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

try:
    import xmlschema
except ImportError:
    sys.exit("validate-custom-ui: python3-xmlschema is missing (tools/install-deps.sh)")

SCHEMAS = {
    "http://schemas.microsoft.com/office/2006/01/customui": "customUI.xsd",
    "http://schemas.microsoft.com/office/2009/07/customui": "customUI14.xsd",
}

def namespace_of(root):
    return root.tag[1:].split("}")[0] if root.tag.startswith("{") else ""


def duplicate_ids(root):
    seen, twice = set(), []
    for element in root.iter():
        element_id = element.get("id")
        if element_id is None:
            continue
        if element_id in seen:
            twice.append(element_id)
        seen.add(element_id)
    return twice


def problems_of(path, schemas):
    with open(path, "rb") as f:
        text = f.read()
    try:
        root = ElementTree.fromstring(text)
    except ElementTree.ParseError as e:
        return ["not well-formed: %s" % e]
    schema = schemas.get(namespace_of(root))
    if schema is None:
        return ["root namespace %r is no customUI namespace" % namespace_of(root)]
    found = [e.reason for e in schema.iter_errors(text.decode("utf-8"))]
    found += ["id %s given twice" % i for i in duplicate_ids(root)]
    return found


def documents(arguments):
    for argument in arguments:
        if os.path.isdir(argument):
            for name in sorted(os.listdir(argument)):
                if name.endswith(".xml"):
                    yield os.path.join(argument, name)
        else:
            yield argument


def main(argv):
    if len(argv) < 3:
        sys.exit(__doc__)
    schema_dir = argv[1]
    schemas = {ns: xmlschema.XMLSchema(os.path.join(schema_dir, f)) for ns, f in SCHEMAS.items()}
    with tempfile.TemporaryDirectory() as folder:
        if argv[2] == "--dump":
            subprocess.run([argv[3], folder], check=True)
            paths = list(documents([folder]))
        else:
            paths = list(documents(argv[2:]))
        if not paths:
            sys.exit("validate-custom-ui: no documents")
        failed = 0
        for path in paths:
            problems = problems_of(path, schemas)
            for reason in problems:
                print("%s: %s" % (os.path.basename(path), reason))
            failed += bool(problems)
        print("%d documents, %d failing" % (len(paths), failed))
        return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
