#!/usr/bin/env python3
"""Fails when a source includes a folder of a higher layer than its own.

The layers, bottom first: core, product, description, feeds, app. A file may include headers of
its own folder and of the folders below it, never of one above.
"""
import pathlib
import re
import sys

LAYERS = ["core", "product", "description", "feeds", "app"]
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z_]+)/', re.MULTILINE)


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent
    wrong = []
    for rank, layer in enumerate(LAYERS):
        for path in sorted((root / layer).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            for folder in INCLUDE.findall(path.read_text(encoding="utf-8")):
                if folder in LAYERS and LAYERS.index(folder) > rank:
                    wrong.append(f"{path.relative_to(root)} includes {folder}/")
    for line in wrong:
        print(line, file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
