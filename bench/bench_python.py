#!/usr/bin/env python3
"""Times fedeck.parse of a generated flat deck of 100 x 100 x 100 elements.

Usage (from the repository root, after building fedeck_shared and
generate_deck, best in a Release build):

    FEDECK_LIBRARY=build/libfedeck.so python3 bench/bench_python.py build/generate_deck

Options: --size N (elements along each edge, default 100), --repeat K
(timed runs, default 5), --bulk-off (also time a parse without data lines),
--profile (split one parse into the time spent in the library and in the
Python callbacks).

Prints the deck's size, the median and best of the timed runs after one
warm-up run, and the type and shape of the node table, which must arrive as
one flat array. The target is 1.5 s or less for the default size.
"""

import argparse
import os
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "python"))

import fedeck  # noqa: E402
from fedeck import _builder  # noqa: E402

TARGET_SECONDS = 1.5


def generate(generator, size, directory):
    deck = os.path.join(directory, "flat_%d.inp" % size)
    subprocess.run([generator, str(size), str(size), str(size), deck], check=True,
                   stdout=subprocess.DEVNULL)
    return deck


def timed_parses(deck, repeat, **options):
    fedeck.parse(deck, **options)
    times = []
    for _ in range(repeat):
        start = time.perf_counter()
        result = fedeck.parse(deck, **options)
        times.append(time.perf_counter() - start)
    return times, result


def callback_seconds(deck):
    """One parse with every callback timed: the rest is the library's."""
    spent = [0.0]
    original = _builder.DeckBuilder._guarded

    def timing(self, callback):
        guarded = original(self, callback)

        def call(*arguments):
            start = time.perf_counter()
            guarded(*arguments)
            spent[0] += time.perf_counter() - start
        return call

    _builder.DeckBuilder._guarded = timing
    try:
        start = time.perf_counter()
        fedeck.parse(deck)
        total = time.perf_counter() - start
    finally:
        _builder.DeckBuilder._guarded = original
    return total, spent[0]


def describe(label, times, size_mb):
    median = statistics.median(times)
    print("%-22s median %.3f s  best %.3f s  (%.1f MB/s)  runs: %s" % (
        label, median, min(times), size_mb / median, ", ".join("%.3f" % t for t in times)))
    return median


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("generator", help="the generate_deck program of a build")
    arguments.add_argument("--size", type=int, default=100)
    arguments.add_argument("--repeat", type=int, default=5)
    arguments.add_argument("--bulk-off", action="store_true")
    arguments.add_argument("--profile", action="store_true")
    options = arguments.parse_args()

    with tempfile.TemporaryDirectory(prefix="fedeck-bench-") as directory:
        deck = generate(options.generator, options.size, directory)
        size_mb = os.path.getsize(deck) / 1e6
        print("library: %s" % fedeck.library_path())
        print("deck: %d x %d x %d elements, %.1f MB" % (
            options.size, options.size, options.size, size_mb))
        times, result = timed_parses(deck, options.repeat)
        median = describe("fedeck.parse", times, size_mb)
        nodes = result.find("NODE")[0].data
        print("node table: kind %s, %s of %s, shape %s, int_first_column %s" % (
            nodes.kind, type(nodes.values).__module__ + "." + type(nodes.values).__name__,
            getattr(nodes.values, "typecode", getattr(nodes.values, "dtype", "?")),
            nodes.shape, nodes.int_first_column))
        elements = result.find("ELEMENT")
        if elements:
            print("element table: kind %s, shape %s" % (elements[0].data.kind,
                                                         elements[0].data.shape))
        if options.bulk_off:
            describe("fedeck.parse bulk=False", timed_parses(deck, options.repeat,
                                                              bulk=False)[0], size_mb)
        if options.profile:
            total, in_callbacks = callback_seconds(deck)
            print("one parse: %.3f s, of which %.3f s in Python callbacks, %.3f s in the library"
                  % (total, in_callbacks, total - in_callbacks))
        verdict = "meets" if median <= TARGET_SECONDS else "misses"
        print("%s the target of %.1f s" % (verdict, TARGET_SECONDS))


if __name__ == "__main__":
    main()
