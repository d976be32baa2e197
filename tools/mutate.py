#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Changes src/ in small ways, one at a time, and tells which changes no test notices.

    tools/mutate.py                      a sample of 200 changes, about ten minutes on two cores
    tools/mutate.py --count 600 --seed 2
    tools/mutate.py --all src/pathname   every change of a folder; goes on where it was interrupted

Each change is compiled into a copy of the library, and the test programs of the folder of tests/
that mirrors its own run with it; where all of them pass, some others run, too. What was found is in
build/mutate/results.jsonl: a change that a test noticed is not tried again while its source stays
as it is, and one that lived is tried again after a change of tests/. A change whose object is the
same, at -O0 or at -O2, is none, and neither is one that does not compile. docs/mutants.md explains those
that live for good.

Needs Python 3, and what ./run test needs.
"""
import argparse
import collections
import concurrent.futures
import dataclasses
import hashlib
import json
import math
import os
import random
import re
import signal
import sys
import threading
import time

sys.dont_write_bytecode = True

import mutants  # noqa: E402
from mutation_build import PLACE, ROOT, SOURCES, Build, Stopped, Worker  # noqa: E402

RESULTS = PLACE / "results.jsonl"
TIMES = PLACE / "times.json"
EXPLAINED = ROOT / "docs" / "mutants.md"
GOAL = 0.95
OTHERS_SECONDS = 15
COUNTED = ("killed", "lived")
ROW = re.compile(r"\| `(.+?)` \| `?(.*?)`? \| `(.+?)` \| `(.+?)` \| .+ \|")


def fingerprint():
    """The tests as they are now: what lived under others may be noticed by them."""
    digest = hashlib.sha256()
    for path in sorted((ROOT / "tests").rglob("*")):
        if path.is_file():
            digest.update(path.read_bytes())
    return digest.hexdigest()[:16]


def source_files():
    files = [path for path in sorted(SOURCES.rglob("*"))
             if path.suffix in (".h", ".cpp") and "Mac" not in path.name]
    return [str(path.relative_to(ROOT)) for path in files]


def all_mutants():
    return {file: mutants.mutants(file, (ROOT / file).read_text(encoding="utf-8"))
            for file in source_files()}


def sampled(found, seed):
    """All mutants in an order whose every beginning takes its share from each file."""
    generator = random.Random(seed)
    places = []
    for file in sorted(found):
        shuffled = found[file][:]
        generator.shuffle(shuffled)
        places += [((number + generator.random()) / len(shuffled), file, mutant)
                   for number, mutant in enumerate(shuffled)]
    return [mutant for _, _, mutant in sorted(places, key=lambda place: place[:2])]


def explained():
    """Survivors with a known reason: file, text before and text after."""
    rows = set()
    if EXPLAINED.exists():
        for line in EXPLAINED.read_text(encoding="utf-8").splitlines():
            row = ROW.fullmatch(line.replace(r"\|", "\0"))
            if row:
                rows.add(tuple(row[part].replace("\0", "|") for part in (1, 3, 4)))
    return rows


def table_row(mutant):
    cells = [mutant["file"], mutant["function"], mutant["before"], mutant["after"]]
    return "| " + " | ".join(f"`{cell}`" for cell in cells).replace("||", r"\|\|") + " | ? |"


class Results:
    """What became of each mutant, in a file to which each new result is added at once."""

    def __init__(self, fresh, tests):
        self.tests, self.known, self.lock = tests, {}, threading.Lock()
        if fresh:
            RESULTS.unlink(missing_ok=True)
        for line in RESULTS.read_text(encoding="utf-8").splitlines() if RESULTS.exists() else []:
            result = json.loads(line)
            if result["status"] != "lived" or result["tests"] == tests:
                self.known[result["key"]] = result

    def add(self, mutant, **result):
        result = {**dataclasses.asdict(mutant), "tests": self.tests, **result}
        with self.lock, RESULTS.open("a", encoding="utf-8") as file:
            self.known[mutant.key] = result
            file.write(json.dumps(result) + "\n")
        return result


class Chances:
    """How often each program noticed a change of each folder, so that the best ones come first."""

    def __init__(self, programs):
        self.programs = programs
        self.runs, self.kills = collections.Counter(), collections.Counter()

    def cost(self, room, program):
        place = (room, program.name)
        return program.seconds * (self.runs[place] + 2) / (self.kills[place] + 1)

    def note(self, room, program, killed):
        self.runs[room, program.name] += 1
        self.kills[room, program.name] += killed

    def family(self, room):
        """The programs of the folder that mirrors a room, or the nearest folder around it."""
        while room and not any(program.room == room for program in self.programs):
            room = os.path.dirname(room)
        own = [program for program in self.programs if program.room == room]
        return sorted(own, key=lambda program: self.cost(room, program))

    def others(self, room, family):
        """Some more programs, the nearest first, as long as they are quick together."""
        near = room.split("/")[0]
        rest = sorted((program for program in self.programs if program not in family),
                      key=lambda program: (program.room.split("/")[0] != near,
                                           self.cost(room, program)))
        left = OTHERS_SECONDS
        for program in rest:
            if program.seconds <= left:
                left -= program.seconds
                yield program


class Run:
    """One run of workers over mutants in a given order, up to a number of mutants that count."""

    def __init__(self, base, results, rows, order, count):
        self.base, self.results, self.rows = base, results, rows
        self.chances = Chances(base.programs)
        self.order, self.count = iter(order), count
        self.done, self.taken, self.lock = [], 0, threading.Condition()

    def counted(self):
        return sum(result["status"] in COUNTED for result in self.done)

    def next(self):
        """The next mutant that has no result yet. Waits where it depends on those under way."""
        with self.lock:
            while True:
                while self.taken and self.counted() + self.taken >= self.count:
                    self.lock.wait()
                if self.counted() >= self.count:
                    return None
                mutant = next(self.order, None)
                if mutant is None or mutant.key not in self.results.known:
                    self.taken += mutant is not None
                    return mutant
                self.done.append(self.results.known[mutant.key])
                self.tell(self.done[-1])

    def stop(self):
        with self.lock:
            self.order, self.taken = iter(()), 0
            self.lock.notify_all()

    def finished(self, result):
        with self.lock:
            self.taken -= 1
            self.done.append(result)
            self.lock.notify_all()
            self.tell(result)
            if len(self.done) % 20 == 0:
                print(f"... {len(self.done)} tried", file=sys.stderr, flush=True)

    def is_survivor(self, result):
        return result["status"] == "lived" and identity(result) not in self.rows

    def survivors(self):
        return [result for result in self.done if self.is_survivor(result)]

    def tell(self, result):
        if self.is_survivor(result):
            show(result)

    def work(self, worker):
        while mutant := self.next():
            start = time.monotonic()
            status = Trial(worker, self.base, self.chances, mutant).status()
            seconds = round(time.monotonic() - start, 1)
            self.finished(self.results.add(mutant, seconds=seconds, **status))


class Trial:
    """One mutant in a worker's place."""

    def __init__(self, worker, base, chances, mutant):
        self.worker, self.base, self.chances, self.mutant = worker, base, chances, mutant
        self.text = (SOURCES.parent / mutant.file).read_text(encoding="utf-8")
        self.room = os.path.dirname(os.path.relpath(mutant.file, "src"))
        self.objects, self.targets = base.needing(mutant.file)

    def status(self):
        self.worker.write(self.mutant.file, self.mutant.applied(self.text))
        try:
            return self.built() or self.tested()
        finally:
            self.worker.write(self.mutant.file, self.text)

    def built(self):
        """Compiles and links. Result: a status, where that settles it."""
        same = True
        for name in self.objects:
            if not self.worker.compile(name):
                return {"status": "invalid"}
            same = same and self.worker.content(name) == self.base.content(name)
        if same:
            return {"status": "equal"}
        if not all(self.worker.link(target, self.objects) for target in self.targets):
            return {"status": "invalid"}
        return None

    def tested(self):
        family = self.chances.family(self.room)
        killed = self.killed_by(family)
        if not killed and self.is_equal_optimised():
            return {"status": "equal"}
        return killed or self.killed_by(self.chances.others(self.room, family)) or {
            "status": "lived"}

    def killed_by(self, programs):
        for program in programs:
            code = self.worker.test(program, program.path in self.targets)
            self.worker.clean()
            self.chances.note(self.room, program, code != 0)
            if code != 0:
                return {"status": "killed", "by": program.name,
                        "in_time": code not in (None, -signal.SIGXCPU)}
        return None

    def is_equal_optimised(self):
        """Whether the compiler makes the same of both texts; the tests could tell nothing apart."""
        objects = [name for name in self.objects if name.startswith("src/")]
        contents = []
        for text in (self.mutant.applied(self.text), self.text):
            self.worker.write(self.mutant.file, text)
            if not all(self.worker.compile(name, optimised=True) for name in objects):
                return False
            contents.append([self.worker.content(name) for name in objects])
        return contents[0] == contents[1]


def show(result):
    place = f"{result['file']}:{result['line']}"
    print(f"{place}: {result['kind']} in {result['function'] or 'no function'}\n"
          f"    - {result['before']}\n    + {result['after']}", flush=True)


def measure(base, worker):
    """How long each program takes without a change, measured anew where it was built anew."""
    known = json.loads(TIMES.read_text(encoding="utf-8")) if TIMES.exists() else {}
    for program in base.programs:
        stamp = base.stamp(program)
        if known.get(program.name, [None])[0] != stamp:
            if not worker.measure(program):
                sys.exit(f"{program.name} fails without any change")
            known[program.name] = [stamp, program.seconds, program.processor_seconds]
        program.seconds, program.processor_seconds = known[program.name][1:]
    TIMES.write_text(json.dumps(known, indent=1), encoding="utf-8")


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--all", metavar="FOLDER", help="try every change of a folder or a file")
    parser.add_argument("--count", type=int, default=200, help="how many changes (default 200)")
    parser.add_argument("--seed", type=int, default=1, help="which sample (default 1)")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="how many at a time")
    parser.add_argument("--fresh", action="store_true", help="forget what was found before")
    parser.add_argument("--rows", action="store_true",
                        help="end with the survivors as rows for docs/mutants.md")
    parser.add_argument("--list", action="store_true", help="only list the changes")
    parser.add_argument("--check", action="store_true",
                        help="only look for rows of docs/mutants.md that fit no source any more")
    return parser.parse_args()


def selection(found, arguments):
    if not arguments.all:
        return sampled(found, arguments.seed), arguments.count
    folder = os.path.relpath(ROOT / arguments.all, ROOT)
    chosen = {file: list_of for file, list_of in found.items()
              if file == folder or file.startswith(folder + "/")}
    if not chosen:
        sys.exit(f"no source in {arguments.all}")
    return [mutant for list_of in chosen.values() for mutant in list_of], math.inf


def run_all(run, workers):
    with concurrent.futures.ThreadPoolExecutor(len(workers)) as pool:
        futures = [pool.submit(run.work, worker) for worker in workers]
        try:
            ended, _ = concurrent.futures.wait(futures, return_when="FIRST_EXCEPTION")
            for future in ended:
                future.result()
        except BaseException:
            run.stop()
            for worker in workers:
                worker.stop()
            raise


def tally(done, rows):
    """Per folder: killed, explained, alive."""
    folders = collections.defaultdict(collections.Counter)
    for result in done:
        status = result["status"]
        if status == "lived" and identity(result) in rows:
            status = "explained"
        for folder in (os.path.dirname(result["file"]), "all"):
            folders[folder][status] += 1
    return folders


def identity(result):
    return result["file"], result["before"], result["after"]


def report(done, rows):
    columns = ("killed", "explained", "lived", "equal", "invalid")
    print(f"\n{'':24}" + "".join(f"{column:>11}" for column in columns))
    folders = tally(done, rows)
    for folder in sorted(folders, key=lambda name: (name == "all", name)):
        print(f"{folder:24}" + "".join(f"{folders[folder][column]:11}" for column in columns))
    total = folders["all"]
    good, counted = total["killed"] + total["explained"], sum(total[c] for c in columns[:3])
    print(f"{counted} count, {good / max(counted, 1):.1%} of them killed or explained "
          f"(at least {GOAL:.0%})")
    return good >= GOAL * counted


def tell_stale(rows, found):
    """Rows of the explained survivors that no source has any more."""
    known = {(m.file, m.before, m.after) for list_of in found.values() for m in list_of}
    for file, before, after in sorted(rows - known):
        print(f"docs/mutants.md: no such change any more: {file}: {before} -> {after}")
    return not rows - known


def main():
    arguments = parse_arguments()
    os.chdir(ROOT)
    found, rows = all_mutants(), explained()
    if arguments.check:
        return 0 if tell_stale(rows, found) else 1
    order, count = selection(found, arguments)
    if arguments.list:
        for mutant in order:
            show(dataclasses.asdict(mutant))
        return 0
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    base = Build(arguments.jobs)
    workers = [Worker(number, base) for number in range(arguments.jobs)]
    workers[0].link(base.library, [])
    measure(base, workers[0])
    run = Run(base, Results(arguments.fresh, fingerprint()), rows, order, count)
    interrupted = False
    try:
        run_all(run, workers)
    except (KeyboardInterrupt, Stopped):
        interrupted = True
        print("interrupted; the same command goes on", file=sys.stderr)
    if arguments.rows:
        for result in run.survivors():
            print(table_row(result))
    return 0 if report(run.done, rows) & tell_stale(rows, found) and not interrupted else 1


if __name__ == "__main__":
    sys.exit(main())
