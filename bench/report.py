"""Turns the results of scripts/bench into tables and compares the counts with the committed ones.

    report.py RESULTS COUNTS COMMITTED

Fails when a count of instructions or GL calls has grown by more than 5 %.
"""

import collections
import glob
import json
import os
import re
import statistics
import sys

# Operation, its case, and the budgets: time without a driver, instructions, time with a driver.
BUDGETS = [
    ("rectangle", "rect", 1.2, 350, 1.05),
    ("blit", "blit", 1.2, 350, 1.05),
    ("presentation", "present", 1.2, 400, 1.05),
    ("bitmap", "bitmap/256x256", 1.2, 400, 1.05),
    ("text, standard, 30 units", "text/30", 1.3, 3000, 1.05),
    ("text, styled, 30 units, plain", "styled/30-plain", 1.02, None, 1.03),
    ("text, styled, 30 units, bold", "styled/30-bold", 1.02, None, 1.03),
    ("text, styled, 30 units, italic", "styled/30-italic", 1.02, None, 1.03),
    ("whole frame", "frame", 1.2, None, 1.03),
    ("font load", "font", 1.02, None, 1.02),
]
# What is measured without a driver is FreeType's work and ours, so FreeType alone is the floor.
AGAINST_FREETYPE = ("styled/", "font", "growth/load/")
GROWTH_ALLOWED = 1.05


def read_times(path):
    """Processor time in ns of each repetition, by name of case and side."""
    times = collections.defaultdict(list)
    if os.path.exists(path):
        with open(path, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run["run_type"] == "iteration":
                    times[run["name"].replace("/process_time", "")].append(run["cpu_time"])
    return times


def read_counts(folder):
    """Instructions a call, by name."""
    counts = {}
    for path in glob.glob(os.path.join(folder, "count.*")):
        with open(path, encoding="utf-8", errors="replace") as file:
            label = total = None
            for line in file:
                if line.startswith("desc: Trigger: Client Request: "):
                    label = line.split(": ", 3)[3].split()
                elif line.startswith("totals:"):
                    total = int(line.split()[1])
            if label is not None and total is not None:
                counts[label[0]] = total / int(label[1])
    return counts


def read_rows(path):
    with open(path, encoding="utf-8") as file:
        return [line.rstrip("\n").split("\t") for line in file]


def ratio_of(times, case, floor):
    """Median and quartiles of the ratios of equal repetitions, or None."""
    ours, theirs = times.get(f"{case}/library"), times.get(f"{case}/{floor}")
    if not ours or not theirs:
        return None
    ratios = [a / b for a, b in zip(ours, theirs)]
    if len(ratios) < 2:
        return ratios[0], ratios[0], ratios[0]
    low, _, high = statistics.quantiles(ratios, n=4, method="inclusive")
    return statistics.median(ratios), low, high


def show_ratio(ratio):
    return "" if ratio is None else f"{ratio[0]:.3f} ({ratio[1]:.3f} to {ratio[2]:.3f})"


def show_time(times, name):
    if name not in times:
        return ""
    value = statistics.median(times[name])
    return f"{value:.0f} ns" if value < 1e4 else f"{value / 1e3:,.0f} µs"


def show_count(counts, name):
    return f"{counts[name]:,.0f}" if name in counts else ""


def judge(value, budget, shown):
    if budget is None or value is None:
        return shown
    return f"{shown}, {'meets' if value <= budget else '**misses**'} {budget:,}"


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|---" * len(heads) + "|"]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows]) + "\n"


def floor_of(case):
    return "freetype" if case.startswith(AGAINST_FREETYPE) else "floor"


def budget_rows(null, real, counts):
    rows = []
    for title, case, null_budget, count_budget, real_budget in BUDGETS:
        own, driver = ratio_of(null, case, floor_of(case)), ratio_of(real, case, "floor")
        count = counts.get(f"{case}/library")
        rows.append([
            title,
            judge(own and round(own[0], 3), null_budget, show_ratio(own)),
            judge(count and round(count), count_budget, show_count(counts, f"{case}/library")),
            judge(driver and round(driver[0], 3), real_budget, show_ratio(driver)),
        ])
    return rows


def cases_of(times):
    names = [name[: -len("/library")] for name in times if name.endswith("/library")]
    return sorted(names, key=lambda name: [part.zfill(9) if part.isdigit() else part
                                           for part in re.split("([0-9]+)", name)])


def case_rows(null, real, counts):
    rows = []
    for case in cases_of(null):
        if not case.startswith("growth/"):
            floor = floor_of(case)
            rows.append([case, show_time(null, f"{case}/library"), show_time(null, f"{case}/{floor}"),
                         show_count(counts, f"{case}/library"), show_count(counts, f"{case}/{floor}"),
                         show_time(real, f"{case}/library"), show_time(real, f"{case}/floor")])
    return rows


def growth(times, kind):
    """The sizes of one kind of growth, ascending."""
    prefix = f"growth/{kind}/"
    return sorted(int(case[len(prefix):]) for case in cases_of(times) if case.startswith(prefix))


def write_plot(path, rows):
    with open(path, "w", encoding="utf-8") as file:
        for row in rows:
            file.write("\t".join("NaN" if cell is None else f"{cell}" for cell in row) + "\n")


def median_of(times, name):
    return statistics.median(times[name]) if name in times else None


def growth_tables(out, null, real, counts):
    lengths, fonts = growth(null, "text"), growth(null, "font")
    write_plot(os.path.join(out, "bench-text.dat"), [
        [n] + [median_of(times, f"growth/text/{n}/{side}")
               for times in (null, real) for side in ("library", "floor")] for n in lengths])
    write_plot(os.path.join(out, "bench-font.dat"), [
        [n, median_of(null, f"growth/font/{n}/library"), median_of(null, f"growth/load/{n}/library"),
         median_of(null, f"growth/load/{n}/freetype")] for n in fonts])

    def per_unit(times, n, side):
        value = median_of(times, f"growth/text/{n}/{side}")
        return "" if value is None else f"{value / n:.1f} ns"

    text = table(["units", "library, no driver", "by hand, no driver", "library", "by hand"], [
        [f"{n:,}"] + [per_unit(times, n, side)
                      for times in (null, real) for side in ("library", "floor")] for n in lengths])
    font = table(["characters", "30 units", "instructions", "loading", "FreeType alone", "ratio"], [
        [f"{n:,}", show_time(null, f"growth/font/{n}/library"),
         show_count(counts, f"growth/font/{n}/library"), show_time(null, f"growth/load/{n}/library"),
         show_time(null, f"growth/load/{n}/freetype"),
         show_ratio(ratio_of(null, f"growth/load/{n}", "freetype"))] for n in fonts])
    buffers = table(["buffers", "rectangle into the last", "instructions"], [
        [f"{n}", show_time(null, f"growth/buffers/{n}/library"),
         show_count(counts, f"growth/buffers/{n}/library")] for n in growth(null, "buffers")])
    return text, font, buffers


def log_table(null, log, counts):
    return table(["text", "processor time", "instructions"], [
        ["24 units", show_time(null, "text/24/library"), show_count(counts, "text/24/library")],
        ["the same and six spaces, log filtered", show_time(null, "text/30-spaces/library"),
         show_count(counts, "text/30-spaces/library")],
        ["30 units without spaces", show_time(null, "text/30/library"),
         show_count(counts, "text/30/library")],
        ["six spaces, log shown in /dev/null", show_time(log, "text/30-spaces/library"), ""],
    ])


def memory_table(paths):
    rows = []
    for title, path in paths:
        for name, count, resident, later, heap, heap_later in read_rows(path):
            rows.append([f"{name}, {title}", f"{int(count):,}", f"{int(resident):,} KiB",
                         f"{int(later):,} KiB", f"{int(heap):,}", f"{int(heap_later):,}"])
    return table(["run", "how often", "resident before", "after", "heap in use before", "after"], rows)


def compare_counts(out, counts, costs, committed):
    """Writes the counts that repeat exactly and says which have grown."""
    calls = {row[0]: int(row[1]) for row in costs}
    now = {name: (round(counts[name]), calls[name]) for name in sorted(counts)
           if name.endswith("/library") and name in calls
           and not name.startswith(AGAINST_FREETYPE)}
    with open(os.path.join(out, "bench-counts.tsv"), "w", encoding="utf-8") as file:
        for name, (instructions, gl_calls) in now.items():
            file.write(f"{name}\t{instructions}\t{gl_calls}\n")
    grown = 0
    for name, *before in read_rows(committed) if os.path.exists(committed) else []:
        for what, old, new in zip(("instructions", "GL calls"), before, now.get(name, ())):
            if new > int(old) * GROWTH_ALLOWED:
                print(f"{name}: {what} grew from {old} to {new}", file=sys.stderr)
                grown += 1
    return grown


def main():
    out, count_folder, committed = sys.argv[1:4]
    null = read_times(os.path.join(out, "bench-null.json"))
    null.update(read_times(os.path.join(out, "bench-load.json")))
    real = read_times(os.path.join(out, "bench.json"))
    log = read_times(os.path.join(out, "bench-log.json"))
    counts = read_counts(count_folder)
    costs = read_rows(os.path.join(out, "bench-costs.tsv"))
    text, font, buffers = growth_tables(out, null, real, counts)
    parts = [
        ("Budgets", table(["operation", "no driver, against the floor", "instructions",
                           "driver, against the floor"], budget_rows(null, real, counts))),
        ("Cases", table(["case", "library, no driver", "floor, no driver", "library, instructions",
                         "floor, instructions", "library", "floor"],
                        case_rows(null, real, counts))),
        ("Calls, uploads, allocations", table(
            ["case", "GL calls", "bytes uploaded", "heap allocations", "bytes allocated"],
            [[row[0]] + [f"{int(cell):,}" for cell in row[1:]] for row in costs])),
        ("Length of the text, a unit", text), ("Size of the font", font),
        ("Number of buffers", buffers), ("Units that the font cannot show",
                                         log_table(null, log, counts)),
        ("Memory", memory_table([("no driver", os.path.join(out, "bench-memory-null.tsv")),
                                 ("driver", os.path.join(out, "bench-memory.tsv"))])),
    ]
    report = "\n".join(f"## {title}\n\n{body}" for title, body in parts)
    with open(os.path.join(out, "bench.md"), "w", encoding="utf-8") as file:
        file.write(report)
    print(report)
    return 1 if compare_counts(out, counts, costs, committed) else 0


if __name__ == "__main__":
    sys.exit(main())
