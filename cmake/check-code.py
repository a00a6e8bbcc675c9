#!/usr/bin/env python3
"""Runs clang-tidy and clazy on every C++ file of a build tree, on all processors.

    cmake/check-code.py [--all] <build folder> [<path prefix>...]

Skips a file that has passed until the file, one of its headers, its command line, the configuration
or a tool changes; --all checks all files again. Findings are errors.

Most of the time goes into the headers of Qt and of the kernel. Files that are compiled alike are
therefore joined and checked in one run. If a joined run finds anything, each of its files runs alone.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

from joined import joined

ROOT = pathlib.Path(__file__).resolve().parent.parent
TIDY = ["clang-tidy-14", "--quiet"]
CLAZY = ["clazy-standalone", "-checks=level1,no-old-style-connect,no-non-pod-global-static,no-connect-by-name"]


def commands(build):
    """Returns the files and how each is compiled; a file in several targets occurs once."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.suffix != ".cpp" or build in path.parents or ROOT not in path.parents:
            continue
        words = shlex.split(entry["command"])
        start = next(i for i, word in enumerate(words) if word.startswith("-"))
        flags = words[start : words.index("-o")]
        # Compiler warnings are not checked here: the build has passed.
        flags = [flag for flag in flags if not flag.startswith("-W")]
        # Each file includes what it uses, and clang cannot read the precompiled headers of g++.
        if "-include" in flags:
            del flags[flags.index("-include") : flags.index("-include") + 2]
        found.setdefault(path, (entry["directory"], words[words.index("-o") + 1], flags))
    return found


def dependencies(build):
    """Returns the dependencies of each object, as recorded by the last build."""
    text = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, capture_output=True, text=True).stdout
    found = {}
    for block in text.split("\n\n"):
        lines = block.splitlines()[1 if block.startswith("ninja: ") else 0 :]
        if lines:
            found[lines[0].split(":")[0]] = [build / line.strip() for line in lines[1:]]
    return found


def state(path, known={}):
    """Identifies project files by content, system files by time and size."""
    if path not in known:
        if ROOT in path.parents:
            known[path] = hashlib.sha256(path.read_bytes()).hexdigest()
        else:
            status = path.stat()
            known[path] = f"{status.st_mtime_ns} {status.st_size}"
    return known[path]


def fingerprint(tool, path, flags, files):
    parts = [*tool, *flags]
    for folder in [ROOT, *reversed(path.relative_to(ROOT).parents)]:
        config = ROOT / folder / ".clang-tidy"
        if config.exists():
            parts.append(config.read_text())
    parts += [f"{file} {state(file)}" for file in sorted({path, *files})]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def check(tool, path, directory, flags):
    """Returns what the tool finds in the file, or an empty text."""
    run = subprocess.run([*tool, str(path), "--", *flags], cwd=directory, capture_output=True, text=True)
    noise = (" warnings generated.", " warning generated.")
    lines = [line for line in (run.stdout + run.stderr).splitlines() if not line.endswith(noise)]
    # clazy exits with 0 even if it finds something.
    if run.returncode != 0 or any("warning:" in line or "error:" in line for line in lines):
        return "\n".join(lines) or f"{tool[0]} exited with {run.returncode} for {path}"
    return ""


def check_all(tool, paths, directory, flags, build):
    """Returns what the tool finds in each of the files: in one run over all, and file by file if that finds anything."""
    if len(paths) > 1:
        with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=build) as whole:
            whole.writelines(path.read_text() + "\n" for path in paths)
            whole.flush()
            folders = [f"-iquote{path.parent}" for path in paths]
            if not check(tool, whole.name, directory, [*flags, *dict.fromkeys(folders)]):
                return [""] * len(paths)
    return [check(tool, path, directory, flags) for path in paths]


def main(arguments):
    forget = "--all" in arguments
    arguments = [argument for argument in arguments if argument != "--all"]
    if not arguments:
        sys.exit(__doc__)
    prefixes = tuple(arguments[1:]) or ("",)
    build = pathlib.Path(arguments[0]).resolve()
    if not (build / "build.ninja").exists():
        sys.exit(f"{arguments[0]} has no build; for example: cmake --preset dev && cmake --build --preset dev")
    files = {path: how for path, how in commands(build).items() if str(path.relative_to(ROOT)).startswith(prefixes)}
    if not files:
        sys.exit(f"no source of {arguments[0]} begins with {' or '.join(prefixes)}")
    passed_file = build / "checked.json"
    passed = json.loads(passed_file.read_text()) if passed_file.exists() and not forget else {}
    versions = [subprocess.run([tool[0], "--version"], capture_output=True, text=True).stdout for tool in (TIDY, CLAZY)]
    made_of = dependencies(build)

    marks, alike = {}, {}
    for path, (directory, target, flags) in files.items():
        name = str(path.relative_to(ROOT))
        for tool, version in zip((TIDY, CLAZY), versions):
            mark = fingerprint([*tool, version], path, flags, made_of.get(target, []))
            if passed.get(f"{tool[0]} {name}") != mark:
                marks[tool[0], path] = mark
                # A joined file lies in the build folder, where the configuration of the project applies.
                alone = any((folder / ".clang-tidy").exists() for folder in path.parents if ROOT in folder.parents)
                key = (*tool, directory, *flags, path if alone else None)
                alike.setdefault(key, (tool, directory, flags, []))[3].append(path)

    failures = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        running = {}
        for tool, directory, flags, paths in alike.values():
            for group in joined(paths):
                running[pool.submit(check_all, tool, group, directory, flags, build)] = (tool, group)
        for done in concurrent.futures.as_completed(running):
            tool, group = running[done]
            for path, findings in zip(group, done.result()):
                if findings:
                    failures += 1
                    print(findings, flush=True)
                else:
                    passed[f"{tool[0]} {path.relative_to(ROOT)}"] = marks[tool[0], path]
            passed_file.write_text(json.dumps(passed, indent=1, sort_keys=True))
    print(f"clang-tidy and clazy: {len(marks)} check(s), {failures} with findings")
    sys.exit(failures > 0)


if __name__ == "__main__":
    main(sys.argv[1:])
