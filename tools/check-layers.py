#!/usr/bin/env python3
"""Fails when a product source includes a header of a folder it may not use.

The allowed edges stand in tools/layers.txt, one folder a line:

    reporting: companion settings support schema state

A folder may include its own headers, those of the folders on its line and,
through them, whatever those may include. A file belongs to the longest
folder of the table that holds it (platform/posix before platform); files of
folders outside the table (sim/, apps/, tests/) are not checked, but the
folders of the table may not include them.

    tools/check-layers.py [ROOT [LAYERS]]   # defaults: the project, ROOT/tools/layers.txt

Prints one line per offending include, "support/x.cpp:3: support -> addin",
and exits 1; exits 0 in silence when every include points down.
"""
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def read_layers(path):
    edges = {}
    for number, raw in enumerate(path.read_text().splitlines(), 1):
        line = raw.split("#", 1)[0].strip()
        if not line:
            continue
        folder, sep, uses = line.partition(":")
        if not sep:
            sys.exit(f"{path}:{number}: expected 'folder: folders it uses'")
        edges[folder.strip()] = set(uses.split())
    return edges


def reachable(edges):
    closure = {}
    for start in edges:
        seen, todo = {start}, [start]
        while todo:
            for used in edges.get(todo.pop(), ()):
                if used not in seen:
                    seen.add(used)
                    todo.append(used)
        closure[start] = seen
    return closure


def folder_of(path, edges):
    """The longest folder of the table holding `path`, else its first part."""
    parts = pathlib.PurePosixPath(path).parts[:-1]
    for length in range(len(parts), 0, -1):
        folder = "/".join(parts[:length])
        if folder in edges:
            return folder
    return parts[0] if parts else None


def offences(root, edges):
    allowed = reachable(edges)
    for source in sorted(root.rglob("*")):
        if source.suffix not in (".h", ".cpp") or not source.is_file():
            continue
        name = source.relative_to(root).as_posix()
        folder = folder_of(name, edges)
        if folder not in edges:
            continue
        for number, line in enumerate(source.read_text(errors="replace").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match or not (root / match.group(1)).exists():
                continue  # a system header, or one beside the file
            used = folder_of(match.group(1), edges)
            if used not in allowed[folder]:
                yield f"{name}:{number}: {folder} -> {used}"


def main(argv):
    root = pathlib.Path(argv[1]) if len(argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    layers = pathlib.Path(argv[2]) if len(argv) > 2 else root / "tools" / "layers.txt"
    found = list(offences(root, read_layers(layers)))
    for offence in found:
        print(offence)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
