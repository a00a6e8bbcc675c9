#!/usr/bin/env python3
"""Compares the dynamic symbol tables of the libraries with the lists beside this file, or regenerates the lists.

Every symbol must belong to a class with a public header of the same name, or be one of the few free names.
"""
import argparse
import pathlib
import re
import subprocess
import sys

FREE_NAMES = {"CreateResultSetting", "CreateSolverSetting", "TarnGUICommonVersion", "g_mapParaArrays"}
UPDATE = "cmake --build --preset dev --target update_exported_symbols"
STRING = "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"


def exported(library):
    """Returns the sorted, demangled symbols, without those implied by a typeinfo or virtual function."""
    table = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", "--format=just-symbols", library],
                           check=True, capture_output=True, text=True).stdout
    names = {line.replace(STRING, "std::string") for line in table.splitlines()}
    return sorted(name for name in names if not re.match(r"typeinfo name for |(non-)?virtual thunk to ", name))


def is_public(symbol, classes):
    if "::Private::" in symbol:
        return False
    name = re.match(r"(?:typeinfo for |vtable for |VTT for |guard variable for )?(~?\w+)(::)?", symbol)
    return bool(name) and name[1] in (classes if name[2] or " for " in symbol else FREE_NAMES)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--lists", type=pathlib.Path, required=True)
    parser.add_argument("--headers", nargs="+", required=True)
    parser.add_argument("--libraries", nargs="+", required=True)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()

    classes = {pathlib.Path(header).stem for header in arguments.headers}
    failed = False
    for library in arguments.libraries:
        name = pathlib.Path(library).name.split(".")[0].removeprefix("lib")
        file = arguments.lists / f"{name}.txt"
        symbols = exported(library)
        strangers = [symbol for symbol in symbols if not is_public(symbol, classes)]
        if strangers:
            print(f"{name} exports symbols that no public header declares:", *strangers, sep="\n  ")
            print("List the header of the class in tarn_public_headers(), or do not export the class.")
            failed = True
            continue
        if arguments.update:
            file.write_text("\n".join(symbols) + "\n")
        listed = file.read_text().splitlines()
        changes = [f"+ {symbol}" for symbol in symbols if symbol not in listed]
        changes += [f"- {symbol}" for symbol in listed if symbol not in symbols]
        if changes:
            print(f"{name} differs from {file.name}:", *changes, sep="\n  ")
            print(f"If this is intended: {UPDATE}")
            failed = True
    return failed


if __name__ == "__main__":
    sys.exit(main())
