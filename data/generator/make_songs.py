#!/usr/bin/env python3
"""Writes the demo songs and the reset sequences, from nothing but the Python standard library.

    python3 make_songs.py [FOLDER]

FOLDER gets the folders "songs" and "reset"; without it, this file's parent folder. The same bytes
come out each time, so the files are kept with the sources and nobody needs Python to build."""

import importlib
import pathlib
import pkgutil
import sys

import reset_sequences
import songs


def all_files():
    """{path below the data folder: bytes}"""
    files = {f"reset/{name}": data for name, data in reset_sequences.files().items()}
    for module in pkgutil.iter_modules(songs.__path__):
        song = importlib.import_module(f"songs.{module.name}")
        files[f"songs/{song.FILE_NAME}"] = song.build()
    return files


def main():
    default = pathlib.Path(__file__).resolve().parent.parent
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    for path, data in sorted(all_files().items()):
        target = folder / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(data)
        print(f"{len(data):8}  {path}")


if __name__ == "__main__":
    main()
