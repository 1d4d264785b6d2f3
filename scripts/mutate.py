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
WORKED = 100  # seconds of a processor that a test program may use: more is a loop without end
WAITED = 1200  # seconds that a test may take at most, also on a busy machine


class Place:
    """A copy of the tree and its build, where one mutant after the other is tried. All copies see
    themselves under the path of the first, and so need no build of their own. What runs there can
    write nowhere else and leaves no process behind: a mutant may do anything."""

    TREE = WORK / "1"
    BUILD = TREE / "build/dev"

    def __init__(self, number):
        self.tree = WORK / str(number)
        self.scratch = self.tree / "build/scratch"
        if self.tree != self.TREE:
            shutil.rmtree(self.tree, ignore_errors=True)
            subprocess.run(["cp", "-a", self.TREE, self.tree], check=True)
        self.log = (WORK / f"{number}.log").open("w", encoding="utf-8")

    def builds(self, *targets):
        """Whether these targets can be built; all of them when none is named."""
        return self._runs(["cmake", "--build", self.BUILD, "-j2",
                           *(["--target", *targets] if targets else [])]).returncode == 0

    def passes_as_it_is(self):
        """Whether the tests pass without a mutant, which would seem to be noticed else."""
        return not self.failed_test("-j2", "-E", "^(compile_fail|tests_mirror|sound.walk|site)")

    def failed_test(self, *chosen, cases="*"):
        """The first test among the chosen ones that fails; nothing if all pass. `cases` chooses
        among what a test program holds."""
        shutil.rmtree(self.scratch, ignore_errors=True)
        limited = (f"ulimit -v {MEMORY} -t {WORKED} && exec ctest --output-on-failure "
                   f'--stop-on-failure --timeout {WAITED} --no-tests=error "$@"')
        run = self._runs(["bash", "-c", limited, "ctest", *chosen], GTEST_FILTER=cases,
                         GTEST_FAIL_FAST="1", HOME="/tmp/home")
        if run.returncode == 0:
            return ""
        failed = re.search(r"^\s*\d+ - (\S+) \((.*)\)", run.stdout, re.MULTILINE)
        if not failed:
            raise RuntimeError(f"no test ran: {run.stdout}")
        case = re.search(r"^\[  FAILED  \] (\w+[./]\S+?)(?:,| \(|$)", run.stdout, re.MULTILINE)
        return " ".join([failed[1], case[1] if case else failed[2].lower()])

    def _runs(self, command, **variables):
        (self.scratch / "home").mkdir(parents=True, exist_ok=True)
        sandbox = ["bwrap", "--ro-bind", "/", "/", "--dev-bind", "/dev", "/dev",
                   "--proc", "/proc", "--bind", self.tree, self.TREE,
                   "--bind", self.scratch, "/tmp", "--unshare-pid", "--unshare-net",
                   "--die-with-parent"]
        environment = {"CCACHE_READONLY": "1", "CCACHE_TEMPDIR": "/tmp",
                       "CCACHE_BASEDIR": str(self.TREE), **variables}
        run = subprocess.run([*sandbox, *command], cwd=self.BUILD, check=False,
                             env={**os.environ, **environment}, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                             errors="replace")
        self.log.write(run.stdout)
        self.log.flush()
        return run


def build_first():
    """Copies what differs from the last time, and builds it. Everybody's cache gets it."""
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                             "--exclude-standard", "--deduplicate"],
                            cwd=ROOT, check=True, capture_output=True)
    names = listed.stdout.decode().split("\0")[:-1]
    remove_others(Place.TREE, {Place.TREE / name for name in names})
    for name in names:
        copy_if_other(ROOT / name, Place.TREE / name)
    environment = {**os.environ, "CCACHE_BASEDIR": str(Place.TREE)}
    for step in (["--preset", "dev", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"],
                 ["--build", "--preset", "dev"]):
        subprocess.run(["cmake", *step], cwd=Place.TREE, check=True, env=environment)


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

    def __init__(self, count, seed, paths):
        self.folders = Tree(ROOT / "src").folders
        self.waiting = shuffled_mutants(random.Random(seed), paths)
        self.count, self.tried, self.killed, self.survivors = count, 0, 0, []
        self.lock = threading.Lock()
        self.report = (WORK / "report.txt").open("w", encoding="utf-8")

    def work_at(self, place):
        while job := self._next():
            file, mutant = job
            try:
                self._note(file, mutant, *self._outcome(place, file, mutant))
            finally:
                (place.tree / file).write_text(mutant.original, "utf-8")

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


def shuffled_mutants(chance, paths):
    """One mutant of each line that has any, in random order. Windows' own sources are not built
    here, nor is what stands in for the sound."""
    found = []
    for path in sorted((ROOT / "src").rglob("*")):
        name = path.relative_to(ROOT)
        wanted = any(name.is_relative_to(place) for place in paths)
        if wanted and path.suffix in {".cpp", ".h"} and not re.match("windows_|silent_", path.name):
            found += [(name, chance.choice(line)) for line in mutants_of(path.read_text("utf-8"))]
    chance.shuffle(found)
    return found


def remove_others(tree, wanted):
    """What was there the last time and is no more would be built with the rest."""
    for folder, folders, files in os.walk(tree):
        if Path(folder) == tree and "build" in folders:
            folders.remove("build")
        for file in files:
            if Path(folder) / file not in wanted:
                (Path(folder) / file).unlink()


def copy_if_other(source, target):
    if target.exists() and target.read_bytes() == source.read_bytes():
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, target)


def main():
    count, seed, workers = map(int, sys.argv[1:4])
    WORK.mkdir(parents=True, exist_ok=True)
    build_first()
    places = [Place(number + 1) for number in range(workers)]
    if not places[0].passes_as_it_is():
        sys.exit(f"A test fails without a mutant; see {places[0].log.name}")
    trial = Trial(count, seed, sys.argv[4:] or ["src"])
    threads = [threading.Thread(target=trial.work_at, args=[place]) for place in places]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    print("", *trial.survivors, sep="\n")
    print(f"seed {seed}: {trial.killed} of {trial.tried} mutants killed")


if __name__ == "__main__":
    main()
