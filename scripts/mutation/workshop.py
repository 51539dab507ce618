# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""A copy of the committed sources, and one build of it that holds every mutant."""
import hashlib
import io
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tarfile

from places import find_places
from suite import watching_tests
from switches import with_switches

HERE = pathlib.Path(__file__).resolve().parent.parent.parent
ROOMS = ("datamanager", "platform")
LINES = re.compile(r"^(?P<file>/[^:\n]+):(?P<line>\d+):\d+:\s+(?:(?P<error>error:)|\s*required from)", re.MULTILINE)


def area_of(file):
    room, folder = file.split("/")[:2]
    return folder if room == "datamanager" else room


class Workshop:
    def __init__(self, folder):
        self.source, self.build = folder / "source", folder / "build"
        self.found_file, self.mutants_file, self.removed_file = (
            folder / name for name in ("found.json", "mutants.json", "removed.json"))

    def mutants(self):
        """All that were found, those that do not compile with a mark."""
        return json.loads(self.mutants_file.read_text())

    def prepare(self):
        """Copies, parses and configures anew; only what differs is written, so that little is compiled again."""
        archive = subprocess.check_output(["git", "-C", str(HERE), "archive", "HEAD"])
        originals = {}
        with tarfile.open(fileobj=io.BytesIO(archive)) as tar:
            for member in tar.getmembers():
                if member.isfile():
                    originals[member.name] = (tar.extractfile(member).read(), member.mode)
        self.build_until_it_builds(originals, self.found(originals))

    def found(self, originals):
        """The mutants of these sources; found anew only where the sources differ."""
        wanted = {name for name in originals if name.startswith(ROOMS) and name.endswith((".h", ".cpp"))}
        digest = hashlib.sha256((HERE / "scripts/mutation/places.py").read_bytes())
        for name in sorted(wanted):
            digest.update(name.encode() + originals[name][0])
        known = json.loads(self.found_file.read_text()) if self.found_file.exists() else {}
        if known.get("digest") != digest.hexdigest():
            pristine, parsed = self.source.parent / "pristine", self.source.parent / "parsed"
            write_tree(pristine, originals)
            self.configure(pristine, parsed)
            commands = json.loads((parsed / "compile_commands.json").read_text())
            known = {"digest": digest.hexdigest(), "mutants": find_places(str(pristine), commands, wanted)}
            self.found_file.write_text(json.dumps(known))
        return known["mutants"]

    def configure(self, source, build):
        root = subprocess.check_output([str(HERE / "scripts/setup.sh"), "--print-onnxruntime-root"], text=True).strip()
        header = pathlib.Path(__file__).resolve().parent / "switches.h"
        copied = self.source.parent / "switches.h"
        if not copied.exists() or copied.read_bytes() != header.read_bytes():
            shutil.copyfile(header, copied)
        subprocess.run(["cmake", "--preset", "release", "-B", str(build), "-S", str(source), "-DCMAKE_BUILD_TYPE=",
                        f"-DCMAKE_CXX_FLAGS=-O1 -DNDEBUG -w -include {copied}", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                        "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", f"-DONNXRUNTIME_ROOT={root}"],
                       cwd=source, check=True, stdout=subprocess.DEVNULL)

    def build_until_it_builds(self, originals, mutants):
        """Takes out what does not compile, as the compiler's error lines tell, until the rest does."""
        removed = set(map(tuple, json.loads(self.removed_file.read_text()))) if self.removed_file.exists() else set()
        while True:
            texts = dict(originals)
            kept = [mutant for mutant in mutants if name_of(mutant) not in removed]
            for file in {mutant["file"] for mutant in mutants}:
                text, mode = originals[file]
                texts[file] = (with_switches(text, [mutant for mutant in kept if mutant["file"] == file]), mode)
            write_tree(self.source, texts)
            self.configure(self.source, self.build)
            bad = self.lines_with_errors()
            if bad is None:
                break
            culprits = {name_of(mutant) for mutant in kept if spans(self.source, mutant, originals) & bad}
            if not culprits:
                raise SystemExit(f"no mutant is in the lines that do not compile: {sorted(bad)}")
            print(f"{len(culprits)} mutants do not compile", file=sys.stderr, flush=True)
            removed |= culprits
            self.removed_file.write_text(json.dumps(sorted(removed)))
        for mutant in mutants:
            mutant["compiles"] = name_of(mutant) not in removed
        self.mutants_file.write_text(json.dumps(mutants))

    def lines_with_errors(self):
        """(file, line) of the compiler's errors, with the lines that called for the template in which they are."""
        done = subprocess.run(["ninja", "-C", str(self.build), "-j", "2", "-k", "0", *self.targets()], capture_output=True, text=True)
        if done.returncode == 0:
            return None
        (self.source.parent / "build.log").write_text(done.stdout)
        root = str(self.source.resolve()) + "/"
        found = set()
        for block in re.split(r"^(?=FAILED: )", done.stdout, flags=re.MULTILINE)[1:]:
            # What follows the first error may follow from it.
            first = block.partition(" error: ")
            if first[1]:
                found |= {(match["file"].replace(root, ""), int(match["line"])) for match in LINES.finditer("".join(first))}
        return found

    def targets(self):
        """The tests that look at the library; what else they run is built with them."""
        known = subprocess.check_output(["ninja", "-C", str(self.build), "-t", "targets", "all"], text=True)
        known = {line.split(":")[0] for line in known.splitlines()}
        return sorted(test["name"] for test in watching_tests(self.build) if test["name"] in known)


def name_of(mutant):
    """What stays the same when other places of the file change."""
    return mutant["file"], mutant["operator"], mutant["was"], mutant["became"], mutant["nth"]


def spans(source, mutant, originals):
    """The lines of a mutant that it adds text to."""
    text = originals[mutant["file"]][0]
    places = {place for start, end, *_ in mutant["wraps"] for place in (start, end)}
    return {(mutant["file"], text.count(b"\n", 0, place) + 1) for place in places}


def write_tree(root, files):
    for name, (text, mode) in files.items():
        path = root / name
        if not path.exists() or path.read_bytes() != text:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(text)
            path.chmod(mode)
