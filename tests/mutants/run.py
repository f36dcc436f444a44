"""Breaks source files in the ways listed here, one at a time, and tells which test notices each. See scripts/mutants.

A list, such as options/cable.cpp.txt, is a row of paragraphs; a line "# what is broken", then lines "- text" and
"+ text": the text that stands exactly once in the source file, and what takes its place.
"""

import hashlib
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LISTS = ROOT / "tests/mutants"
WORK = ROOT / "build/mutants"
BASE = WORK / "base"
RESULTS = WORK / "results"

FOLDERS = ["model", "options", "hwquery", "util"]
HELPER = "faults_helper"
CORE = "CMakeFiles/core.dir/"  # the library's objects
# Broken code that runs as root can do anything to the machine, so that nothing but these folders may be written.
ALONE = """
mount --bind /tmp /tmp && mount --bind "$0" "$0" && mount -o remount,bind,ro / && mount --bind /dev /dev &&
  mount -o remount,bind,ro /dev && cd "$0/base/tests" && exec "$@"
"""
MEMORY = 4 << 30  # what a test program may take


class Unusable(Exception):
    """A list that does not fit its source file, a mutant that does not compile, tests that fail by themselves."""


class Mutant:
    def __init__(self, source, what, old, new):
        self.source, self.what, self.old, self.new = source, what, old, new

    def broken(self):
        text = (ROOT / self.source).read_text()
        count = text.count(self.old)
        if count != 1:
            raise Unusable(f"{self.source}: '{self.what}': its text stands there {count} times:\n{self.old}")
        return text.replace(self.old, self.new)


def read_list(source):
    mutants = []
    for paragraph in re.split(r"\n\s*\n", (LISTS / f"{source}.txt").read_text().strip()):
        lines = {"# ": [], "- ": [], "+ ": []}
        for line in paragraph.split("\n"):
            kind = line[:2].ljust(2)  # an empty line has no blank behind its sign
            if kind not in lines:
                raise Unusable(f"{source}: what is '{line}'?")
            lines[kind].append(line[2:])
        if len(lines["# "]) != 1 or not lines["- "] or lines["- "] == lines["+ "]:
            raise Unusable(f"{source}: a paragraph that is no mutant:\n{paragraph}")
        mutants.append(Mutant(source, lines["# "][0], "\n".join(lines["- "]), "\n".join(lines["+ "])))
    return mutants


def all_sources():
    listed = {str(path.relative_to(LISTS))[: -len(".txt")] for path in LISTS.glob("*/*.txt")}
    written = {str(path.relative_to(ROOT)) for folder in FOLDERS for path in (ROOT / folder).glob("*.cpp")}
    if written - listed:
        raise Unusable(f"no mutants are listed for {' '.join(sorted(written - listed))}")
    return sorted(listed)


def programs(source):
    """The tests to run, the nearest first."""
    folder = source.split("/")[0]
    names = sorted(FOLDERS, key=lambda name: name != folder)
    # Failing disks and killed writers matter to files alone, and take long.
    return names + ["faults"] if folder == "util" or source == "options/option_file.cpp" else names


def plain(name):
    """A file's name, whatever its style: token_cursor_test.cpp.o and TokenCursorTest.cpp."""
    return name.split("/")[-1].split(".")[0].replace("_", "").lower()


# --- The build ---


def ninja(*arguments):
    return subprocess.run(["ninja", "-C", BASE, *arguments], check=True, capture_output=True, text=True).stdout


class Build:
    def __init__(self, names):
        self.compile = {}  # object: how it is made
        for entry in json.loads((BASE / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            self.compile[words[words.index("-o") + 1]] = words
        self.parts = {}  # object: the files it is made from
        for line in ninja("-t", "deps").splitlines():
            if not line.startswith(" "):
                part = line.split(":")[0]
                self.parts[part] = set()
            elif line:
                self.parts[part].add(str(Path(BASE, line.strip()).resolve()))
        self.compile_library_headers()
        self.link = {}  # program: how it is made
        for program in [f"{name}_tests" for name in names] + [HELPER]:
            words = ninja("-t", "commands", f"tests/{program}").strip().split("\n")[-1]
            self.link[program] = shlex.split(words.removeprefix(": && ").removesuffix(" && :"))
        self.seconds = {}  # program: how long its tests take
        for name in names:
            start = time.monotonic()
            failed = run_tests(BASE / f"tests/{name}_tests", 600)
            if failed is not None:
                raise Unusable(f"{failed} fails although nothing is broken")
            self.seconds[name] = time.monotonic() - start
            if name in FOLDERS:
                self.check_that_nothing_leaks(name)

    def compile_library_headers(self):
        """What does not change is compiled once."""
        headers = set()
        for path in ROOT.glob("*/*.[ch]*"):
            if path.parts[-2] in FOLDERS:
                headers |= set(re.findall(r"^#include <(?:[a-z_]+|boost/.*)>", path.read_text(), re.MULTILINE))
        self.headers = WORK / "headers.h"
        self.headers.write_text("\n".join(sorted(headers)) + "\n")
        words = next(words for part, words in self.compile.items() if part.startswith(CORE))
        words = [self.headers if word == words[-1] else word for word in words]
        words[words.index("-o") + 1] = f"{self.headers}.gch"
        call(words[:1] + ["-x", "c++-header"] + words[1:])

    def check_that_nothing_leaks(self, name):
        words = list(self.link[f"{name}_tests"])
        words[words.index("-o") + 1] = program = str(WORK / f"{name}_leaks")
        call(words + ["-fsanitize=leak"])
        if (failed := run_tests(program, 600, leaks=True)) is not None:
            raise Unusable(f"{failed} fails {name} although nothing is broken")

    def made_from(self, source):
        return [part for part, files in self.parts.items() if str(ROOT / source) in files and part in self.compile]

    def program_parts(self, name):
        return [word for word in self.link[f"{name}_tests"] if word.endswith(".o")]


def call(words):
    done = subprocess.run(words, cwd=BASE, capture_output=True, text=True)
    if done.returncode != 0:
        raise Unusable(" ".join(map(str, words)) + "\n" + done.stdout + done.stderr)


def run_tests(program, seconds, leaks=False):
    """The first test that fails; None when all pass. The leak checker, where it is linked in, counts as a test."""

    def limit():
        if not leaks:
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    alone = ["unshare", "--mount", "sh", "-c", ALONE, WORK] if os.geteuid() == 0 else []
    process = subprocess.Popen(
        [*alone, program, "--gtest_fail_fast", "--gtest_color=no"],
        cwd=BASE / "tests", stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
        preexec_fn=limit, start_new_session=True, text=True, errors="replace")
    try:
        output = process.communicate(timeout=seconds)[0]
        how = ""
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output = process.communicate()[0]
        how = " (hangs)"
    if process.returncode == 0:
        return None
    failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", output, re.MULTILINE)
    if failed is not None and not how:
        return failed[1]
    if leaks and "LeakSanitizer: detected memory leaks" in output:
        return "the leak checker"
    begun = re.findall(r"^\[ RUN      \] (\S+)", output, re.MULTILINE)
    if not begun:
        raise Unusable(f"{program} runs no test:\n{output}")
    return begun[-1] + (how or " (crashes)")


class Worker:
    """A folder in which the source files that are broken stand in front of the ones that are not."""

    def __init__(self, build, number):
        self.build = build
        self.folder = WORK / f"worker{number}"
        shutil.rmtree(self.folder, ignore_errors=True)
        self.tree = self.folder / "tree"

    def caught_by(self, mutant):
        self.broken = self.tree / mutant.source
        self.broken.parent.mkdir(parents=True, exist_ok=True)
        self.broken.write_text(mutant.broken())
        self.objects = {}
        try:
            parts = self.build.made_from(mutant.source)
            self.remake([part for part in parts if part.startswith(CORE)], mutant)
            for name in programs(mutant.source):
                if (test := self.test(name)) is not None:
                    return test
            # What a header defines may be a constant in the tests as well.
            for name in programs(mutant.source):
                mine = [part for part in parts if part in self.build.program_parts(name) and part not in self.objects]
                if mine:
                    self.remake(mine, mutant)
                    if (test := self.test(name)) is not None:
                        return test
            # What is not released shows where the program ends.
            return self.test(programs(mutant.source)[0], leaks=True)
        finally:
            self.broken.unlink()

    def remake(self, parts, mutant):
        for part in parts:
            made = self.folder / part
            made.parent.mkdir(parents=True, exist_ok=True)
            self.objects[part] = made
            words = [str(made) if word == part else word for word in self.build.compile[part]]
            words = [str(self.broken) if word == str(ROOT / mutant.source) else word for word in words]
            headers = ["-include", self.build.headers] if part.startswith(CORE) else []
            call(words[:1] + [f"-I{self.tree}"] + headers + words[1:])

    def link(self, program, options=()):
        words = self.build.link[program]
        # In front, so that of an inline function it is the broken one that is linked. Next come the tests named like the
        # file, for tests run in this order.
        mine = [str(self.objects[word]) for word in words if word in self.objects]
        others = [word for word in words[1:] if word not in self.objects]
        near = [word for word in others if word.endswith(".o") and plain(word) == plain(self.broken.name) + "test"]
        words = words[:1] + mine + near + [word for word in others if word not in near]
        words[words.index("-o") + 1] = str(self.folder / program)
        call([*words, *options])

    def test(self, name, leaks=False):
        if not any(part in self.objects for part in self.build.program_parts(name)):
            return None
        if name == "faults":
            self.link(HELPER)
            self.start_my_helper()
        self.link(f"{name}_tests", ["-fsanitize=leak"] * leaks)
        return run_tests(self.folder / f"{name}_tests", 30 + 10 * self.build.seconds[name], leaks)

    def start_my_helper(self):
        """The process that the tests start has to be the broken one."""
        part = next(part for part in self.build.program_parts("faults") if part.endswith("/strace.cpp.o"))
        made = self.folder / part
        if not made.exists():
            made.parent.mkdir(parents=True, exist_ok=True)
            theirs, mine = str(BASE / "tests" / HELPER), str(self.folder / HELPER)
            call([str(made) if word == part else word.replace(theirs, mine) for word in self.build.compile[part]])
        self.objects[part] = made


# --- Results ---


def state(source):
    files = [ROOT / source, LISTS / f"{source}.txt"]
    return hashlib.sha256(b"\0".join(path.read_bytes() for path in files)).hexdigest()


def save(source, before, rows):
    path = RESULTS / f"{source}.json"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(json.dumps({"state": before, "rows": rows}))


def table(sources):
    results = []
    for source in sources:
        path = RESULTS / f"{source}.json"
        result = json.loads(path.read_text()) if path.exists() else {}
        if result.get("state") != state(source):
            raise Unusable(f"{source} has changed since its mutants were run; call scripts/mutants {source}")
        results.append((source, result["rows"]))
    print("# Every assertion bites\n")
    print("Each source file is broken in some ten ways, one at a time, and all tests are run; the table names the first")
    print("that fails. `scripts/mutants` does this, from the lists in `tests/mutants/`; `scripts/mutants --table` prints")
    print(f"this document. {sum(len(rows) for _, rows in results)} mutants of {len(results)} files.\n")
    print("| file | what is broken | caught by |")
    print("|---|---|---|")
    for source, rows in results:
        for what, test in rows:
            print(f"| `{source}` | {what.replace('|', chr(92) + '|')} | {'`' + test + '`' if test else '**nothing**'} |")


def run(sources):
    os.nice(5)
    states = {source: state(source) for source in sources}
    lists = {source: read_list(source) for source in sources}
    for mutants in lists.values():
        for mutant in mutants:
            mutant.broken()
    build = Build(sorted({name for source in sources for name in programs(source)}))
    idle = [Worker(build, number) for number in range(os.cpu_count() or 2)]
    lock = threading.Lock()
    survivors = 0
    unusable = False

    def work(mutant):
        nonlocal survivors
        with lock:
            worker = idle.pop()
        try:
            test = worker.caught_by(mutant)
        finally:
            with lock:
                idle.append(worker)
        with lock:
            survivors += test is None
            print(f"{mutant.source:32} {mutant.what:70} {test or 'NOTHING'}", flush=True)
        return [mutant.what, test]

    with ThreadPoolExecutor(len(idle)) as pool:
        waiting = {source: [pool.submit(work, mutant) for mutant in mutants] for source, mutants in lists.items()}
        try:
            for source, rows in waiting.items():
                try:
                    save(source, states[source], [row.result() for row in rows])
                except Unusable as reason:
                    unusable = True
                    print(f"{source}: {reason}", file=sys.stderr, flush=True)
        except BaseException:
            pool.shutdown(cancel_futures=True)
            raise
    print(f"{sum(map(len, lists.values()))} mutants, {survivors} of them caught by nothing")
    return 1 if survivors or unusable else 0


def main(arguments):
    try:
        if arguments == ["--table"]:
            table(all_sources())
            return 0
        for source in arguments:
            if not (LISTS / f"{source}.txt").exists():
                raise Unusable(f"{source}: no mutants are listed for it")
        return run(arguments or all_sources())
    except Unusable as reason:
        print(f"scripts/mutants: {reason}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
