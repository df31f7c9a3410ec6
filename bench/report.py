# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
"""Prints the tables of scripts/bench and scripts/bench-peers as Markdown.

    report.py bench OUT COUNTS COMMITTED    times and counts; fails if a committed count grew by over 5 %
    report.py peers OUT                     times of the peers; fails if the pictures differ too much
"""

import collections
import glob
import json
import os
import re
import statistics
import sys

GROWTH_ALLOWED = 1.05
# FreeType does most of the work in these cases, so they are compared with its calls alone.
FREETYPE_CASES = ("styled/", "font", "growth/load/")
MEASURES = [("wall_us", "wall time"), ("thread_us", "drawing thread"), ("process_us", "whole process")]
# The limits for pictures. libzogles draws the edges of glyphs darker, by up to a quarter of the colour,
# and more where lines overlap. A missing, misplaced or wrongly coloured item exceeds these limits.
FAR_OFF = 64
MOST_MEAN = 4.0
MOST_FAR_OFF = 0.005


def table(heads, rows):
    return "\n".join("| " + " | ".join(row) + " |"
                     for row in [heads, ["---"] * len(heads), *rows]) + "\n"


def write_table(out, name, title, heads, rows):
    text = f"{title}\n\n{table(heads, rows)}"
    with open(os.path.join(out, name), "w", encoding="utf-8") as file:
        file.write(text)
    print(text)


def read_times(out, name):
    """Processor time in ns of each repetition, by case and side."""
    times = collections.defaultdict(list)
    with open(os.path.join(out, name), encoding="utf-8") as file:
        for run in json.load(file)["benchmarks"]:
            if run["run_type"] == "iteration":
                times[run["name"].replace("/process_time", "")].append(run["cpu_time"])
    return times


def read_counts(folder):
    """Instructions per call, by case and side, from callgrind's files."""
    counts = {}
    for path in glob.glob(os.path.join(folder, "count.*")):
        with open(path, encoding="utf-8", errors="replace") as file:
            text = file.read()
        label = re.search(r"^desc: Trigger: Client Request: (\S+) (\d+)", text, re.M)
        if label:
            total = re.search(r"^totals: (\d+)", text, re.M)
            counts[label[1]] = round(int(total[1]) / int(label[2]))
    return counts


def show_time(times):
    value = statistics.median(times) if times else 0
    return "" if not times else f"{value:.0f} ns" if value < 1e4 else f"{value / 1e3:,.0f} µs"


def show_ratio(ours, theirs):
    """Median and quartiles of the ratios of equal repetitions."""
    if not ours or not theirs:
        return ""
    ratios = [a / b for a, b in zip(ours, theirs)]
    low, middle, high = statistics.quantiles(ratios, n=4, method="inclusive")
    return f"{middle:.2f} ({low:.2f}–{high:.2f})"


def by_numbers(name):
    return [int(part) if part.isdigit() else part for part in re.split("([0-9]+)", name)]


def case_rows(null, real, counts):
    for name in sorted({*null, *counts}, key=by_numbers):
        case, _, side = name.rpartition("/")
        if side == "library":
            other = "freetype" if case.startswith(FREETYPE_CASES) else "baseline"
            yield [case, f"{counts.get(name, '')}", f"{counts.get(f'{case}/{other}', '')}",
                   show_time(null[name]), show_ratio(null[name], null[f"{case}/{other}"]),
                   show_time(real[name]), show_ratio(real[name], real[f"{case}/{other}"])]


def check_counts(out, counts, committed):
    """Writes the counts that repeat exactly. Returns False if a committed count is missing or has grown."""
    with open(os.path.join(out, "bench-counts.tsv"), "w", encoding="utf-8") as file:
        for name in sorted(counts):
            if name.endswith("/library") and not name.startswith((*FREETYPE_CASES, "growth/")):
                file.write(f"{name}\t{counts[name]}\n")
    is_fine = True
    with open(committed, encoding="utf-8") as file:
        for name, before in (line.split() for line in file):
            if counts.get(name, sys.maxsize) > int(before) * GROWTH_ALLOWED:
                print(f"{name}: instructions grew from {before} to {counts.get(name, 'no result')}",
                      file=sys.stderr)
                is_fine = False
    return is_fine


def report_bench(out, count_folder, committed):
    null, real = read_times(out, "bench-null.json"), read_times(out, "bench.json")
    null.update(read_times(out, "bench-load.json"))
    for name, times in read_times(out, "bench-log.json").items():
        null[name.replace("/library", ", log shown/library")] = times
    counts = read_counts(count_folder)
    write_table(out, "bench.md", "Times per call of the library, and their ratios to the baseline",
                ["case", "instructions", "baseline", "no driver", "ratio", "driver", "ratio"],
                case_rows(null, real, counts))
    return check_counts(out, counts, committed)


def read_picture(path):
    with open(path, "rb") as file:
        return file.read().split(b"\n", 3)[3]


def compare_pictures(out, names):
    """Returns whether every picture shows the same as the first one."""
    are_alike = True
    expected = read_picture(os.path.join(out, f"peers-{names[0]}.ppm"))
    for name in names[1:]:
        picture = read_picture(os.path.join(out, f"peers-{name}.ppm"))
        off = [abs(a - b) for a, b in zip(picture, expected)]
        mean = sum(off) / len(expected)
        share = sum(max(pixel) > FAR_OFF for pixel in zip(off[::3], off[1::3], off[2::3])) * 3 / len(off)
        is_alike = mean <= MOST_MEAN and share <= MOST_FAR_OFF and len(off) == len(expected)
        print(f"{name}: mean difference {mean:.2f} of 255, {share:.2%} of the pixels off by more than "
              f"{FAR_OFF}{'' if is_alike else ': NOT THE SAME PICTURE'}")
        are_alike = are_alike and is_alike
    return are_alike


def report_peers(out):
    runs = collections.defaultdict(list)
    with open(os.path.join(out, "peers.jsonl"), encoding="utf-8") as lines:
        for run in sorted(map(json.loads, lines), key=lambda run: run["round"]):
            runs[run["name"]].append(run)
    base = runs["zogles"]
    rows = []
    for name, own in runs.items():
        row = [name]
        for measure, _ in MEASURES:
            times = [run[measure] for run in own]
            ratios = [time / run[measure] for time, run in zip(times, base)]
            row += [f"{statistics.median(times) / 1000:.2f} ms",
                    f"{statistics.median(ratios):.2f} ({min(ratios):.2f}–{max(ratios):.2f})"]
        rows.append(row)
    title = (f"Times per frame, {len(base)} rounds of {base[0]['frames']} frames on {base[0]['renderer']}; "
             "ratio to zogles in the same round: median (lowest–highest)")
    write_table(out, "peers.md", title,
                [""] + [head for _, measure in MEASURES for head in (measure, "ratio")], rows)
    return compare_pictures(out, ["zogles", *(name for name in runs if name != "zogles")])


if __name__ == "__main__":
    REPORT = {"bench": report_bench, "peers": report_peers}[sys.argv[1]]
    sys.exit(0 if REPORT(*sys.argv[2:]) else 1)
