#!/usr/bin/env python3
"""Compares sizes, members and virtual functions of what the libraries export with the descriptions beside this file.

A description is what abidw found in a library of the last version, compressed. Additions pass. --update replaces the
descriptions: for a new version that may break the interface, or before the first release.
"""
import argparse
import lzma
import pathlib
import shutil
import subprocess
import sys
import tempfile

UPDATE = "cmake --build --preset dev --target update_interface"


def describe(library, headers):
    """Returns the description of a library, without what depends on the machine or is not ours."""
    return subprocess.run(["abidw", "--headers-dir", headers, "--drop-private-types", "--drop-undefined-syms",
                           "--exported-interfaces-only", "--type-id-style", "hash", "--no-corpus-path",
                           "--no-comp-dir-path", "--no-show-locs", "--no-architecture", library],
                          check=True, capture_output=True).stdout


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--descriptions", type=pathlib.Path, required=True)
    parser.add_argument("--headers", nargs="+", required=True)
    parser.add_argument("--libraries", nargs="+", required=True)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()

    failed = False
    with tempfile.TemporaryDirectory() as folder:
        headers = pathlib.Path(folder, "headers")
        headers.mkdir()
        for header in arguments.headers:
            shutil.copy(header, headers)
        for library in arguments.libraries:
            name = pathlib.Path(library).name.split(".")[0].removeprefix("lib")
            stored = arguments.descriptions / f"{name}.abi.xz"
            if arguments.update:
                stored.write_bytes(lzma.compress(describe(library, headers)))
                continue
            before = pathlib.Path(folder, f"{name}.abi")
            before.write_bytes(lzma.decompress(stored.read_bytes()))
            now = pathlib.Path(folder, f"{name}-now.abi")
            now.write_bytes(describe(library, headers))
            result = subprocess.run(["abidiff", "--no-added-syms", before, now], capture_output=True, text=True)
            if result.returncode != 0:
                print(f"{name} differs from {stored.name}:", result.stdout + result.stderr, sep="\n")
                failed = True
    if failed:
        print(f"Hosts built with the last version would break. If this is intended: {UPDATE}")
    return failed


if __name__ == "__main__":
    sys.exit(main())
