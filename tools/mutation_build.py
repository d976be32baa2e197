# SPDX-License-Identifier: MIT
"""The build that tools/mutate.py changes: the library and the test programs, unoptimised, once,
and beside them a folder for each worker with the few objects that a changed source makes different.
"""
import dataclasses
import json
import math
import os
import pathlib
import re
import resource
import shlex
import shutil
import signal
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLACE = ROOT / "build" / "mutate"
BASE = PLACE / "build"
SOURCES = ROOT / "src"
LIBRARY = "src/libKtQtBase.so"
LIBRARY_IT_NEEDS = BASE / "osbase"  # which it seeks in a folder beside its own
COMPILE_SECONDS = 300
LONGEST = 600
MEMORY = 8 << 30
FILE_SIZE = 4 << 30
NOBODY = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups"]


@dataclasses.dataclass
class Program:
    """A test program, how CTest runs it, and how long it takes."""
    name: str
    path: str
    environment: list
    folder: str
    room: str
    seconds: float = 0.0
    processor_seconds: float = 0.0


def output(*command, folder=BASE):
    return subprocess.run(command, cwd=folder, check=True, capture_output=True, text=True).stdout


def property_of(test, name, otherwise):
    values = (entry["value"] for entry in test["properties"] if entry["name"] == name)
    return next(values, otherwise)


def room_of(folder):
    """The folder of src/ that a folder of tests/ stands beside; a test folder may have none."""
    return os.path.relpath(folder, BASE / "tests")


def read_tests():
    return json.loads(output("ctest", "--show-only=json-v1"))["tests"]


def read_programs(tests):
    programs = []
    for test in tests:
        if "whole-program" in property_of(test, "LABELS", []):
            folder = property_of(test, "WORKING_DIRECTORY", str(BASE))
            # Before the program itself a launcher sets the environment.
            path = os.path.relpath(test["command"][-1], BASE)
            programs.append(Program(test["name"], path, property_of(test, "ENVIRONMENT", []),
                                    folder, room_of(folder)))
    return programs


def set_fixtures_up(tests):
    """Makes what programs need before they start."""
    needed = {fixture for test in tests if "whole-program" in property_of(test, "LABELS", [])
              for fixture in property_of(test, "FIXTURES_REQUIRED", [])}
    names = [re.escape(test["name"]) for test in tests
             if needed & set(property_of(test, "FIXTURES_SETUP", []))]
    if names:
        output("ctest", "-R", f"^({'|'.join(names)})$")


def configure():
    subprocess.run(
        ["cmake", "--preset", "debug", "-B", str(BASE), "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0",
         "-DCMAKE_SHARED_LINKER_FLAGS=-Wl,--enable-new-dtags",
         "-DCMAKE_EXE_LINKER_FLAGS=-Wl,--enable-new-dtags", "-DKTQTBASE_WHOLE_TEST_PROGRAMS=ON",
         "-DKTQTBASE_BUILD_EXAMPLES=OFF", "-DKTQTBASE_BUILD_TOOLS=OFF"],
        cwd=ROOT, check=True, stdout=subprocess.DEVNULL)


def build(targets, jobs):
    subprocess.run(["ninja", "-C", str(BASE), f"-j{jobs}", "--quiet", *targets], check=True)


class Build:
    """The unchanged build: what each object is made from, and each command."""

    def __init__(self, jobs):
        configure()
        tests = read_tests()
        self.programs = read_programs(tests)
        build([LIBRARY] + [program.name for program in self.programs], jobs)
        set_fixtures_up(tests)
        self.library = os.path.relpath((BASE / LIBRARY).resolve(), BASE)
        self.objects = self.read_objects()
        self.links = {target: self.link_command(target)
                      for target in [self.library] + [p.path for p in self.programs]}
        self.compiles = self.read_compiles()

    def read_objects(self):
        """The objects that need each file of src/."""
        objects, current = {}, ""
        for line in output("ninja", "-t", "deps").splitlines():
            if line and not line.startswith(" "):
                current = line.partition(": #deps")[0]
            elif line:
                path = (BASE / line.strip()).resolve()
                if path.is_relative_to(SOURCES):
                    objects.setdefault(str(path.relative_to(ROOT)), []).append(current)
        return objects

    def read_compiles(self):
        entries = json.loads(output("ninja", "-t", "compdb"))
        wanted = {name for names in self.objects.values() for name in names}
        return {entry["output"]: entry["command"] for entry in entries
                if entry["output"] in wanted}

    def link_command(self, target):
        return output("ninja", "-t", "commands", "-s", target).strip()

    def content(self, name):
        return (BASE / name).read_bytes()

    def stamp(self, program):
        return (BASE / program.path).stat().st_mtime

    def needing(self, file):
        """The objects that need a file, and what is linked from them."""
        objects = [name for name in self.objects.get(file, []) if name in self.compiles]
        targets = [target for target, command in self.links.items()
                   if set(objects) & set(shlex.split(command))]
        used = {word for target in targets for word in shlex.split(self.links[target])}
        return [name for name in objects if name in used], targets


class Stopped(Exception):
    """The run was interrupted."""


class Worker:
    """A copy of src/ that is changed and compiled, and a room for the tests to run in."""

    def __init__(self, number, base):
        self.place = PLACE / f"worker{number}"
        self.base = base
        self.process = None
        self.stopped = False
        shutil.rmtree(self.place, ignore_errors=True)
        shutil.copytree(SOURCES, self.place / "src")
        self.as_somebody = NOBODY if os.getuid() == 0 and can_drop(BASE) else []
        # The tests of dialogs leave pictures beside their program.
        self.give([program.folder for program in base.programs])
        self.clean()

    def give(self, folders):
        for folder in folders if self.as_somebody else []:
            shutil.chown(folder, "nobody", "nogroup")

    def clean(self):
        """The tests' folders as new; the list of fonts stays, since it takes long to make."""
        cache = self.place / "home" / ".cache"
        for folder in (self.place / "tmp", self.place / "home"):
            for entry in folder.iterdir() if folder.is_dir() else []:
                if entry != cache:
                    remove(entry)
            folder.mkdir(parents=True, exist_ok=True)
            folder.chmod(0o700)
            self.give([folder])

    def own(self, name):
        return str(self.place / "objects" / name)

    def run(self, command, seconds, **options):
        """Runs a command with all that it starts. Result: its exit code, or None after the time."""
        if self.stopped:
            raise Stopped
        self.process = subprocess.Popen(command, start_new_session=True, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                        **options)
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None
        finally:
            self.end_process()
            if self.stopped:
                raise Stopped

    def end_process(self):
        process = self.process
        if process:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()

    def stop(self):
        self.stopped = True
        self.end_process()

    def in_place(self, command, names):
        """A command of the base with the changed sources, and with what it makes of them here."""
        command = command.replace(f"{SOURCES}/", f"{self.place}/src/")
        command = re.sub(rf"-I{re.escape(str(SOURCES))}(?=\s)", f"-I{self.place}/src", command)
        for name in names:
            command = re.sub(rf"(?<=\s){re.escape(name)}(?=\s|$)", self.own(name), command)
        return command

    def compile(self, name, optimised=False):
        pathlib.Path(self.own(name)).parent.mkdir(parents=True, exist_ok=True)
        command = self.in_place(self.base.compiles[name], [name])
        if optimised:
            command = command.replace(" -O0 ", " -O2 ")
        return self.run(["nice", "sh", "-c", command], COMPILE_SECONDS, cwd=BASE) == 0

    def content(self, name):
        return pathlib.Path(self.own(name)).read_bytes()

    def write(self, file, text):
        (self.place / file).write_text(text, encoding="utf-8")

    def link(self, target, objects):
        pathlib.Path(self.own(target)).parent.mkdir(parents=True, exist_ok=True)
        command = self.in_place(self.base.links[target], [*objects, target])
        if self.run(["nice", "sh", "-c", command], COMPILE_SECONDS, cwd=BASE) != 0:
            return False
        if target == self.base.library:
            self.name_library()
        return True

    def name_library(self):
        """The name by which the loader looks for the library."""
        name = pathlib.Path(self.own(self.base.library))
        short = name.with_name(".".join(name.name.split(".")[:3]))
        short.unlink(missing_ok=True)
        short.symlink_to(name.name)

    def test(self, program, own_program=False):
        """Runs a test program up to its first failure, with the library of this worker. Both limits
        together tell an endless loop from a machine that is busy."""
        processor = math.ceil(3 * program.processor_seconds) + 2
        path = self.own(program.path) if own_program else str(BASE / program.path)
        command = ["nice", *self.as_somebody, "env", *self.environment(program), path,
                   "--gtest_fail_fast", "--gtest_brief=1"]
        return self.run(command, 3 * program.seconds + 10, cwd=program.folder,
                        preexec_fn=lambda: limit_resources(processor))

    def environment(self, program):
        base_home, home = str(BASE / "tests" / "home"), str(self.place / "home")
        variables = [variable.replace(base_home, home) for variable in program.environment]
        library = pathlib.Path(self.own(self.base.library)).parent
        return [*variables, f"TMPDIR={self.place}/tmp",
                f"LD_LIBRARY_PATH={library}:{LIBRARY_IT_NEEDS}"]

    def measure(self, program):
        """Notes how long a test program takes with the library as it is, if it passes."""
        program.seconds, program.processor_seconds = LONGEST, LONGEST
        start, before = time.monotonic(), processor_seconds()
        passed = self.test(program) == 0
        program.seconds = time.monotonic() - start
        program.processor_seconds = processor_seconds() - before
        self.clean()
        return passed


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def can_drop(folder):
    return subprocess.run([*NOBODY, "test", "-x", str(folder)], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


def remove(entry):
    if entry.is_dir() and not entry.is_symlink():
        shutil.rmtree(entry, ignore_errors=True)
    else:
        entry.unlink(missing_ok=True)


def limit_resources(processor):
    """A changed library may ask for all the memory, write without an end or never return."""
    resource.setrlimit(resource.RLIMIT_CPU, (processor, processor + 1))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
