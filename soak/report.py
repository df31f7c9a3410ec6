# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
"""Judges the samples of the soak: fails if something grows.

    report.py SAMPLES
"""

import csv
import math
import statistics
import sys

WARM_UP_SHARE = 0.1  # of the samples of a stage: the driver fills its caches first
ALLOWANCE = 128  # KiB of growth that are not significant: a few pages
MEDIAN_FACTOR = 1.2533  # the standard error of a median, as a multiple of that of a mean


def judge_memory(values):
    """Compares the medians of the first and the last third; their scatter widens the limit."""
    third = len(values) // 3
    first, last = values[:third], values[-third:]
    growth = statistics.median(last) - statistics.median(first)
    error = MEDIAN_FACTOR * math.sqrt(
        (statistics.pvariance(first) + statistics.pvariance(last)) / third)
    limit = ALLOWANCE + 3 * error
    return growth <= limit, (f"{statistics.median(first):8.0f} KiB -> {statistics.median(last):8.0f} "
                             f"KiB, growth {growth:+.0f} KiB, limit {limit:.0f} KiB")


def judge_count(values):
    return min(values) == max(values), f"{min(values):8.0f} to {max(values):.0f}, must be equal"


def judge_stage(samples):
    # One more than the share: the driver is empty at the first sample.
    judged = samples[1 + int(WARM_UP_SHARE * len(samples)):]
    if len(judged) < 6:
        print(f"  {len(judged)} samples are too few to judge")
        return False
    is_flat = True
    for column, judge in (("held_kib", judge_memory), ("heap_kib", judge_memory),
                          ("descriptors", judge_count), ("gl_objects", judge_count)):
        is_column_flat, text = judge([float(sample[column]) for sample in judged])
        print(f"  {column:12} {text}: {'flat' if is_column_flat else 'GROWS'}")
        is_flat = is_flat and is_column_flat
    return is_flat


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        samples = list(csv.DictReader(file, delimiter="\t"))
    is_flat = True
    for stage in ("bound", "losing"):
        print(f"Window {stage}" if stage == "bound" else "Window lost at every rest")
        is_flat = judge_stage([sample for sample in samples if sample["stage"] == stage]) and is_flat
    print("VERDICT:", "flat, nothing grows" if is_flat else "FAILED, something grows")
    return 0 if is_flat else 1


sys.exit(main())
