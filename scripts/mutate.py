"""Runs the tests on mutants of src/; scripts/mutate.sh tells how."""

import os
import random
import re
import shutil
import subprocess
import sys
import threading
from pathlib import Path

from levels import Tree
from mutants import mutants_of

ROOT = Path(__file__).resolve().parents[1]
WORK = ROOT / "build/mutate"
MEMORY = 8 << 20  # what a test program may use at most, in KiB
SECONDS = 180  # what a test may take at most; who takes longer is in a loop without end


class Place:
    """A copy of the tree with a build of its own, where one mutant after the other is tried."""

    def __init__(self, number):
        self.tree = WORK / str(number)
        self.build = self.tree / "build/dev"
        self.log = (WORK / f"{number}.log").open("w", encoding="utf-8")

    def prepare(self):
        """Copies what differs, and builds it."""
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                                 "--exclude-standard", "--deduplicate"],
                                cwd=ROOT, check=True, capture_output=True)
        for name in listed.stdout.decode().split("\0")[:-1]:
            copy_if_other(ROOT / name, self.tree / name)
        self._run(["cmake", "--preset", "dev", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"])
        if not self.builds():
            sys.exit(f"{self.tree} does not build; see {self.log.name}")

    def builds(self, *targets):
        told = ["--target", *targets] if targets else []
        return self._run(["cmake", "--build", self.build, "-j", "2", *told], check=False,
                         env=self._environment(CCACHE_READONLY="1")) == 0

    def failed_test(self, *chosen, cases="*"):
        """The first test among the chosen ones that fails; nothing if all pass. `cases` chooses
        among what a test program holds."""
        scratch = self.tree / "build/scratch"
        shutil.rmtree(scratch, ignore_errors=True)
        (scratch / "home").mkdir(parents=True)
        # A mutant can write and remove what it should not, and leave processes behind.
        sandbox = ["bwrap", "--ro-bind", "/", "/", "--dev-bind", "/dev", "/dev",
                   "--proc", "/proc", "--bind", self.build, self.build, "--bind", scratch, "/tmp",
                   "--unshare-pid", "--unshare-net", "--die-with-parent", "--setenv", "HOME",
                   "/tmp/home"]
        command = (f"ulimit -v {MEMORY} && exec ctest --stop-on-failure --timeout {SECONDS} "
                   '--no-tests=error "$@"')
        run = subprocess.run([*sandbox, "bash", "-c", command, "ctest", *chosen], cwd=self.build,
                             env=self._environment(GTEST_FAIL_FAST="1", GTEST_FILTER=cases), check=False, text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace",
                             stdin=subprocess.DEVNULL)
        self.log.write(run.stdout)
        if run.returncode == 0:
            return ""
        failed = re.search(r"^\s*\d+ - (\S+) \((.*)\)", run.stdout, re.MULTILINE)
        if not failed:
            raise RuntimeError(f"no test ran: {run.stdout}")
        case = re.search(r"^\[  FAILED  \] (\w+[./]\S+?)(?:,| \(|$)", run.stdout, re.MULTILINE)
        return " ".join([failed[1], case[1] if case else failed[2].lower()])

    def _environment(self, **more):
        return {**os.environ, "CCACHE_BASEDIR": str(self.tree), **more}

    def _run(self, command, check=True, env=None, **more):
        self.log.flush()
        return subprocess.run(command, cwd=self.tree, check=check, stdout=self.log,
                              stderr=subprocess.STDOUT, env=env or self._environment(),
                              **more).returncode


def stages(file, folders):
    """The steps that look for a test that fails, the likely ones first: what to build, and which
    tests to run then."""
    own, logic = file.parts[1], folders[:-1]
    window_tests = "|".join(["scenario.window", "accessibility", "names", "life", "desktop"])
    if file.parts[1:3] == ("desktop", "sound"):
        yield [], ["-R", "^sound.[A-Z]", "-E", "Clips"]
        yield [], ["-R", "^sound", "-E", "walk"]
    elif own in logic:
        others = [folder for folder in logic if folder != own]
        yield [f"orvanta_{own}_tests"], ["-R", f"^{own}$"]
        yield [f"orvanta_{folder}_tests" for folder in others], ["-R", f"^({'|'.join(others)})$"]
        yield [], ["-j2", "-R", "^scenario", "-E", "^scenario.window"]
        yield [], ["-j2", "-R", "^(faults|fuzz|kills)"]
    else:
        yield ["orvanta_desktop_tests"], ["-R", "^desktop$"]
    yield [], ["-j2", "-R", f"^({window_tests})"]


def likely_cases(file, tests):
    """What to run of the test programs: of the folder's own one first what is named after the
    source."""
    if tests == ["-R", f"^{file.parts[1]}$"]:
        suites = {suite for path in (ROOT / "tests").glob(f"{file.parts[1]}/{file.stem}*_test.cpp")
                  for suite in re.findall(r"^TEST(?:_[FP])?\((\w+)", path.read_text("utf-8"), re.M)}
        if suites:
            yield ":".join(f"{suite}.*:*/{suite}.*" for suite in sorted(suites))
    yield "*"


class Trial:
    """Tries random mutants, in the order of a seed, until enough of them did compile."""

    def __init__(self, count, seed):
        self.folders = Tree(ROOT / "src").folders
        self.waiting = shuffled_mutants(random.Random(seed))
        self.count, self.tried, self.killed, self.survivors = count, 0, 0, []
        self.lock = threading.Lock()
        self.report = (WORK / "report.txt").open("w", encoding="utf-8")

    def work_at(self, place):
        while job := self._next():
            file, mutant = job
            try:
                self._note(file, mutant, *self._outcome(place, file, mutant))
            finally:
                (place.tree / file).write_text((ROOT / file).read_text("utf-8"), "utf-8")

    def _next(self):
        with self.lock:
            if self.tried == self.count or not self.waiting:
                return None
            self.tried += 1
            return self.waiting.pop()

    def _outcome(self, place, file, mutant):
        (place.tree / file).write_text(mutant.source, "utf-8")
        for targets, tests in stages(file, self.folders):
            if not place.builds(*targets):
                return "does not compile", ""
            for cases in likely_cases(file, tests):
                if failed := place.failed_test(*tests, cases=cases):
                    return "killed", failed
        return "SURVIVED", ""

    def _note(self, file, mutant, outcome, failed):
        told = (f"{file}:{mutant.line}: {outcome} {failed}\n"
                f"    {mutant.before}\n    {mutant.after}\n")
        with self.lock:
            self.report.write(told)
            self.report.flush()
            if outcome == "does not compile":
                self.tried -= 1
            elif failed:
                self.killed += 1
            else:
                self.survivors.append(told)
        print(told.splitlines()[0], flush=True)


def shuffled_mutants(chance):
    """One mutant of each line that has any, in random order. Windows' own sources are not built
    here, nor is what stands in for the sound."""
    found = []
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix in {".cpp", ".h"} and not re.match("windows_|silent_", path.name):
            found += [(path.relative_to(ROOT), chance.choice(line))
                      for line in mutants_of(path.read_text("utf-8"))]
    chance.shuffle(found)
    return found


def copy_if_other(source, target):
    if target.exists() and target.read_bytes() == source.read_bytes():
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, target)


def main():
    count, seed, workers = map(int, sys.argv[1:])
    WORK.mkdir(parents=True, exist_ok=True)
    places = [Place(number + 1) for number in range(workers)]
    for place in places:
        place.prepare()
    trial = Trial(count, seed)
    threads = [threading.Thread(target=trial.work_at, args=[place]) for place in places]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    print("", *trial.survivors, sep="\n")
    print(f"seed {seed}: {trial.killed} of {trial.tried} mutants killed")


if __name__ == "__main__":
    main()
