# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Writes all mutants of a file into its text, each with a switch of its own."""


def edits_of(mutant):
    """(place, order at that place, end of what is replaced, new text); what encloses more opens first and closes last."""
    question = mutant["question"].replace("@", str(mutant["id"]))
    for start, end, rank, prefix, suffix in mutant["wraps"]:
        yield start, (2, -end, rank), start, prefix.replace("MUTANT", question)
        yield end, (0, -start, -rank), end, suffix
    if mutant["swap"]:
        at, behind, text = mutant["swap"]
        yield at, (1, 0, 0), behind, text


def with_switches(text, mutants):
    """The bytes of a file with its mutants in them; no line moves."""
    pieces, done = [], 0
    for start, _, end, new in sorted(edit for mutant in mutants for edit in edits_of(mutant)):
        pieces += [text[done:start], new.encode()]
        done = end
    return b"".join(pieces) + text[done:]
