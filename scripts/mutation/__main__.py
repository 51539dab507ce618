# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Tests the tests: changes the sources of the library one place at a time and looks whether a test fails.

    /usr/bin/python3 scripts/mutation FOLDER [--area AREA]... [--file PATH]... [--again] [--seconds N] [--report]

FOLDER, outside of the tree and open to everybody, receives a copy of the committed sources, one build that holds every
mutant behind a switch, and results.jsonl, one line a mutant. Mutants that stand there are not tried again, so a stopped
run goes on; --again tries only those again that survived. After a new commit the copy and the build are brought up to date, and
the verdicts on places whose text is the same are kept. A mutant is killed when a test that reaches it fails, crashes, or takes more
than five times its time and five seconds. Survivors that change nothing anybody can see stand in
tests/mutants-that-change-nothing.txt with the reason. Needs Debian's python3-clang-14.
"""
import argparse
import itertools
import json
import os
import pathlib
import subprocess
import sys

from report import explained, report
from suite import AREAS, Suite
from trial import Trial
from workshop import HERE, Workshop, area_of, name_of

# What a test can depend on.
TREES = ("CMakeLists.txt", "apps", "cmake", "datamanager", "fuzz", "model", "platform", "samples", "scripts/mutation", "tests")


def chosen(mutants, options):
    areas = options.area or AREAS
    wanted = [mutant for mutant in mutants if mutant["compiles"] and area_of(mutant["file"]) in areas and
              (not options.file or mutant["file"] in options.file)]
    return sorted(wanted, key=lambda mutant: (AREAS.index(area_of(mutant["file"])), mutant["id"]))


def prepared(folder):
    """The workshop with the sources and tests that are committed."""
    workshop, mark = Workshop(folder), folder / "trees"
    trees = subprocess.check_output(["git", "-C", str(HERE), "ls-tree", "HEAD", *TREES], text=True)
    if not mark.exists() or mark.read_text() != trees:
        workshop.prepare()
        mark.write_text(trees)
    return workshop


def seal(folder):
    """Goes on where nothing but the folder and what is temporary can be written: a changed save may replace any file,
    and as root's even a device."""
    script = ('set -e; for place in "$0" /tmp; do mount --bind "$place" "$place"; done; '
              'for place in / /dev; do mount -o remount,bind,ro "$place"; done; exec "$@"')
    command = ["unshare", "--mount", *([] if os.geteuid() == 0 else ["--map-root-user"]), "sh", "-c", script, str(folder)]
    os.environ["MUTATION_SEALED"] = "1"
    os.execvp(command[0], [*command, sys.executable, str(pathlib.Path(__file__).resolve().parent), *sys.argv[1:]])


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--area", action="append", choices=AREAS)
    parser.add_argument("--file", action="append")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--seconds", type=float, default=90, help="of tests at most for one mutant")
    parser.add_argument("--report", action="store_true", help="only tell what was found so far")
    options = parser.parse_args()
    options.folder = folder = options.folder.resolve()
    folder.mkdir(parents=True, exist_ok=True)
    results = folder / "results.jsonl"
    records = [json.loads(line) for line in results.read_text().splitlines()] if results.exists() else []
    if not options.report:
        if "MUTATION_SEALED" not in os.environ:
            prepared(folder)
            seal(folder)
        mutants = Workshop(folder).mutants()
        last = {tuple(record["name"]): record["verdict"] for record in records}
        wanted = ("survived", "not reached") if options.again else (None,)
        todo = [mutant for mutant in chosen(mutants, options) if last.get(name_of(mutant)) in wanted]
        trial = Trial(folder, Suite(folder / "build"), [mutant for mutant in mutants if mutant["compiles"]], options.seconds)
        trial.baseline()
        known = explained(todo)  # most of those survive, which takes longest
        parts = ([mutant for mutant in todo if (name_of(mutant) in known) == is_known] for is_known in (False, True))
        verdicts = itertools.chain.from_iterable(trial.rounds(part) for part in parts)
        for count, (mutant, verdict) in enumerate(verdicts, 1):
            records.append({"name": name_of(mutant), **verdict})
            with results.open("a") as file:
                file.write(json.dumps(records[-1]) + "\n")
            if count % 120 == 0:
                print(f"{count} of {len(todo)}", file=sys.stderr, flush=True)
    report(Workshop(folder).mutants(), records, options.area or AREAS)


if __name__ == "__main__":
    main()
