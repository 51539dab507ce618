#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Writes anew what pages show: the outputs of programs in README.md and docs/commands.md, sequences of calls and what a
# listener hears, the files of docs/getting-started. Look at the difference before you commit it.
#   scripts/retell.py [BUILD_DIRECTORY]
import os
import pathlib
import re
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parent.parent
BUILD = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else SOURCE / "build").resolve()
MARK = "=====command=====\n"


def rewrite(page, pattern, replacement):
    path = SOURCE / "docs" / page
    text = path.read_text(encoding="utf-8")
    path.write_text(re.sub(pattern, replacement, text, flags=re.S), encoding="utf-8")


def run_block(match):
    commands = [line[2:] for line in match.group(1).splitlines() if line.startswith("$ ")]
    script = "".join(f"{command}\nstatus=$?; printf '{MARK[:-1]}\\n'; (exit $status)\n" for command in commands)
    environment = dict(os.environ, PATH=f"{BUILD / 'bin'}:{os.environ['PATH']}")
    environment.pop("DATAMANAGER_LANGUAGE", None)
    with tempfile.TemporaryDirectory() as directory:
        os.mkdir(f"{directory}/project")
        for mesh in SOURCE.glob("samples/*.msh"):
            os.symlink(mesh, f"{directory}/{mesh.name}")
        result = subprocess.run(["bash", "-c", script], cwd=directory, env=environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    outputs = result.stdout.split(MARK)
    return "```console\n" + "".join(f"$ {c}\n{o}" for c, o in zip(commands, outputs)) + "```\n"


def run_sequence(match):
    program = BUILD / "tests/sequences/bin/sequences"
    result = subprocess.run([program, match.group(2)], text=True, stdout=subprocess.PIPE, check=True)
    return f"{match.group(1)}```text\n{result.stdout}```\n"


def show_file(match):
    content = (SOURCE / "docs" / match.group(2)).read_text(encoding="utf-8")
    return f"{match.group(1)}```{match.group(3)}\n{content}```\n"


rewrite("commands.md", r"```console\n(.*?)```\n", run_block)
for name in ("frame", "selection", "materials", "coordinates", "meshquality"):
    rewrite(f"{name}.md", r"(<!-- sequences (\w+) -->\n)```text\n.*?```\n", run_sequence)
rewrite("getting-started.md", r"(<!-- (getting-started/\S+) -->\n)```(\w+)\n.*?\n```\n", show_file)

report = subprocess.run([BUILD / "bin/meshquality", "report", "samples/plate-with-hole.msh"], cwd=SOURCE, text=True,
                        stdout=subprocess.PIPE, check=True).stdout
rewrite("../README.md", r"    samples/plate-with-hole\.msh\n(    [^\n]*\n)*",
        lambda _: "".join(f"    {line}\n" for line in report.splitlines()))
