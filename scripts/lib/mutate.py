# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Puts faults into a copy of the program, one at a time. To be run by scripts/mutate, in the top folder."""

import argparse
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import resource
import subprocess
import sys
import threading
import time
from dataclasses import dataclass

LISTS = pathlib.Path("tests/mutants")
WORK = pathlib.Path("build/mutate")
COPY = WORK / "program"
BUILD = COPY / "build/dev"
RESULTS = WORK / "results.tsv"
CONTENT = WORK / "content.json"
LIBRARY_OF_FORMS = re.compile(r"FORMS\s([^)]*)\)")
LINES_AFTER_ANCHOR = 30
MEMORY_LIMIT = 6 * 1024**3


@dataclass
class Fault:
    list_name: str
    line: int
    file: str
    anchor: str
    old: str
    new: str

    @property
    def place(self):
        return f"{LISTS}/{self.list_name}.txt:{self.line}"

    @property
    def key(self):
        return "\t".join([self.file, self.anchor, self.old, self.new])

    def __str__(self):
        return f"{self.place}  {self.file}: {self.old}  ->  {self.new or 'nothing'}"


def read_list(path):
    """The faults of a list. tests/mutants/README.md tells what its lines mean."""
    faults = []
    file, anchor, old = "", "", ""
    for number, line in enumerate(path.read_text().splitlines(), 1):
        mark, text = line[:1], line[1:].strip()
        if mark == "@":
            file = text
        elif mark == ">":
            anchor = text
        elif mark == "-" and not old:
            old = text
        elif mark == "+" and old:
            faults.append(Fault(path.stem, number, file, anchor, old, text))
            anchor = old = ""
        elif line and mark != "#":
            sys.exit(f"{path}:{number}: no line of a list: {line}")
    return faults


def span_after_anchor(fault, text):
    """The part of a file in which a fault's old text stands; nothing where there is no such part."""
    if not fault.anchor:
        return 0, len(text)
    if text.count(fault.anchor) != 1:
        return None
    start = text.index(fault.anchor)
    lines = text[start:].splitlines(keepends=True)[: LINES_AFTER_ANCHOR + 1]
    return start, start + sum(map(len, lines))


def pattern_of(old):
    """Matches a text with any white space where it has blanks."""
    return re.compile(r"\s+".join(re.escape(word) for word in old.split()))


def mutated(fault):
    """The whole text of the file with the fault; nothing where the list no longer fits the file."""
    text = pathlib.Path(fault.file).read_text()
    span = span_after_anchor(fault, text)
    if not span:
        return None
    found = list(pattern_of(fault.old).finditer(text, *span))
    if not found or (len(found) > 1 and not fault.anchor):
        return None
    return text[: found[0].start()] + fault.new + text[found[0].end() :]


def is_header(fault):
    return fault.file.endswith(".h")


def all_faults(patterns):
    faults = [fault for path in sorted(LISTS.glob("*.txt")) for fault in read_list(path)]
    stale = [fault for fault in faults if not os.path.exists(fault.file) or mutated(fault) is None]
    for fault in stale:
        print(f"Does not fit the program (the old text must be there once): {fault}", file=sys.stderr)
    keys = [fault.key for fault in faults]
    for fault in faults:
        if keys.count(fault.key) > 1:
            print(f"Twice in the lists: {fault}", file=sys.stderr)
    if stale or len(set(keys)) < len(keys):
        sys.exit(2)
    wanted = [f for f in faults if not patterns or any(p in f"{f.list_name} {f.file}" for p in patterns)]
    # Faults of one file follow each other; headers come last, as other faults need tests that are up to date.
    return sorted(wanted, key=lambda fault: (is_header(fault), fault.file))


def refresh_copy():
    """Makes the copy equal to the tracked files and returns a checksum of them. What did not change keeps its
    time."""
    tracked = subprocess.run(["git", "ls-files", "-z", "--", ".", ":!scripts", f":!{LISTS}"], check=True,
                             capture_output=True).stdout
    names = [name for name in tracked.decode().split("\0") if name and os.path.isfile(name)]
    for folder, folders, files in os.walk(COPY):
        folders[:] = [name for name in folders if name != "build"]
        for path in (pathlib.Path(folder, file) for file in files):
            if str(path.relative_to(COPY)) not in names:
                path.unlink()
    checksum = hashlib.sha256()
    for name in names:
        content = pathlib.Path(name).read_bytes()
        write(COPY / name, content)
        checksum.update(b"%s\0%d\0" % (name.encode(), len(content)) + content)
    return checksum.hexdigest()


def write(path, content):
    if path.exists() and path.read_bytes() == content:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def configure():
    """Shared libraries, so that a change links one of them again and no test."""
    subprocess.run(["cmake", "--preset", "dev", "-DBUILD_SHARED_LIBS=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"],
                   cwd=COPY, check=True, stdout=subprocess.DEVNULL)


def build(jobs, *targets):
    result = subprocess.run(["ninja", "-C", BUILD, f"-j{jobs}", *targets], capture_output=True, text=True)
    (WORK / "build.log").write_text(result.stdout + result.stderr)
    return result.returncode == 0


@dataclass
class Test:
    name: str
    command: list[str]
    folder: str
    environment: dict[str, str]
    libraries: set[str]
    seconds: float = 0

    def run(self, limit, stop):
        """Whether the test is content, which it is not when its time is up; nothing where it had to stop."""
        process = subprocess.Popen(self.command, env=os.environ | self.environment, cwd=self.folder,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT,) * 2))
        end = time.monotonic() + limit
        while process.poll() is None and time.monotonic() < end and not stop.is_set():
            time.sleep(0.02)
        if process.poll() is None:
            process.kill()
            process.wait()
            return None if stop.is_set() else False
        return process.returncode == 0


def libraries_of(program):
    """Our libraries that a program is linked with, over others too."""
    lines = subprocess.run(["ldd", program], capture_output=True, text=True, check=True).stdout.splitlines()
    return {re.match(r"\s*lib(\w+)", line)[1] for line in lines if str(BUILD.resolve()) in line}


def all_tests():
    listed = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"], capture_output=True, check=True)
    tests = []
    for test in json.loads(listed.stdout)["tests"]:
        if "command" not in test:
            continue  # the walk, which is not built here: it takes longer than all others
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        if "access" in properties["LABELS"]:
            continue  # run by scripts on a display of their own, which tell nothing of the libraries
        environment = dict(entry.split("=", 1) for entry in properties["ENVIRONMENT"])
        tests.append(Test(test["name"], test["command"], properties["WORKING_DIRECTORY"], environment,
                          libraries_of(test["command"][0])))
    return tests


def run_until_one_fails(tests, jobs, limit_of):
    """The name of the first test that fails; empty when all are content."""
    stop = threading.Event()
    failed = []

    def run(test):
        if stop.is_set():
            return
        started = time.monotonic()
        content = test.run(limit_of(test), stop)
        if content is False:
            stop.set()
            failed.append(test.name)
        elif content:
            test.seconds = time.monotonic() - started

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(run, tests))
    return failed[0] if failed else ""


def check_unchanged(tests, jobs, checksum):
    """Sees that all tests are content without a fault, unless they were with this very program."""
    known = json.loads(CONTENT.read_text()) if CONTENT.exists() else {}
    if known.get("checksum") == checksum:
        for test in tests:
            test.seconds = known["seconds"][test.name]
        return
    failed = run_until_one_fails(tests, jobs, lambda _: 300)
    if failed:
        sys.exit(f"{failed} fails without any fault in the program")
    seconds = {test.name: test.seconds for test in tests}
    CONTENT.write_text(json.dumps({"checksum": checksum, "seconds": seconds}))


class Results:
    """What became of each fault the last time: a line a fault."""

    def __init__(self):
        self.of = {}
        if RESULTS.exists():
            for line in RESULTS.read_text().splitlines():
                verdict, killer, key = line.split("\t", 2)
                self.of[key] = verdict, killer

    def add(self, fault, verdict, killer):
        self.of[fault.key] = verdict, killer
        RESULTS.write_text("".join(f"{v}\t{k}\t{key}\n" for key, (v, k) in self.of.items()))

    def survived(self, fault):
        return self.of.get(fault.key, ("survived", ""))[0] != "killed"

    def killers(self, beginning):
        """The tests that noticed faults of a file or a folder, with how many of them."""
        return collections.Counter(killer for key, (verdict, killer) in self.of.items()
                                   if verdict == "killed" and key.startswith(beginning))


def words(name):
    return set(re.findall(r"[a-z0-9]+", pathlib.Path(name).stem.replace("tst_", "").lower()))


def likeness(test, file):
    """How much of the shorter name begins the longer one, and the words that they share."""
    stem, name = pathlib.Path(file).stem.lower(), test.name.removeprefix("tst_")
    return len(os.path.commonprefix([stem, name])) / len(stem) + len(words(stem) & words(name))


def libraries_seeing(file):
    """The libraries in which a file is compiled."""
    if not file.startswith("forms/"):
        folder = file.split("/")[0]
        return {folder, folder + "_core"}
    form = pathlib.Path(file).stem
    return {path.parent.name for path in pathlib.Path().glob("*/CMakeLists.txt")
            if any(form in found.split() for found in LIBRARY_OF_FORMS.findall(path.read_text()))}


def tests_for(fault, tests, results):
    """The tests that can see a fault: first those that are likely to notice it for the time that they take."""
    libraries = libraries_seeing(fault.file)
    of_file = results.killers(fault.file + "\t")
    of_folder = results.killers(fault.file.split("/")[0] + "/")
    before = results.of.get(fault.key, ("", ""))[1]
    seeing = [test for test in tests if test.libraries & libraries]

    def promise(test):
        return likeness(test, fault.file) + of_file[test.name] + 2 * of_folder[test.name] / max(1, of_folder.total())

    return sorted(seeing, key=lambda t: (t.name != before, (0.2 + t.seconds) / (0.2 + promise(t))))


def judge(fault, tests, results, jobs):
    """The verdict on a fault that stands in the copy, and the test that noticed it."""
    seeing = tests_for(fault, tests, results)
    # A header also changes what the tests compile from it: they are built again, a few at a time.
    size = 6 if is_header(fault) else len(seeing)
    for first in range(0, len(seeing), size):
        some = seeing[first : first + size]
        if not build(jobs, "VarnoPlexora", *(test.name for test in some if is_header(fault))):
            return "broken", "does not compile"
        failed = run_until_one_fails(some, jobs, lambda test: 30 + 8 * test.seconds)
        if failed:
            return "killed", failed
    return "survived", ""


def summary(faults, results):
    rooms = {}
    for fault in faults:
        verdict = results.of.get(fault.key, ("not run", ""))[0]
        rooms.setdefault(fault.list_name, []).append(verdict)
    print(f"\n{'':24}{'faults':>8}{'killed':>8}{'survived':>10}")
    for room, verdicts in [*sorted(rooms.items()), ("together", sum(rooms.values(), []))]:
        survived = verdicts.count("survived")
        print(f"{room:24}{len(verdicts):8}{verdicts.count('killed'):8}{survived:10}"
              f"{100 * survived / max(1, len(verdicts)):7.1f} %")
    for fault in faults:
        verdict = results.of.get(fault.key, ("not run", ""))[0]
        if verdict != "killed":
            print(f"{verdict}: {fault}")


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutate")
    parser.add_argument("patterns", nargs="*", metavar="PATTERN")
    parser.add_argument("--survivors", action="store_true")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    return parser.parse_args()


def main():
    options = arguments()
    faults = all_faults(options.patterns)
    if options.check:
        print(f"{len(faults)} faults fit the program")
        return
    WORK.mkdir(parents=True, exist_ok=True)
    checksum = refresh_copy()
    configure()
    if not build(options.jobs, "VarnoPlexora", "core_tests", "gui_tests"):
        sys.exit(f"The program does not build: see {WORK}/build.log")
    tests = all_tests()
    check_unchanged(tests, options.jobs, checksum)
    results = Results()
    chosen = [fault for fault in faults if not options.survivors or results.survived(fault)]
    for number, fault in enumerate(chosen, 1):
        started = time.monotonic()
        original = pathlib.Path(fault.file).read_bytes()
        write(COPY / fault.file, mutated(fault).encode())
        try:
            verdict, killer = judge(fault, tests, results, options.jobs)
        finally:
            write(COPY / fault.file, original)
        results.add(fault, verdict, killer)
        print(f"{number}/{len(chosen)} {verdict} {killer} ({time.monotonic() - started:.0f} s)  {fault}", flush=True)
    summary(faults, results)


main()
