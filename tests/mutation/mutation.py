#!/usr/bin/env python3
"""Measures what the tests notice: changes the library's sources a little, one place at a time, and runs the tests.

A mutant that some test fails on, crashes on or does not come to an end with is killed. One that survives shows what no
test asserts - or, seldom, a change that changes nothing. See README.md beside this file."""
import argparse
import collections
import glob
import hashlib
import json
import os
import random
import shutil
import sys
import tempfile
import threading

import mutants
import tree

HERE = os.path.dirname(os.path.abspath(__file__))
PROJECT = os.path.dirname(os.path.dirname(HERE))
SAME_CODE, NO_CODE, KILLED, SURVIVED, EQUIVALENT = "same code", "no code", "killed", "survived", "equivalent"
VIABLE = (KILLED, SURVIVED, EQUIVALENT)
MOST_KILLERS = 60


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("sources", nargs="*", metavar="SOURCE",
                        help="sources of the library, relative to the tree (default: engine/*.cpp)")
    parser.add_argument("--tree", default=PROJECT, help="the project (default: the one this script belongs to)")
    parser.add_argument("--build", help="build folder of its own (default: TREE/build/mutation)")
    parser.add_argument("--number", type=int, default=200, help="mutants that compile to other code (default 200)")
    parser.add_argument("--all", action="store_true", help="every mutant, whatever --number says")
    parser.add_argument("--seed", type=int, default=1, help="of the choice and its order (default 1)")
    parser.add_argument("--jobs", type=int, default=2, help="mutants at a time (default 2)")
    parser.add_argument("--skip", nargs="*", default=[], metavar="PROGRAM", help="test programs left out")
    parser.add_argument("--without", nargs="*", default=["*TakeLessThanASecond*"], metavar="TESTS",
                        help="tests left out, as patterns (default: the ones that measure time)")
    parser.add_argument("--longest", type=float, default=6.0, metavar="SECONDS",
                        help="leave out single tests that take more CPU time than this (default 6)")
    parser.add_argument("--results", help="file of known results, which grows (default: BUILD/results.jsonl)")
    parser.add_argument("--equivalent", default=os.path.join(HERE, "equivalent.tsv"),
                        help="survivors that are argued to change nothing (default: equivalent.tsv beside the script)")
    parser.add_argument("--list", action="store_true", help="only list the chosen mutants; builds nothing")
    parser.add_argument("--min-score", type=float, default=0.0, help="fail below this percentage of killed mutants")
    arguments = parser.parse_args()
    arguments.build = arguments.build or os.path.join(arguments.tree, "build", "mutation")
    arguments.results = arguments.results or os.path.join(arguments.build, "results.jsonl")
    if not arguments.sources:
        arguments.sources = sorted(os.path.relpath(path, arguments.tree)
                                   for path in glob.glob(os.path.join(arguments.tree, "engine", "*.cpp")))
    return arguments


def note(text):
    print(text, file=sys.stderr, flush=True)


def choose(arguments, texts):
    """All mutants, in an order that the seed decides."""
    found = []
    for source in sorted(texts):
        found += mutants.mutants_of(source, texts[source])
    random.Random(arguments.seed).shuffle(found)
    return found


class Results:
    """Known results by key; what is new is appended to the file at once."""

    def __init__(self, path):
        self._path = path
        self._lock = threading.Lock()
        self._known = {}
        if os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                for line in file:
                    if line.endswith("\n"):  # not the rest of an interrupted run
                        record = json.loads(line)
                        self._known[record["key"]] = record

    def get(self, key):
        return self._known.get(key)

    def add(self, record):
        with self._lock:
            self._known[record["key"]] = record
            with open(self._path, "a", encoding="utf-8") as file:
                file.write(json.dumps(record) + "\n")


class Killers:
    """Which tests have killed mutants of a source: the next one's most likely killers come first."""

    def __init__(self, programs):
        self._programs = programs
        self._tests = collections.defaultdict(list)
        self._kills = collections.Counter()
        self._lock = threading.Lock()

    def learn(self, source, program, test):
        test = test.split(" (")[0]
        with self._lock:
            self._kills[source, program] += 1
            tests = self._tests[source, program]
            if "." in test and test not in tests:
                tests.append(test)
                del tests[:-MOST_KILLERS]

    def order(self, source):
        """Pairs of a program and the tests to run: known killers, then everything."""
        with self._lock:
            def worth(program):
                return (self._kills[source, program.name] + 0.3) / (program.seconds + 0.2)
            ordered = sorted(self._programs, key=worth, reverse=True)
            known = [(program, ":".join(self._tests[source, program.name])) for program in ordered
                     if self._tests[source, program.name]]
        return known + [(program, program.all_tests()) for program in ordered]


class Measurement:
    def __init__(self, arguments, built, texts):
        self._built = built
        self._texts = texts
        self._results = Results(arguments.results)
        self._fingerprint = built.fingerprint()
        self._killers = Killers(built.programs)
        self._lock = threading.Lock()
        self._originals = {}

    def key(self, mutant):
        state = hashlib.blake2b(digest_size=12)
        for part in (mutant.source, mutant.apply(self._texts[mutant.source]), self._fingerprint):
            state.update(part.encode() + b"\0")
        return state.hexdigest()

    def known(self, mutant):
        return self._results.get(self.key(mutant))

    def judge(self, mutant, folder):
        record = self.known(mutant)
        if record is None:
            status, killer = self._status(mutant, folder)
            line, before, after = mutants.Lines(self._texts[mutant.source]).change(mutant)
            record = {"key": self.key(mutant), "source": mutant.source, "line": line, "kind": mutant.kind,
                      "before": before, "after": after, "status": status, "by": killer}
            self._results.add(record)
        elif record["status"] == KILLED:
            self._killers.learn(mutant.source, *record["by"].split(": ", 1))
        return record

    def _original(self, source, folder, flags):
        """The unchanged source's object, compiled in the same way."""
        with self._lock:
            if (source, flags) not in self._originals:
                name = f"original-{len(self._originals)}.o"
                obj = self._built.compile(source, self._texts[source], folder, name, flags)
                if obj is None:
                    raise RuntimeError(f"{source} does not compile")
                with open(obj, "rb") as file:
                    self._originals[source, flags] = hashlib.blake2b(file.read()).digest()
            return self._originals[source, flags]

    def _is_same(self, mutant, folder, flags):
        obj = self._built.compile(mutant.source, mutant.apply(self._texts[mutant.source]), folder, "mutant.o", flags)
        if obj is None:
            return None
        with open(obj, "rb") as file:
            return hashlib.blake2b(file.read()).digest() == self._original(mutant.source, folder, flags)

    def _status(self, mutant, folder):
        same = self._is_same(mutant, folder, ())
        if same is None:
            return NO_CODE, ""
        if same:
            return SAME_CODE, ""
        self._built.link(mutant.source, os.path.join(folder, "mutant.o"), folder)
        for program, tests in self._killers.order(mutant.source):
            failed, _, _, _ = self._built.run(program, folder, tests)
            if failed is not None:
                self._killers.learn(mutant.source, program.name, failed)
                return KILLED, f"{program.name}: {failed}"
        # What the optimiser makes the same code of is the same.
        if self._is_same(mutant, folder, ("-O2",)):
            return EQUIVALENT, "the optimised code is the same"
        return SURVIVED, ""


def measure_all(measurement, order, number, jobs):
    """The first `number` viable mutants' records, in order."""
    records = [None] * len(order)
    lock = threading.Lock()
    state = {"next": 0, "viable": 0, "killed": 0}
    errors = []

    def work():
        folder = tempfile.mkdtemp(prefix="mutant-")
        os.chmod(folder, 0o755)  # some tests give up their rights
        try:
            while not errors:
                with lock:
                    if state["next"] >= len(order) or state["viable"] >= number:
                        return
                    at = state["next"]
                    state["next"] += 1
                record = measurement.judge(order[at], folder)
                with lock:
                    records[at] = record
                    state["viable"] += record["status"] in VIABLE
                    state["killed"] += record["status"] == KILLED
                    if record["status"] in VIABLE:
                        note(f"{state['viable']:4} {record['status']:10} {record['source']}:{record['line']}: "
                             f"{record['before'][:70]} -> {record['after'][:70]}  {record['by'][:60]}")
        except Exception as error:  # the other worker must stop, too
            errors.append(error)
        finally:
            shutil.rmtree(folder, ignore_errors=True)

    workers = [threading.Thread(target=work) for _ in range(jobs)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    if errors:
        raise errors[0]
    viable = [record for record in records if record is not None and record["status"] in VIABLE]
    discarded = sum(record is not None and record["status"] not in VIABLE for record in records)
    return viable[:number], discarded


def read_equivalents(path):
    """(source, before, after) -> why this change changes nothing."""
    result = {}
    if os.path.exists(path):
        with open(path, encoding="utf-8") as file:
            for line in file:
                if line.strip() and not line.startswith("#"):
                    source, before, after, reason = line.rstrip("\n").split("\t")
                    result[source, before, after] = reason
    return result


def report(records, discarded, equivalents):
    """Prints the figures and the survivors; returns the percentage of killed ones."""
    survivors, table = [], collections.defaultdict(collections.Counter)
    for record in records:
        status, reason = record["status"], record["by"]
        if status == SURVIVED:
            reason = equivalents.get((record["source"], record["before"], record["after"]))
            status = EQUIVALENT if reason else SURVIVED
        table[record["source"]][status] += 1
        if status != KILLED:
            survivors.append((status, record, reason))
    for status in (SURVIVED, EQUIVALENT):
        for found, record, reason in sorted(survivors, key=lambda entry: (entry[1]["source"], entry[1]["line"])):
            if found == status:
                print(f"{status}: {record['source']}:{record['line']}: {record['kind']}\n"
                      f"    {record['before']}\n -> {record['after']}" + (f"\n    {reason}" if reason else ""))
    print(f"\n{'source':40} {'mutants':>8} {'killed':>8} {'survived':>9} {'equivalent':>11}")
    total = sum(table.values(), collections.Counter())
    for name, counts in [*sorted(table.items()), ("together", total)]:
        print(f"{name:40} {sum(counts.values()):8} {counts[KILLED]:8} {counts[SURVIVED]:9} {counts[EQUIVALENT]:11}")
    counted = total[KILLED] + total[SURVIVED]
    score = 100.0 * total[KILLED] / counted if counted else 100.0
    print(f"\n{score:.1f} percent of {counted} mutants killed, the equivalent ones left out; "
          f"{discarded} changes were no C++ or the same code")
    return score


def main():
    arguments = parse_arguments()
    texts = {}
    for source in arguments.sources:
        with open(os.path.join(arguments.tree, source), encoding="utf-8") as file:
            texts[source] = file.read()
    order = choose(arguments, texts)
    if arguments.list:
        for mutant in order[:None if arguments.all else arguments.number]:
            line, before, after = mutants.Lines(texts[mutant.source]).change(mutant)
            print(f"{mutant.source}:{line}: {mutant.kind}: {before}  ->  {after}")
        return 0
    built = tree.Tree(arguments.tree, arguments.build, arguments.skip, arguments.without, arguments.longest)
    note("building")
    built.prepare(arguments.jobs)
    strangers = [source for source in texts if not built.knows(source)]
    if strangers:
        sys.exit(f"no sources of the library: {' '.join(strangers)}")
    with tempfile.TemporaryDirectory(prefix="mutant-") as folder:
        os.chmod(folder, 0o755)
        built.measure(folder, arguments.jobs)
    note(f"{sum(program.tests for program in built.programs)} tests in {len(built.programs)} programs, "
         f"{sum(program.cpu for program in built.programs):.1f} s of CPU time; {len(order)} possible mutants")
    for program in built.programs:
        for name in program.left_out:
            if name not in arguments.without:
                note(f"left out, since it fails or takes too long without any change: {program.name}: {name}")
    measurement = Measurement(arguments, built, texts)
    number = len(order) if arguments.all else arguments.number
    records, discarded = measure_all(measurement, order, number, arguments.jobs)
    score = report(records, discarded, read_equivalents(arguments.equivalent))
    return 0 if score >= arguments.min_score else 1


if __name__ == "__main__":
    sys.exit(main())
