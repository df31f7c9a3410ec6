#!/usr/bin/env python3
"""Writes a table of the peers' times against the library's.

Usage: report.py RUNS.jsonl TABLE.md
"""

import json
import statistics
import sys

BASE = "zogles"
MEASURES = [
    ("wall_us", "wall time"),
    ("thread_us", "drawing thread"),
    ("process_us", "whole process"),
]


def read_runs(path):
    """Returns the runs by name and by round."""
    runs = {}
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            run = json.loads(line)
            runs.setdefault(run["name"], {})[run["round"]] = run
    return runs


def describe_ratio(own, base, measure):
    """The median of the ratios of each round, and the lowest and highest of them."""
    ratios = [own[number][measure] / base[number][measure] for number in base]
    return f"{statistics.median(ratios):.2f} ({min(ratios):.2f}–{max(ratios):.2f})"


def describe_time(own, measure):
    return f"{statistics.median(run[measure] for run in own.values()) / 1000:.2f} ms"


def make_table(runs):
    base = runs[BASE]
    some_run = next(iter(base.values()))
    yield f"Times per frame: {len(base)} rounds of {some_run['frames']} frames each, drawn by"
    yield f"{some_run['renderer']}. A ratio is the contestant's time over {BASE}'s in the same"
    yield "round: median (lowest–highest). Above 1, the contestant takes longer."
    yield ""
    yield "| | " + " | ".join(f"{title} | ratio" for _, title in MEASURES) + " |"
    yield "|---" * (1 + 2 * len(MEASURES)) + "|"
    for name, own in runs.items():
        cells = [name]
        for measure, _ in MEASURES:
            cells += [describe_time(own, measure), describe_ratio(own, base, measure)]
        yield "| " + " | ".join(cells) + " |"


def main():
    table = "\n".join(make_table(read_runs(sys.argv[1]))) + "\n"
    with open(sys.argv[2], "w", encoding="utf-8") as out:
        out.write(table)
    print(table, end="")


main()
