#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Tests the tests: changes the sources of the library one place at a time and looks whether a test fails.

    scripts/mutate.py FOLDER [--area AREA]... [--file PATH]... [--each N] [--seed S] [--operator NAME]...

FOLDER receives a copy of the committed sources, a build of it (the first takes minutes), and results.jsonl, one line a
mutant; mutants that stand there already are not tried again, so a stopped run goes on. AREA is platform, frame,
selection, material, coordinates or meshquality. N is the most mutants of one file, drawn with the seed; without it all
are tried. A mutant is killed by a compiler error as little as by a passing test: it must build, and then a test of its
area, or of those areas that build on it, must fail, crash or hang. Survivors that change nothing anybody can see stand
in tests/mutants-that-change-nothing.txt with the reason; they are counted apart.
"""
import argparse
import json
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = {"platform": "platform", **{area: f"datamanager/{area}" for area in
                                      ("frame", "selection", "material", "coordinates", "meshquality")}}
# Whose tests see a change of an area: its own first, then those that build on it.
WATCHERS = {
    "platform": ["platform", "material", "coordinates", "frame"],
    "frame": ["frame", "material", "coordinates"],
    "selection": ["selection", "frame"],
    "material": ["material", "apps"],
    "coordinates": ["coordinates"],
    "meshquality": ["meshquality", "apps"],
}
RELATIONS = {" < ": [" <= "], " <= ": [" < "], " > ": [" >= "], " >= ": [" > "], " == ": [" != "], " != ": [" == "]}
LOGIC = {" && ": [" || "], " || ": [" && "], " + ": [" - "], " - ": [" + "]}
STATEMENT = re.compile(r"^\s+(?!return|break|continue|throw|using|case|default|else|delete|const |auto |static |friend )"
                       r"(Q_EMIT )?[\w:*\->.\[\]()]+(\(.*\)|\+\+|--| [+\-|&^]?= .*)?;$")
DECLARATION = re.compile(r"^\s+[\w:<>*&, ]+ [*&]?\w+( = .*|\{.*\}|\(.*\))?;$")
LITERAL = re.compile(r"(?<![\w.\"'])(\d+)(?![\w.\"'])")
TEXT = re.compile(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'')


def blank_texts(line):
    """The line with its comment cut off and its texts blanked, at unchanged places."""
    line = TEXT.sub(lambda match: '"' + "_" * (len(match.group()) - 2) + '"', line)
    return line.split("//")[0].rstrip()


def swaps(code, line, table, name):
    for old, news in table.items():
        at = code.find(old)
        while at >= 0:
            for new in news:
                yield name, line[:at] + new + line[at + len(old):]
            at = code.find(old, at + 1)


def mutants_of_line(line, before):
    """(operator, changed line) for each place of the line that can be changed."""
    code = blank_texts(line)
    if not code.startswith(" ") or code.lstrip().startswith(("#", "static_assert", "case ", "template", "friend", "Q_D")):
        return
    yield from swaps(code, line, RELATIONS, "relation")
    yield from swaps(code, line, LOGIC, "operator")
    for match in LITERAL.finditer(code):
        yield "offByOne", line[:match.start()] + str(int(match.group()) + 1) + line[match.end():]
    condition = re.match(r"^(\s*(?:\} else )?(?:if|while) \()(.*)(\) \{)$", code)
    if condition and ";" not in condition.group(2) and " = " not in condition.group(2):
        start, end = condition.span(2)
        yield "negatedCondition", line[:start] + "!(" + line[start:end] + ")" + line[end:]
        if "while" not in condition.group(1):
            yield "droppedCheck", line[:start] + "false && (" + line[start:end] + ")" + line[end:]
    if re.match(r"^\s*return (true|false);$", code):
        yield "result", line.replace("true", "\0").replace("false", "true").replace("\0", "false")
    whole = not before or blank_texts(before)[-1:] in "{};:" or not before.strip()
    if whole and STATEMENT.match(code) and not DECLARATION.match(code) and ".reserve(" not in code:
        yield "droppedStatement", re.match(r"^\s*", line).group() + ";"


def mutants_of_file(path):
    lines = path.read_text(encoding="utf-8").split("\n")
    for number, line in enumerate(lines):
        for operator, changed in mutants_of_line(line, lines[number - 1] if number else ""):
            yield {"line": number + 1, "operator": operator, "was": line.strip(), "became": changed.strip(), "text": changed}


def run(command, seconds):
    """The exit code; 124, with the whole process group killed, after too many seconds."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return 124


class Workshop:
    """A copy of the sources with a build, in which one mutant at a time stands."""

    def __init__(self, folder):
        self.source = folder / "source"
        self.build = folder / "build"
        self.prepare()

    def prepare(self):
        self.source.mkdir(parents=True, exist_ok=True)
        archive = subprocess.Popen(["git", "-C", str(HERE), "archive", "HEAD"], stdout=subprocess.PIPE)
        subprocess.run(["tar", "-x", "-C", str(self.source)], stdin=archive.stdout, check=True)
        root = subprocess.check_output([str(HERE / "scripts/setup.sh"), "--print-onnxruntime-root"], text=True).strip()
        subprocess.run(["cmake", "--preset", "release", "-B", str(self.build), "-S", str(self.source),
                        "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O1", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                        f"-DONNXRUNTIME_ROOT={root}"], cwd=self.source, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["ninja", "-C", str(self.build)], check=True, stdout=subprocess.DEVNULL)

    def tests(self, area):
        """Names of an area's tests; what needs a display or builds other projects is left out."""
        return sorted(path.stem for path in (self.source / "tests" / area).glob("tst_*.cpp"))

    def compiles(self):
        return run(["ninja", "-C", str(self.build)], 1200) == 0

    def killer(self, area, seconds):
        """The area whose tests fail, or an empty text."""
        for watcher in WATCHERS[area]:
            names = "^(" + "|".join(self.tests(watcher)) + ")$"
            command = ["ctest", "--test-dir", str(self.build), "-R", names, "--stop-on-failure", "-j", "2"]
            if run(command, seconds) != 0:
                return watcher
        return ""

    def verdict(self, area, path, mutant, seconds):
        target = self.source / path
        original = target.read_text(encoding="utf-8")
        lines = original.split("\n")
        lines[mutant["line"] - 1] = mutant["text"]
        try:
            target.write_text("\n".join(lines), encoding="utf-8")
            if not self.compiles():
                return "does not compile"
            killer = self.killer(area, seconds)
            return f"killed by {killer}" if killer else "survived"
        finally:
            target.write_text(original, encoding="utf-8")


def key(record):
    return (record["file"], record["was"], record["became"], record["operator"], record["line"])


def explained():
    listed = HERE / "tests/mutants-that-change-nothing.txt"
    rows = [line.split(" | ") for line in listed.read_text(encoding="utf-8").splitlines()] if listed.exists() else []
    return {(row[0], row[1], row[2]) for row in rows if len(row) == 4}


def report(records):
    known = explained()
    counted = [record for record in records if record["verdict"] != "does not compile"]
    idle = [r for r in counted if r["verdict"] == "survived" and (r["file"], r["was"], r["became"]) in known]
    alive = [r for r in counted if r["verdict"] == "survived" and r not in idle]
    killed = len(counted) - len(idle) - len(alive)
    for record in alive:
        print(f"survived: {record['file']}:{record['line']}: {record['was']}  ->  {record['became']}")
    share = 100.0 * killed / max(1, killed + len(alive))
    print(f"{len(counted)} mutants: {killed} killed, {len(alive)} survived, {len(idle)} change nothing; {share:.1f} % killed")


def chosen_files(options):
    for area in options.area or FOLDERS:
        for path in sorted((HERE / FOLDERS[area]).rglob("*")):
            relative = str(path.relative_to(HERE))
            if path.suffix in (".cpp", ".h") and (not options.file or relative in options.file):
                yield area, relative


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--area", action="append", choices=sorted(FOLDERS))
    parser.add_argument("--file", action="append")
    parser.add_argument("--operator", action="append")
    parser.add_argument("--each", type=int, default=0)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--seconds", type=int, default=600, help="an area's tests that take longer hang")
    parser.add_argument("--report", action="store_true", help="only sum up what was tried so far")
    options = parser.parse_args()
    options.folder.mkdir(parents=True, exist_ok=True)
    results = options.folder / "results.jsonl"
    records = [json.loads(line) for line in results.read_text().splitlines()] if results.exists() else []
    if options.report:
        return report(records)
    tried = {key(record) for record in records}
    workshop = Workshop(options.folder)
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    for area, path in chosen_files(options):
        mutants = [m for m in mutants_of_file(HERE / path) if not options.operator or m["operator"] in options.operator]
        random.Random(f"{options.seed} {path}").shuffle(mutants)
        for mutant in mutants[:options.each or None]:
            record = {"file": path, **{name: mutant[name] for name in ("line", "operator", "was", "became")}}
            if key(record) in tried:
                continue
            start = time.monotonic()
            record["verdict"] = workshop.verdict(area, path, mutant, options.seconds)
            record["took"] = round(time.monotonic() - start, 1)
            records.append(record)
            with results.open("a") as file:
                file.write(json.dumps(record) + "\n")
            print(f"{record['verdict']:20} {path}:{record['line']} {record['operator']}", file=sys.stderr, flush=True)
    report(records)


if __name__ == "__main__":
    main()
