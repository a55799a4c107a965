#!/usr/bin/env python3
"""Fails when a source includes a folder of a higher layer than its own.

The layers, bottom first: core, product, description, feeds, app. A file may include headers of
its own folder and of the folders below it, never of one above. The feed checker (feedcheck)
sits at the top beside app and uses core only; no layer uses it.
"""
import pathlib
import re
import sys

LAYERS = ["core", "product", "description", "feeds", "app"]
# Folders beside the layers, with the folders each may include besides its own.
BESIDE = {"feedcheck": ["core"]}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z_]+)/', re.MULTILINE)


def allowed(folder: str) -> set:
    if folder in BESIDE:
        return {folder, *BESIDE[folder]}
    return set(LAYERS[: LAYERS.index(folder) + 1])


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent
    known = set(LAYERS) | set(BESIDE)
    wrong = []
    for folder in LAYERS + list(BESIDE):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            for included in INCLUDE.findall(path.read_text(encoding="utf-8")):
                if included in known and included not in allowed(folder):
                    wrong.append(f"{path.relative_to(root)} includes {included}/")
    for line in wrong:
        print(line, file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
