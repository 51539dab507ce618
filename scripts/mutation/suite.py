# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""The tests of the suite that look at the library, and how one of them is run."""
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import time

AREAS = ("platform", "frame", "selection", "material", "coordinates", "meshquality")
FOLDERS = AREAS + ("apps", "faults")
# What a changed program may take at most: a loop without end may also fill memory or disk.
LIMITS = ["prlimit", "--as=12884901888", "--fsize=3221225472", "--core=0"]


def watching_tests(build):
    """The tests of the areas, of faults, of the programs without windows, and the replays of the fuzz targets."""
    known = json.loads(subprocess.check_output(["ctest", "--show-only=json-v1"], cwd=build, text=True))
    tests = []
    for test in known["tests"]:
        folder = folder_of(known["backtraceGraph"], test["backtrace"])
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        if (folder in FOLDERS or folder == "fuzz") and "PASS_REGULAR_EXPRESSION" not in properties:
            tests.append({"name": test["name"], "folder": folder, "command": test.get("command"), "properties": properties})
    return tests


def folder_of(graph, at):
    """The folder of the file that first called add_test or what wraps it."""
    while "parent" in graph["nodes"][at]:
        file = graph["files"][graph["nodes"][at]["file"]]
        at = graph["nodes"][at]["parent"]
    return pathlib.Path(file).parent.name


class Locks:
    """What ctest keeps apart: a test from itself, as both would share its folder, holders of a resource, and serial ones."""

    def __init__(self):
        self.guard = threading.Condition()
        self.held = set()

    def acquire(self, names, is_serial):
        with self.guard:
            self.guard.wait_for(lambda: "*" not in self.held and not names & self.held and not (is_serial and self.held))
            names = names | {"*"} if is_serial else names
            self.held |= names
            return names

    def release(self, names):
        with self.guard:
            self.held -= names
            self.guard.notify_all()


class Suite:
    def __init__(self, build):
        self.tests = {test["name"]: test for test in watching_tests(build) if test["command"]}
        self.locks = Locks()

    def built(self, name):
        return os.stat(self.tests[name]["command"][0]).st_mtime

    def functions(self, name):
        """The test functions that can be asked for one by one; none for what is no Qt Test."""
        test = self.tests[name]
        if not name.startswith("tst_") or len(test["command"]) > 1:
            return []
        listed = subprocess.run([*test["command"], "-functions"], capture_output=True, text=True, env=environment(test), timeout=60)
        names = re.findall(r"^(\w+)\(\)$", listed.stdout, re.MULTILINE)
        return names if listed.returncode == 0 else []

    def passes(self, name, functions, seconds, variables):
        """Whether it passes and how long it took; what takes longer than the seconds does not."""
        test = self.tests[name]
        properties = test["properties"]
        names = {"test " + name, *properties.get("RESOURCE_LOCK", [])}
        held = self.locks.acquire(names, properties.get("RUN_SERIAL", False))
        scratch = tempfile.mkdtemp(prefix="mutant")
        os.chmod(scratch, 0o1777)
        try:
            start = time.monotonic()
            code, output = run([*LIMITS, *test["command"], *functions], seconds, properties["WORKING_DIRECTORY"],
                               {**environment(test), "TMPDIR": scratch, **variables})
            failed = any(re.search(text.encode(), output) for text in properties.get("FAIL_REGULAR_EXPRESSION", []))
            return code == 0 and not failed, time.monotonic() - start
        finally:
            self.locks.release(held)
            shutil.rmtree(scratch, ignore_errors=True)


def environment(test):
    return {**os.environ, "QT_QPA_PLATFORM": "offscreen",
            **dict(entry.split("=", 1) for entry in test["properties"].get("ENVIRONMENT", []))}


def run(command, seconds, directory, variables):
    """Exit code and output; the whole process group is killed after too many seconds."""
    with tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT, cwd=directory,
                                   env=variables, start_new_session=True)
        try:
            code = process.wait(seconds)
        except subprocess.TimeoutExpired:
            code = 124
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        output.seek(0)
        return code, output.read(1 << 24)
