"""Runs mutants of the source files and tells which test notices each. See scripts/mutants.

A mutant is compiled in a folder under build/ and its tests run in sandbox.sh. Two files beside this one hold
paragraphs: a line "# FILE: what is broken", then lines "- text" and "+ text", the text that stands exactly once in the
source file and what takes its place. listed.txt: mutants that generate.py does not make. equivalent.txt: mutants that
it makes and that are left out, because a program with this change does the same; without lines "+ text", all changes in
the text, and of the order of the rows in the table, or the rest of a table, that begins with it.
"""

import argparse
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

from generate import Mutant, constants, generate, sample

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
WORK = ROOT / "build/mutants"
BASE = WORK / "base"

FOLDERS = [name for name in ("model", "options", "hwquery", "settings", "findings", "util") if (ROOT / name).is_dir()]
HELPER = "faults_helper"
CORE = "CMakeFiles/SdkDebugDialogObjects.dir/"  # the library's objects
SAMPLE = 30  # mutants of a file that is compiled by itself
HEADER_SAMPLE = 10
MEMORY = 4 << 30  # what a test program may take
OUTPUT = 64 << 20  # how much of what it prints is read


class Unusable(Exception):
    """Nothing can be found out: tests fail by themselves, or the sandbox is open."""


class DoesNotCompile(Exception):
    pass


def text_of(source):
    return (ROOT / source).read_text()


# --- Which mutants ---


def sources():
    return sorted(str(path.relative_to(ROOT)) for folder in FOLDERS for path in (ROOT / folder).glob("*.[ch]*"))


def read_list(name, problems):
    """The mutants of a file beside this one. Those that do not fit their source are problems."""
    mutants = []
    for paragraph in re.split(r"\n\s*\n", (HERE / name).read_text().strip()):
        lines = {"#": [], "-": [], "+": []}
        for line in paragraph.split("\n"):
            lines.get(line[:1], []).append(line[2:])
        source, _, what = " ".join(lines["#"]).partition(": ")
        old = "\n".join(lines["-"])
        count = text_of(source).count(old) if old and (ROOT / source).is_file() else 0
        if count == 1:
            start = text_of(source).index(old)
            new = "\n".join(lines["+"])
            mutants.append(Mutant(source, what, start, start + len(old), new))
        else:
            problems.append(f"{name}: '{source}: {what}': its text stands there {count} times, not once")
    return mutants


def is_equivalent(mutant, equivalent):
    text = text_of(mutant.source)
    for same in equivalent:
        if same.source == mutant.source:
            end = text.find(";\n", same.start) if mutant.kind == "rows" else same.end
            if mutant.broken(text) == same.broken(text) or (
                    not same.new and same.start <= mutant.start and mutant.end <= end):
                return True
    return False


def changed_lines():
    """File: its lines that differ from the last commit; None for all."""

    def git(*arguments):
        return subprocess.run(["git", *arguments], cwd=ROOT, check=True, capture_output=True, text=True).stdout

    lines = dict.fromkeys(git("ls-files", "--others", "--exclude-standard", "--", *FOLDERS).splitlines())
    for line in git("diff", "--unified=0", "--no-ext-diff", "--no-prefix", "HEAD", "--", *FOLDERS).splitlines():
        if line.startswith("+++ "):
            source = line[4:]
        elif match := re.match(r"@@ -\S+ \+(\d+)(?:,(\d+))? @@", line):
            first, count = int(match[1]), int(match[2] or 1)
            lines.setdefault(source, set()).update(range(first, first + count))
    return lines


def chosen(options, problems):
    lines = changed_lines() if options.changed else dict.fromkeys(sources())
    headers = [path.read_text() for path in (ROOT / "include").rglob("*.h")]
    values = constants(headers + [text_of(source) for source in sources()])
    equivalent = read_list("equivalent.txt", problems)
    listed = read_list("listed.txt", problems)
    mutants = []
    for source in sorted(set(lines) & set(options.file or sources())):
        text = text_of(source)

        def is_wanted(mutant):
            first, last = (text.count("\n", 0, at) + 1 for at in (mutant.start, mutant.end))
            return lines[source] is None or not lines[source].isdisjoint(range(first, last + 1))

        found = [mutant for mutant in generate(source, text, values)
                 if is_wanted(mutant) and not is_equivalent(mutant, equivalent)]
        mutants += found if options.all else sample(found, SAMPLE if source.endswith(".cpp") else HEADER_SAMPLE)
        mutants += [mutant for mutant in listed if mutant.source == source and is_wanted(mutant)]
    return mutants


# --- How they are shown ---


def title(mutant):
    text = text_of(mutant.source)
    place = f"{mutant.source}:{text.count(chr(10), 0, mutant.start) + 1}: {mutant.kind}"
    if " " in mutant.kind:  # a listed one
        return place
    old, new = (" ".join(part.split()) for part in (text[mutant.start : mutant.end], mutant.new))
    old, new = (part if len(part) <= 40 else part[:37] + "..." for part in (old, new))
    return f"{place}: {old} -> {new or 'nothing'}"


def paragraph(mutant):
    """The lines before and after, as listed.txt and equivalent.txt have them."""
    text = text_of(mutant.source)
    lines = text.split("\n")
    first, last = text.count("\n", 0, mutant.start), text.count("\n", 0, mutant.end)
    while text.count("\n".join(lines[first : last + 1])) > 1:
        first, last = max(first - 1, 0), last + 1
    behind = len(lines) - last - 1
    after = mutant.broken(text).split("\n")
    return "\n".join([f"# {mutant.source}: {mutant.kind}"] + [f"- {line}" for line in lines[first : last + 1]] +
                     [f"+ {line}" for line in after[first : len(after) - behind]])


# --- The build ---


def ninja(*arguments):
    return subprocess.run(["ninja", "-C", BASE, *arguments], check=True, capture_output=True, text=True).stdout


def call(words, error=Unusable):
    # A constant that does not end may keep the compiler busy for long.
    words = ["timeout", "-k", "1", "300", *words]
    done = subprocess.run(words, cwd=BASE, stdin=subprocess.DEVNULL, capture_output=True, text=True)
    if done.returncode != 0:
        raise error(" ".join(map(str, words)) + "\n" + done.stdout + done.stderr)


class Build:
    def __init__(self, wants_faults):
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
        tested = [name for name in FOLDERS if (ROOT / "tests" / name).is_dir()]
        names = tested + ["faults"] * wants_faults
        self.link = {}  # program: how it is made
        for program in [f"{name}_tests" for name in names] + [HELPER]:
            words = ninja("-t", "commands", f"tests/{program}").strip().split("\n")[-1]
            self.link[program] = shlex.split(words.removeprefix(": && ").removesuffix(" && :"))
        self.seconds = {}  # program: how long its tests take
        for name in names:
            start = time.monotonic()
            self.check(BASE / f"tests/{name}_tests")
            self.seconds[name] = time.monotonic() - start
        for name in tested:
            words = list(self.link[f"{name}_tests"])
            words[words.index("-o") + 1] = program = str(WORK / f"{name}_leaks")
            call(words + ["-fsanitize=leak"])
            self.check(program, leaks=True)

    @staticmethod
    def check(program, leaks=False):
        if (failed := run_tests(program, 600, WORK / "tmp", leaks)) is not None:
            raise Unusable(f"{failed} fails although nothing is broken")

    def compile_library_headers(self):
        """What does not change is compiled once."""
        headers = set()
        for source in sources():
            headers |= set(re.findall(r"^#include <(?:[a-z_]+|boost/.*)>", text_of(source), re.MULTILINE))
        self.headers = WORK / "headers.h"
        self.headers.write_text("\n".join(sorted(headers)) + "\n")
        words = next(words for part, words in self.compile.items() if part.startswith(CORE))
        words = [self.headers if word == words[-1] else word for word in words]
        words[words.index("-o") + 1] = f"{self.headers}.gch"
        call(words[:1] + ["-x", "c++-header"] + words[1:])

    def programs(self, source):
        """The tests to run: the nearest first, then the quickest."""
        names = sorted(self.seconds, key=lambda name: (name != source.split("/")[0], self.seconds[name]))
        return [name for name in names if name != "faults" or makes_system_calls(source)]

    def made_from(self, source):
        return [part for part, files in self.parts.items() if str(ROOT / source) in files and part in self.compile]

    def program_parts(self, name):
        return [word for word in self.link[f"{name}_tests"] if word.endswith(".o")]


def makes_system_calls(source):
    """Failing disks and killed writers matter to it; these tests take long."""
    return re.search(r"^#include <(?:fcntl|unistd|sys/\w+)\.h>", text_of(source), re.MULTILINE) is not None


# --- A test program ---


def sandboxed(folder, *words):
    """The command that runs another one with a new, empty folder as its /tmp."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    folder.chmod(0o1777)
    return ["sh", HERE / "sandbox.sh", ROOT, folder, *words]


def check_sandbox():
    """A program that breaks out would do so silently."""
    mark = f"mutant_was_here_{os.getpid()}"
    places = ["/", "/etc", "/usr", "/var/tmp", "/dev/shm", "/tmp", Path.home(), ROOT, ROOT.parent, WORK]
    script = 'for place; do echo x >"$place/$0"; done; rm -f /dev/null; echo x >/dev/null; kill -9 -1; true'
    words = sandboxed(WORK / "tmp", "sh", "-c", script, mark, *places)
    subprocess.run(words, stdin=subprocess.DEVNULL, capture_output=True)
    marked = [place / mark for place in map(Path, places) if (place / mark).exists()]
    for path in marked:
        path.unlink()
    if marked or not Path("/dev/null").is_char_device():
        raise Unusable(f"the sandbox lets a program write to {' '.join(map(str, marked)) or '/dev/null'}")


def run_tests(program, seconds, folder, leaks=False):
    """The first test that fails; None when all pass. The leak checker, where it is linked in, counts as a test."""

    def limit():
        if not leaks:
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    process = subprocess.Popen(
        sandboxed(folder, program, "--gtest_fail_fast", "--gtest_color=no"), env={**os.environ, "RC_PARAMS": "seed=1"},
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, preexec_fn=limit,
        start_new_session=True)
    how = ""

    def stop():
        nonlocal how
        how = " (hangs)"
        os.killpg(process.pid, signal.SIGKILL)

    timer = threading.Timer(seconds, stop)
    timer.start()
    output = process.stdout.read(OUTPUT).decode(errors="replace")
    process.stdout.close()  # ends whoever writes more
    process.wait()
    timer.cancel()
    if process.returncode == 0:
        return None
    failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", output, re.MULTILINE)
    if failed is not None and not how:
        return failed[1]
    if leaks and "LeakSanitizer: detected memory leaks" in output:
        return "the leak checker"
    begun = re.findall(r"^\[ RUN      \] (\S+)", output, re.MULTILINE)
    if begun:
        return begun[-1] + (how or " (crashes)")
    if "[==========] Running" in output or how:
        return "the start of the tests" + how
    raise Unusable(f"{program} runs no test:\n{output}")


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
        self.broken.write_text(mutant.broken(text_of(mutant.source)))
        self.objects = {}
        names = self.build.programs(mutant.source)
        try:
            parts = self.build.made_from(mutant.source)
            self.remake([part for part in parts if part.startswith(CORE)], mutant)
            for name in names:
                if (test := self.test(name)) is not None:
                    return test
            # What a header defines may be a constant in the tests as well.
            for name in names:
                mine = [part for part in parts if part in self.build.program_parts(name) and part not in self.objects]
                if mine:
                    self.remake(mine, mutant)
                    if (test := self.test(name)) is not None:
                        return test
            # What is not released shows where the program ends.
            return self.test(names[0], leaks=True)
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
            call(words[:1] + [f"-I{self.tree}"] + headers + words[1:], DoesNotCompile)

    def link(self, program, options=()):
        words = self.build.link[program]
        # In front, so that of an inline function it is the broken one that is linked. Next come the tests named like
        # the file, for tests run in this order.
        mine = [str(self.objects[word]) for word in words if word in self.objects]
        others = [word for word in words[1:] if word not in self.objects]
        near = [word for word in others if word.endswith(".o") and plain(word) == plain(self.broken.name) + "test"]
        words = words[:1] + mine + near + [word for word in others if word not in near]
        words[words.index("-o") + 1] = str(self.folder / program)
        call([*words, *options], DoesNotCompile)

    def test(self, name, leaks=False):
        if not any(part in self.objects for part in self.build.program_parts(name)):
            return None
        if name == "faults":
            self.link(HELPER)
            self.start_my_helper()
        self.link(f"{name}_tests", ["-fsanitize=leak"] * leaks)
        seconds = 10 + 10 * self.build.seconds[name]
        return run_tests(self.folder / f"{name}_tests", seconds, self.folder / "tmp", leaks)

    def start_my_helper(self):
        """The process that the tests start has to be the broken one."""
        part = next(part for part in self.build.program_parts("faults") if part.endswith("/strace.cpp.o"))
        made = self.folder / part
        if not made.exists():
            made.parent.mkdir(parents=True, exist_ok=True)
            theirs, mine = str(BASE / "tests" / HELPER), str(self.folder / HELPER)
            call([str(made) if word == part else word.replace(theirs, mine) for word in self.build.compile[part]])
        self.objects[part] = made


def plain(name):
    """A file's name, whatever its style: token_cursor_test.cpp.o and TokenCursorTest.cpp."""
    return name.split("/")[-1].split(".")[0].replace("_", "").lower()


# --- All of them ---


def run(mutants):
    """Mutants and what noticed them: a test, None, or DoesNotCompile."""
    build = Build(any(makes_system_calls(mutant.source) for mutant in mutants))
    idle = [Worker(build, number) for number in range(os.cpu_count() or 2)]
    lock = threading.Lock()
    results = []

    def work(mutant):
        with lock:
            worker = idle.pop()
        try:
            test = worker.caught_by(mutant)
        except DoesNotCompile:
            test = DoesNotCompile
        finally:
            with lock:
                idle.append(worker)
        with lock:
            results.append((mutant, test))
            told = {None: "NOTHING", DoesNotCompile: "does not compile"}.get(test, test)
            print(f"{len(results)}/{len(mutants)} {title(mutant)}  {told}", flush=True)

    with ThreadPoolExecutor(len(idle)) as pool:
        waiting = [pool.submit(work, mutant) for mutant in mutants]
        try:
            for done in waiting:
                done.result()
        except BaseException:
            pool.shutdown(cancel_futures=True)
            raise
    return results


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutants")
    parser.add_argument("file", nargs="*", help="source files; without any, all of them")
    parser.add_argument("--changed", action="store_true", help="only lines that differ from the last commit")
    parser.add_argument("--all", action="store_true",
                        help=f"every mutant, not {SAMPLE} of each file ({HEADER_SAMPLE} of a header)")
    options = parser.parse_args()
    if unknown := set(options.file) - set(sources()):
        parser.error(f"no source file of {', '.join(FOLDERS)}: {' '.join(sorted(unknown))}")
    start = time.monotonic()
    problems = []
    try:
        if os.geteuid() != 0:
            raise Unusable("wants root: nobody else can lock a broken program in")
        check_sandbox()
        mutants = chosen(options, problems)
        os.nice(5)
        results = run(mutants) if mutants else []
    except Unusable as reason:
        sys.exit(f"scripts/mutants: {reason}")
    survivors = sorted((mutant for mutant, test in results if test is None), key=lambda m: (m.source, m.start))
    uncompiled = sum(test is DoesNotCompile for _, test in results)
    for mutant in survivors:
        print(f"\nNothing noticed {title(mutant)}\n{paragraph(mutant)}")
    print(f"\n{len(results)} mutants: {len(results) - uncompiled - len(survivors)} caught, {len(survivors)} survived, "
          f"{uncompiled} do not compile; {time.monotonic() - start:.0f} s")
    for problem in problems:
        print(f"scripts/mutants: {problem}", file=sys.stderr)
    sys.exit(1 if survivors or problems else 0)


if __name__ == "__main__":
    main()
