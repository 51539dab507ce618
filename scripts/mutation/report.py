# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""What survived, and the sums by area."""
from workshop import HERE, area_of, name_of

EXPLAINED = HERE / "tests/mutants-that-change-nothing.txt"


def explained(mutants):
    """Those that nobody can see, by the lines "file | was | became | reason"."""
    lines = EXPLAINED.read_text(encoding="utf-8").splitlines() if EXPLAINED.exists() else []
    return {name_of(mutant) for mutant in mutants if any(line.startswith(row_of(mutant) + " | ") for line in lines)}


def row_of(mutant):
    return f"{mutant['file']} | {mutant['was']} | {mutant['became']}"


def report(mutants, records, areas):
    known = explained(mutants)
    verdicts = {tuple(record["name"]): record for record in records}
    sums = {}
    for mutant in mutants:
        area = area_of(mutant["file"])
        if area not in areas:
            continue
        record = verdicts.get(name_of(mutant))
        if not mutant["compiles"] or record is None:
            kind = "not tried"
        elif record["verdict"] == "killed":
            kind = "killed"
        else:
            kind = "explained" if name_of(mutant) in known else "left"
            if kind == "left":
                missed = f", {record['left_out']} groups of tests not run" if record.get("left_out") else ""
                print(f"{record['verdict']}{missed} (line {mutant['line']}): {row_of(mutant)}")
        row = sums.setdefault(area, {"killed": 0, "explained": 0, "left": 0, "not tried": 0})
        row[kind] += 1
    sums["all"] = {kind: sum(row[kind] for row in sums.values()) for kind in ("killed", "explained", "left", "not tried")}
    print("| area | tried | killed | explained | left | killed of those not explained | not tried |\n|---|---|---|---|---|---|---|")
    for area, row in sums.items():
        tried = row["killed"] + row["explained"] + row["left"]
        share = 100.0 * row["killed"] / max(1, row["killed"] + row["left"])
        print(f"| {area} | {tried} | {row['killed']} | {row['explained']} | {row['left']} | {share:.1f} % | {row['not tried']} |")
