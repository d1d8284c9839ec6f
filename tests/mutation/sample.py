#!/usr/bin/env python3
# Copyright (c) 2026 The Korvex ISO Editor developers
# SPDX-License-Identifier: MIT
"""Breaks the program in small ways, drawn at random, and says which of them no test notices.

    tests/mutation/sample.py [--count N] [--seed N] [--only PATH]... [--list]

Each mutant changes one place of src/: an operator, a constant, a condition, or a statement that is
taken away. Only the tests that execute the changed line are run against it, the quickest first, until
one fails. Which tests those are is measured first, in a build of a copy: build/mutation.

A mutant that survives is no failure of this script, as some change nothing that anybody could see. It
fails when fewer than 85 % are noticed, or when the tests fail without any change.
"""

import argparse
import gzip
import hashlib
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
# What is broken is a copy: an interrupted run leaves no fault behind in the sources.
ROOT = PROJECT / "build" / "mutation" / "source"
BUILD = PROJECT / "build" / "mutation" / "build"
COVERAGE = BUILD / "executed-lines.json"
LEAST_NOTICED = 0.85

# Replacements by pattern, on a line without its texts and comments.
SWAPS = [
    (r" == ", " != "), (r" != ", " == "), (r" <= ", " < "), (r" >= ", " > "),
    (r"(?<![<\w]) < (?!<)", " <= "), (r"(?<![>-]) > (?!>)", " >= "),
    (r" && ", " || "), (r" \|\| ", " && "), (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"), (r"(?<=\()!(?=\w)", ""), (r"\+\+(?=\w)", "--"),
    (r" \+= ", " -= "), (r"\bbreak;", ";"), (r"\bcontinue;", ";"),
]
NUMBER = re.compile(r"(?<![\w.'\"])(\d[\d']*)(?![\w.'])")
# A whole call or assignment on a line of its own. Taking away a declaration would not compile.
STATEMENT = re.compile(r"^\s+(?!return\b|case\b|emit\s*$|else\b|delete\b|using\b|const\b|auto\b|static\b)"
                       r"[\w:.>\-\[\]()*]+\s*(\(.*\)|=[^=].*|\+=.*);$")
# What is for developers' eyes only, and what the compiler alone judges.
IGNORED = re.compile(r"qDebug|qCDebug|static_assert|Q_OBJECT|^\s*#|^\s*(namespace|using|class|struct)\b")


def masked(line):
    """The line with its texts and comments blanked, at its length."""
    line = re.sub(r'"(\\.|[^"\\])*"', lambda m: '"' + " " * (len(m[0]) - 2) + '"', line)
    line = re.sub(r"'(\\.|[^'\\])'", lambda m: "' '".ljust(len(m[0])), line)
    return re.sub(r"//.*", lambda m: " " * len(m[0]), line)


def mutants_of(path):
    """All mutants of a file: (line number from 1, the line's new text)."""
    for number, line in enumerate(path.read_text().splitlines(), 1):
        code = masked(line)
        if IGNORED.search(code) or not code.strip():
            continue
        for pattern, replacement in SWAPS:
            for match in re.finditer(pattern, code):
                yield number, line[:match.start()] + replacement + line[match.end():]
        for match in NUMBER.finditer(code):
            value = int(match[1].replace("'", ""))
            other = value + 1 if value < 100 else value * 2
            yield number, line[:match.start()] + str(other) + line[match.end():]
        if STATEMENT.match(code.rstrip()):
            yield number, re.match(r"\s*", line)[0] + ";"


def run(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)


def build(target="all"):
    return run(["cmake", "--build", str(BUILD), "--target", target])


def copy_sources():
    """Renews the copy; what is the same there keeps its time, so that little is built again."""
    wanted = set()
    for name in run(["git", "-C", str(PROJECT), "ls-files", "-z", "-co", "--exclude-standard"],
                    ).stdout.decode().split("\0"):
        source, copy = PROJECT / name, ROOT / name
        if not name or not source.is_file():
            continue
        wanted.add(copy)
        if not copy.exists() or copy.read_bytes() != source.read_bytes():
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)
    for copy in [p for p in ROOT.rglob("*") if p.is_file() and p not in wanted]:
        copy.unlink()


def configure():
    flags = "-O0 --coverage"
    command = ["cmake", "-S", str(ROOT), "-B", str(BUILD), "-G", "Ninja",
               "-DKORVEX_SHARED_LIBRARIES=ON", "-DKORVEX_BUILD_BENCH=OFF", "-DKORVEX_BUILD_TOUR=OFF",
               "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=" + flags,
               "-DCMAKE_SHARED_LINKER_FLAGS=--coverage", "-DCMAKE_EXE_LINKER_FLAGS=--coverage"]
    result = run(command)
    if result.returncode == 0:
        result = build()
    if result.returncode != 0:
        sys.exit(result.stdout.decode(errors="replace")[-4000:] + "\nThe program could not be built.")


class Test:
    """A test as ctest knows it, run without ctest."""

    def __init__(self, entry):
        properties = {p["name"]: p["value"] for p in entry.get("properties", [])}
        self.name = entry["name"]
        self.labels = properties.get("LABELS", [])
        self.command = entry.get("command", [])
        self.folder = properties.get("WORKING_DIRECTORY", str(BUILD))
        self.limit = 3 * float(properties.get("TIMEOUT", 120))
        self.environment = dict(v.split("=", 1) for v in properties.get("ENVIRONMENT", []))
        self.seconds = 0.0

    def passes(self, counts):
        """Runs it; counts is the folder for what it executes."""
        environment = dict(os.environ, **self.environment, GCOV_PREFIX=str(counts))
        begun = time.monotonic()
        process = subprocess.Popen(self.command, cwd=self.folder, env=environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            status = process.wait(self.limit)
        except subprocess.TimeoutExpired:
            status = 1
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        self.seconds = time.monotonic() - begun
        return status == 0


def all_tests():
    listed = json.loads(run(["ctest", "--test-dir", str(BUILD), "--show-only=json-v1"]).stdout)
    tests = [Test(entry) for entry in listed["tests"]]
    return [t for t in tests if t.command and not {"system", "project"} & set(t.labels)]


def executed_lines(counts):
    """{file below src: lines that were executed}, of what a test left in its folder."""
    executed = {}
    data = [p for p in counts.rglob("*.gcda") if "/src/" in str(p)]
    for file in data:
        original = Path("/") / file.relative_to(counts)
        notes = original.with_suffix(".gcno")
        if notes.exists():
            shutil.copy(notes, file.with_suffix(".gcno"))
    result = subprocess.run(["gcov", "--json-format", "--stdout"] + [str(p) for p in data],
                            cwd=BUILD, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    output = result.stdout
    if output[:2] == b"\x1f\x8b":
        output = gzip.decompress(output)
    for document in output.decode().splitlines():
        for file in json.loads(document)["files"]:
            path = os.path.realpath(os.path.join(BUILD, file["file"]))
            if path.startswith(str(ROOT / "src")):
                lines = executed.setdefault(os.path.relpath(path, ROOT), set())
                lines.update(l["line_number"] for l in file["lines"] if l["count"] > 0)
    return executed


def fingerprint():
    digest = hashlib.sha256()
    for folder in ("src", "tests", "tools"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.is_file() and path.suffix in (".cpp", ".h", ".txt"):
                digest.update(str(path).encode() + path.read_bytes())
    return digest.hexdigest()


def measure(tests):
    """{file: {line: [test names]}}, measured once for the sources as they are."""
    wanted = fingerprint()
    if COVERAGE.exists():
        known = json.loads(COVERAGE.read_text())
        if known["fingerprint"] == wanted:
            for test in tests:
                test.seconds = known["seconds"][test.name]
            return known["lines"]
    print(f"== Running {len(tests)} tests to learn what each executes", flush=True)
    lines = {}
    failed = []
    for test in tests:
        counts = BUILD / "counts" / test.name
        shutil.rmtree(counts, ignore_errors=True)
        counts.mkdir(parents=True)
        if not test.passes(counts):
            failed.append(test.name)
        for file, numbers in executed_lines(counts).items():
            for number in numbers:
                lines.setdefault(file, {}).setdefault(str(number), []).append(test.name)
        shutil.rmtree(counts)
    if failed:
        sys.exit("These tests fail without any change: " + ", ".join(failed))
    COVERAGE.write_text(json.dumps({"fingerprint": wanted, "lines": lines,
                                    "seconds": {t.name: t.seconds for t in tests}}))
    return lines


def judge(file, number, text, tests):
    """Builds one mutant and runs what executes its line. Returns a word and a detail."""
    path = ROOT / file
    original = path.read_bytes()
    lines = original.decode().split("\n")
    lines[number - 1] = text
    try:
        path.write_text("\n".join(lines))
        if build().returncode != 0:
            return "does not compile", ""
        for test in sorted(tests, key=lambda t: t.seconds):
            seconds = test.seconds
            counts = BUILD / "counts" / "mutant"
            noticed = not test.passes(counts)
            test.seconds = seconds
            shutil.rmtree(counts, ignore_errors=True)
            if noticed:
                return "noticed", test.name
        return "survives", f"{len(tests)} tests"
    finally:
        path.write_bytes(original)


def main():
    parser = argparse.ArgumentParser(description="Tells which small faults no test notices.")
    parser.add_argument("--count", type=int, default=20, help="how many mutants (default 20)")
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(10**6))
    parser.add_argument("--only", action="append", default=[], help="a path below src/")
    parser.add_argument("--list", action="store_true", help="show them without running any")
    options = parser.parse_args()
    copy_sources()
    sources = sorted(p for p in (ROOT / "src").rglob("*.cpp")
                     if not options.only or any(o in str(p) for o in options.only))
    candidates = [(str(p.relative_to(ROOT)), n, t) for p in sources for n, t in mutants_of(p)]
    chosen = random.Random(options.seed).sample(candidates, min(len(candidates), 2 * options.count))
    print(f"== {options.count} of {len(candidates)} mutants, seed {options.seed}", flush=True)
    if options.list:
        for file, number, text in chosen[:options.count]:
            print(f"{file}:{number}: {text.strip()}")
        return
    configure()
    tests = all_tests()
    lines = measure(tests)
    by_name = {test.name: test for test in tests}
    tally = {"noticed": 0, "survives": 0, "never executed": 0}
    for file, number, text in chosen:
        if sum(tally.values()) == options.count:
            break
        runs = lines.get(file, {}).get(str(number), [])
        if runs:
            verdict, detail = judge(file, number, text, [by_name[n] for n in runs])
        else:
            verdict, detail = "never executed", ""
        if verdict in tally:
            tally[verdict] += 1
        print(f"{verdict:16} {file}:{number}: {text.strip() or ';'}  ({detail})", flush=True)
    build()
    total = max(1, sum(tally.values()))
    print(f"== {tally['noticed']} of {total} noticed, {tally['survives']} survive, "
          f"{tally['never executed']} never executed, seed {options.seed}")
    if tally["noticed"] < LEAST_NOTICED * total:
        sys.exit("Fewer than 85 % are noticed.")


if __name__ == "__main__":
    main()
