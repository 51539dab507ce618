# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Finds the places of the sources that can be changed, with clang's own parser."""
import multiprocessing
import pathlib
import re
import shlex

from clang.cindex import CursorKind as Kind, Index, TypeKind

FUNCTIONS = {"<": "less", "<=": "lessOrEqual", ">": "greater", ">=": "greaterOrEqual", "+": "plus", "-": "minus"}
OPPOSITE = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "+": "-", "-": "+", "==": "!=", "!=": "==", "&&": "||", "||": "&&"}
OPERATOR = {"<": "relation", "<=": "relation", ">": "relation", ">=": "relation", "==": "relation", "!=": "relation",
            "+": "arithmetic", "-": "arithmetic", "&&": "logic", "||": "logic"}
ARITHMETIC = set(range(TypeKind.BOOL.value, TypeKind.LONGDOUBLE.value + 1)) | {
    TypeKind.POINTER.value, TypeKind.DEPENDENT.value, TypeKind.UNEXPOSED.value, TypeKind.INVALID.value}
POINTERS = (TypeKind.POINTER, TypeKind.CONSTANTARRAY)
EXPRESSIONS = (Kind.CALL_EXPR, Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.UNARY_OPERATOR, Kind.UNEXPOSED_EXPR)
BRANCHES = (Kind.IF_STMT, Kind.FOR_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.CASE_STMT, Kind.DEFAULT_STMT)
CONSTEXPR = re.compile(r"^[^={(]*\bconstexpr\b")
NO_STATEMENT = re.compile(r"^(Q_UNUSED|Q_ASSERT|vtk\w+Macro|throw\b|delete\b)|(\.|->)reserve\(|reserveInLargePages\(")


class Places:
    """Collects the mutants of one parsed file: dictionaries with the byte range and what to put around it."""

    def __init__(self, path, relative):
        self.file = relative
        self.text = path.read_bytes()
        self.found = []
        self.constexpr = False

    def part(self, start, end):
        return self.text[start:end].decode("utf-8", "replace")

    def add(self, operator, rank, start, end, prefix, suffix, became, swap=None):
        """What is put around the range, with MUTANT for the question whether it is on, and what the result reads like."""
        question = "mutants::onAtRun(@)" if self.constexpr else "mutants::on(@)"
        first = self.text.rfind(b"\n", 0, start) + 1
        last = self.text.find(b"\n", end)
        readable = lambda middle: " ".join((self.part(first, start) + middle + self.part(end, last)).split())
        self.found.append({
            "file": self.file, "line": self.text.count(b"\n", 0, start) + 1, "operator": operator, "start": start, "end": end,
            "was": readable(self.part(start, end)), "became": readable(became), "question": question,
            "wraps": [[start, end, rank, prefix, suffix]], "swap": swap})

    def is_sum(self, cursor, token, parent):
        """Of numbers, or of a pointer and a number; not an argument of a template."""
        kinds = [one.type.get_canonical().kind for one in (cursor, *cursor.get_children())]
        is_argument = parent.kind.is_declaration() and self.part(extent(cursor)[1], extent(cursor)[1] + 9).lstrip().startswith(">")
        return (cursor.kind == Kind.BINARY_OPERATOR and kinds[0].value in ARITHMETIC and not is_argument and
                not (kinds[-1] in POINTERS or token == "+" and kinds[1] not in POINTERS and kinds[0] in POINTERS))

    def binary(self, cursor, parent, left, right):
        start, left_end, right_start, end = left[0], left[1], right[0], right[1]
        between = self.part(left_end, right_start)
        token = between.strip()
        if not start < left_end < right_start < end or token not in OPPOSITE:
            return
        if token in "+-" and not self.is_sum(cursor, token, parent):
            return
        became = self.part(start, left_end) + between.replace(token, OPPOSITE[token]) + self.part(right_start, end)
        if token in FUNCTIONS:
            at = left_end + between.index(token)
            self.add(OPERATOR[token], 2, start, end, f"mutants::{FUNCTIONS[token]}(MUTANT, ", ")", became, [at, at + len(token), ","])
        elif token in ("==", "!="):
            self.add("relation", 2, start, end, "(MUTANT != bool(", "))", became)
        else:
            self.logic(start, left_end, right_start, end, became)

    def logic(self, start, left_end, right_start, end, became):
        """Not both of the contraries: the other operator, by De Morgan, with the evaluation cut short as before."""
        self.add("logic", 2, start, end, "(MUTANT != (", "))", became)
        for one in ((start, left_end), (right_start, end)):
            self.found[-1]["wraps"].append([*one, 1.5, "(MUTANT != bool(", "))"])

    def condition(self, cursor, children):
        if children and children[0].kind == Kind.DECL_STMT:
            children = children[1:]
        if cursor.kind == Kind.DO_STMT:
            children = children[-1:]
        if not children or not children[0].kind.is_expression():
            return
        start, end = extent(children[0])
        opening = self.part(0, start).rstrip()
        is_choice = cursor.kind == Kind.CONDITIONAL_OPERATOR
        if start >= end or not is_choice and (not opening.endswith(("(", ";")) or not self.part(end, end + 99).lstrip().startswith(")")):
            return
        if re.search(r"constexpr\s*\($", opening):
            return
        text = self.part(start, end)
        if not self.is_equality(children[0]):
            self.add("negatedCondition", 0, start, end, "(MUTANT != bool(", "))", f"!({text})")
        if cursor.kind == Kind.IF_STMT:
            self.add("droppedCheck", 1, start, end, "(!MUTANT && bool(", "))", "false")

    def is_equality(self, cursor):
        while cursor.kind in (Kind.UNEXPOSED_EXPR, Kind.PAREN_EXPR) and len(list(cursor.get_children())) == 1:
            cursor = next(cursor.get_children())
        parts = operands(cursor)
        return bool(parts) and self.part(parts[0][1], parts[1][0]).strip() in ("==", "!=")

    def statement(self, cursor):
        start, end = extent(cursor)
        text = self.part(start, end)
        if start < end and self.part(end, end + 99).lstrip().startswith(";") and not NO_STATEMENT.search(text):
            self.add("droppedStatement", 0, start, end, "MUTANT ? void() : void(", ")", "")

    def literal(self, cursor, parent):
        start, end = extent(cursor)
        text = self.part(start, end)
        number = re.fullmatch(r"(0x[0-9a-fA-F]+|[1-9]\d*|0)([uUlL]*)", text)
        if not number or (parent.kind != Kind.BINARY_OPERATOR and (
                self.part(0, start).rstrip().endswith(("<", "[")) and parent.kind.is_declaration() or
                self.part(0, start).rstrip().endswith("<") or self.part(end, end + 9).lstrip().startswith(">"))):
            return
        self.add("offByOne", 3, start, end, "(MUTANT ? ", f" + 1 : {text})", str(int(number[1], 0) + 1) + number[2])

    def walk(self, cursor, parent):
        if self.is_constant(cursor):
            return
        before = self.constexpr
        children = list(cursor.get_children())
        if cursor.kind in (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.FUNCTION_TEMPLATE, Kind.CONSTRUCTOR):
            self.constexpr = bool(CONSTEXPR.match(self.part(*extent(cursor)).split(cursor.spelling + "(")[0]))
        if cursor.kind == Kind.INTEGER_LITERAL:
            self.literal(cursor, parent)
        elif cursor.kind in (Kind.BINARY_OPERATOR, Kind.CALL_EXPR) and operands(cursor):
            self.binary(cursor, parent, *operands(cursor))
        elif cursor.kind in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.CONDITIONAL_OPERATOR):
            self.condition(cursor, children)
        elif cursor.kind == Kind.RETURN_STMT and children and children[0].kind == Kind.CXX_BOOL_LITERAL_EXPR:
            text = self.part(*extent(children[0]))
            if text in ("true", "false"):
                self.add("result", 2, *extent(children[0]), "(MUTANT != ", ")", "false" if text == "true" else "true")
        for child in statements(cursor, children):
            self.statement(child)
        for child in children[1:] if cursor.kind == Kind.CASE_STMT else children:
            self.walk(child, cursor)
        self.constexpr = before

    def is_constant(self, cursor):
        """Whether the compiler must evaluate it."""
        if cursor.kind in (Kind.ENUM_DECL, Kind.STATIC_ASSERT):
            return True
        if cursor.kind == Kind.FIELD_DECL and cursor.is_bitfield():
            return True
        return cursor.kind in (Kind.VAR_DECL, Kind.FIELD_DECL) and bool(CONSTEXPR.match(self.part(*extent(cursor))))


def extent(cursor):
    return cursor.extent.start.offset, cursor.extent.end.offset


def operands(cursor):
    """The ranges of both sides of a binary operator, built in or overloaded."""
    children = list(cursor.get_children())
    if cursor.kind == Kind.CALL_EXPR and len(children) == 3 and cursor.spelling.startswith("operator"):
        # The operator itself stands between its sides where it is written as one.
        children = [children[0], children[2]] if extent(children[0])[1] <= extent(children[1])[0] else []
    if cursor.kind not in (Kind.BINARY_OPERATOR, Kind.CALL_EXPR) or len(children) != 2:
        return []
    return [extent(child) for child in children]


def statements(cursor, children):
    if cursor.kind == Kind.COMPOUND_STMT:
        candidates = children
    elif cursor.kind == Kind.IF_STMT:
        candidates = [child for child in children[1:] if child.kind != Kind.DECL_STMT][-2:]
    elif cursor.kind == Kind.DO_STMT:
        candidates = children[:1]
    elif cursor.kind in BRANCHES:
        candidates = children[-1:]
    else:
        candidates = []
    return [child for child in candidates if child.kind in EXPRESSIONS]


def places_of_unit(job):
    """The mutants of one source and of the headers that it includes."""
    root, source, arguments, wanted = job
    unit = Index.create().parse(source, args=arguments)
    errors = [str(problem) for problem in unit.diagnostics if problem.severity >= 3]
    files, found = {}, []
    for cursor in unit.cursor.get_children():
        name = cursor.location.file.name if cursor.location.file else ""
        name = str(pathlib.Path(name).resolve()) if name else ""
        relative = name[len(root) + 1:]
        if not name.startswith(root + "/") or relative not in wanted:
            continue
        if relative not in files:
            files[relative] = Places(pathlib.Path(name), relative)
        files[relative].walk(cursor, unit.cursor)
    for places in files.values():
        found += places.found
    return source, errors, found


def find_places(root, commands, wanted):
    """All mutants of the wanted files, numbered; the numbers of a file do not hang on those of the others."""
    jobs, seen = [], set()
    for entry in commands:
        relative = entry["file"][len(root) + 1:]
        if relative in wanted and relative not in seen:
            seen.add(relative)
            words = shlex.split(entry["command"])
            words = words[next(i for i, word in enumerate(words) if word.endswith(("++", "g++-12"))) + 1:]
            keep = [word for i, word in enumerate(words) if word not in ("-c", "-o", entry["file"]) and words[i - 1] != "-o"]
            jobs.append((root, entry["file"], ["-std=c++17", *keep], wanted))
    unique = {}
    with multiprocessing.Pool(2) as pool:
        for source, errors, found in pool.imap_unordered(places_of_unit, jobs):
            if errors:
                raise SystemExit(f"{source} was not parsed: {errors[0]}")
            for mutant in found:
                unique[mutant["file"], mutant["start"], mutant["end"], mutant["operator"]] = mutant
    return numbered(sorted(unique.items()), sorted(wanted))


def numbered(items, files):
    count, seen, mutants = {}, {}, []
    for (file, *_), mutant in items:
        count[file] = count.get(file, 0) + 1
        text = (file, mutant["operator"], mutant["was"], mutant["became"])
        seen[text] = seen.get(text, 0) + 1
        mutants.append({**mutant, "nth": seen[text], "id": files.index(file) * 1000 + count[file]})
    return mutants
