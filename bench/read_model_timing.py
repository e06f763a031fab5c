#!/usr/bin/env python3
"""Times fedeck.read_model of a deck beside `fedeck check --json` of it.

Usage (from the repository root, best in a Release build):

    python3 bench/read_model_timing.py --fedeck build-release/fedeck \\
        --library build-release/libfedeck.so DECK [--runs N] [--python /usr/bin/python3]

Each run is a process of its own, timed from start to exit, with its peak
resident set; the medians of N runs (5 by default) and the largest peak are
printed, and the ratios: read_model to check, peaks to the deck's size. The
Python process reads the model with NumPy arrays; give an interpreter that
has NumPy with --python.
"""

import argparse
import os
import statistics
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
PACKAGE = os.path.join(HERE, os.pardir, "python")

READ = ("import sys, fedeck; model = fedeck.read_model(sys.argv[1], use_numpy=True); "
        "assert sum(len(i.nodes) for i in model.instances.values()) > 0")


def run(arguments, environment=None):
    """Seconds from fork to exit, and the peak resident set in MB (10^6 bytes)."""
    start = time.perf_counter()
    child = os.fork()
    if child == 0:
        devnull = os.open(os.devnull, os.O_WRONLY)
        os.dup2(devnull, 1)
        os.execve(arguments[0], arguments, environment or os.environ)
    _, status, usage = os.wait4(child, 0)
    seconds = time.perf_counter() - start
    if os.waitstatus_to_exitcode(status) not in (0, 1):
        sys.exit("%s failed with status %d" % (arguments[0], os.waitstatus_to_exitcode(status)))
    return seconds, usage.ru_maxrss * 1024 / 1e6


def median_of(runs, arguments, environment=None):
    results = [run(arguments, environment) for _ in range(runs)]
    return statistics.median(r[0] for r in results), max(r[1] for r in results)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("deck")
    parser.add_argument("--fedeck", required=True)
    parser.add_argument("--library", required=True)
    parser.add_argument("--python", default=sys.executable)
    parser.add_argument("--runs", type=int, default=5)
    options = parser.parse_args()
    deck_megabytes = os.path.getsize(options.deck) / 1e6
    environment = dict(os.environ, FEDECK_LIBRARY=os.path.abspath(options.library),
                       PYTHONPATH=os.path.abspath(PACKAGE))
    check = median_of(options.runs, [options.fedeck, "check", "--json", options.deck])
    model = median_of(options.runs, [options.python, "-c", READ, options.deck], environment)
    print("%s (%.1f MB), medians of %d runs" % (options.deck, deck_megabytes, options.runs))
    for name, (seconds, peak) in (("fedeck check --json", check), ("fedeck.read_model", model)):
        print("%-22s %7.3f s  peak %6.0f MB (%.2fx the deck)"
              % (name, seconds, peak, peak / deck_megabytes))
    print("read_model / check: %.2f" % (model[0] / check[0]))


if __name__ == "__main__":
    main()
