# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Which tests reach a mutant, and whether one of them fails when it is on."""
import concurrent.futures
import hashlib
import json
import random
import sys
import time

from workshop import area_of

LONGEST = 45.0  # a test function that takes more seconds is left out
TOGETHER = 2.0  # seconds of functions of one test that are run at once
WORKERS = 2


class Trial:
    def __init__(self, folder, suite, mutants, budget):
        self.folder, self.suite, self.budget = folder, suite, budget
        self.mutants = {mutant["id"]: mutant for mutant in mutants}
        self.reaching, self.unreliable, self.kills = {}, set(), {}

    def baseline(self):
        """Runs every test function once without a mutant, but for tests that did so and were not built again since."""
        file = self.folder / "baseline.json"
        stamp = hashlib.sha256((self.folder / "mutants.json").read_bytes()).hexdigest()
        known = json.loads(file.read_text()) if file.exists() else {}
        units = known["units"] if known.get("mutants") == stamp else []
        units = [unit for unit in units if unit["test"] in self.suite.tests and unit["built"] == self.suite.built(unit["test"])]
        missing = sorted(set(self.suite.tests) - {unit["test"] for unit in units})
        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            units += [unit for part in pool.map(self.units_of, missing) for unit in part]
        file.write_text(json.dumps({"mutants": stamp, "units": units}))
        self.use(units)

    def use(self, units):
        for unit in units:
            if unit["seconds"] > LONGEST or not unit["passes"]:
                print(f"left out: {unit['test']} {unit['function']}: {unit['seconds']:.1f} s, "
                      f"{'passes' if unit['passes'] else 'fails without a mutant'}", file=sys.stderr)
                continue
            for mutant in unit["reached"]:
                self.reaching.setdefault(mutant, []).append(unit)

    def units_of(self, name):
        units = [self.measured(name, function) for function in self.suite.functions(name) or [""]]
        if not all(unit["passes"] for unit in units) and units[0]["function"]:
            whole = self.measured(name, "")
            units = [whole] if whole["passes"] else units
        return units

    def measured(self, name, function):
        reached = self.folder / f"reached-{name}.bin"
        reached.write_bytes(bytes(max(self.mutants) + 1))
        reached.chmod(0o666)
        passes, seconds = self.suite.passes(name, [function] if function else [], LONGEST + 5, {"MUTANTS_REACHED": str(reached.resolve())})
        marks = [place for place, mark in enumerate(reached.read_bytes()) if mark]
        reached.unlink()
        return {"test": name, "built": self.suite.built(name), "function": function, "passes": passes, "seconds": seconds, "reached": marks}

    def candidates(self, mutant):
        """(test, functions, seconds) that reach it, the quickest first; those of its own area and lucky ones count as quicker."""
        found = []
        units = [unit for unit in self.reaching.get(mutant["id"], []) if unit["test"] not in self.unreliable]
        for test in sorted({unit["test"] for unit in units}):
            is_own = self.suite.tests[test]["folder"] == area_of(mutant["file"])
            luck = 1 + self.kills.get((mutant["file"], test), 0)
            for group in together([unit for unit in units if unit["test"] == test]):
                seconds = sum(unit["seconds"] for unit in group)
                functions = [unit["function"] for unit in group if unit["function"]]
                found.append(((seconds + 0.2) * (1 if is_own else 4) / luck, test, functions, seconds))
        return [one[1:] for one in sorted(found)]

    def verdict(self, mutant):
        start, spent, left_out = time.monotonic(), 0.0, 0
        candidates = self.candidates(mutant)
        for test, functions, seconds in candidates:
            if spent > self.budget or seconds > self.budget:
                left_out += 1
                continue
            passes, took = self.suite.passes(test, functions, 5 * seconds + 5, {"MUTANT": str(mutant["id"])})
            spent += took
            if not passes:
                self.kills[mutant["file"], test] = self.kills.get((mutant["file"], test), 0) + 1
                return {"verdict": "killed", "by": test, "functions": functions, "took": round(time.monotonic() - start, 1)}
        return {"verdict": "survived" if candidates else "not reached", "by": "", "left_out": left_out,
                "took": round(time.monotonic() - start, 1)}

    def rounds(self, mutants, size=40):
        """Yields (mutant, verdict); after each round the tests that killed are run without a mutant, and must pass."""
        # In any order, so that the workers seldom want the same tests.
        queue = random.Random(1).sample(mutants, len(mutants))
        while queue:
            now, queue = queue[:size], queue[size:]
            with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
                verdicts = list(pool.map(self.verdict, now))
                killers = {}
                for verdict in verdicts:
                    killers.setdefault(verdict["by"], set()).update(verdict.get("functions", []))
                killers.pop("", None)
                sound = dict(zip(killers, pool.map(self.still_passes, killers, killers.values())))
            for mutant, verdict in zip(now, verdicts):
                if sound.get(verdict["by"], True):
                    yield mutant, verdict
                else:
                    queue.append(mutant)
            self.unreliable |= {test for test, passes in sound.items() if not passes}

    def still_passes(self, test, functions):
        """Twice at most: under load, a time limit of a test may be exceeded once."""
        for _ in range(2):
            if self.suite.passes(test, sorted(functions), 300, {})[0]:
                return True
        print(f"{test} fails without a mutant, its verdicts do not count", file=sys.stderr, flush=True)
        return False


def together(units):
    """Lists of units that are run at once, the quickest first."""
    groups, seconds = [], 0.0
    for unit in sorted(units, key=lambda unit: unit["seconds"]):
        if not groups or seconds + unit["seconds"] > TOGETHER:
            groups.append([])
            seconds = 0.0
        groups[-1].append(unit)
        seconds += unit["seconds"]
    return groups
