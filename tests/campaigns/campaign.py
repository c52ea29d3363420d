"""What all campaigns share: their arguments, the count of rounds and faults, and the record of the last
run in `last_runs.txt`, which a campaign shows at its start and, asked with --record, renews at its end.
"""

import argparse
import concurrent.futures
import datetime
import os
import pathlib
import platform
import queue
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
RECORD = HERE / "last_runs.txt"
EXAMPLES = ROOT / "data" / "examples"


def commit():
    """The commit of the sources, with "+" behind it if programs were built from changed ones."""
    def git(*words):
        return subprocess.run(("git", "-C", str(ROOT)) + words, capture_output=True, text=True).stdout.strip()
    changed = git("status", "--porcelain", "--untracked-files=no", "--", "src", "data", "cmake", "CMakeLists.txt")
    return (git("rev-parse", "--short=10", "HEAD") or "unknown") + ("+" if changed else "")


def machine():
    """Processors and system, as the record names them."""
    model = platform.machine()
    for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="ascii", errors="replace").splitlines():
        if line.startswith("model name"):
            model = line.split(":", 1)[1].strip()
            break
    return f"{os.cpu_count()} x {model}, Linux {platform.release()}"


def recorded():
    """The last words of the campaigns that were recorded, a line each."""
    return RECORD.read_text(encoding="utf-8").splitlines() if RECORD.exists() else []


def tell_last(name):
    """Tells the last recorded run of a campaign, of each of its choices."""
    for line in recorded():
        if re.match(re.escape(name) + "[ :]", line):
            print("last run of", line, flush=True)


def tell(figures, faults, begun, record, sources, seed=None):
    """Tells what was run and how, and records it in place of the last words of the same campaign.
    @param figures  "name: what was done"
    @param sources  the commit when it began
    """
    today = datetime.datetime.now(datetime.timezone.utc)
    line = (f"{figures}, {faults} faults; {today:%Y-%m-%d %H:%M} UTC, {time.time() - begun:.0f} s, commit {sources}, "
            + (f"seed {seed}, " if seed is not None else "") + machine())
    print(line)
    if record:
        name = figures.split(":")[0] + ":"
        others = [old for old in recorded() if not old.startswith(name)]
        RECORD.write_text("\n".join(sorted(others + [line])) + "\n", encoding="utf-8")


class Campaign:
    """One campaign: many rounds of one trial, each of which is right or a fault with its words."""

    def __init__(self, name, about, quick, full, more=()):
        """@param quick, full  rounds without an option and with --full
        @param more  further arguments, (flag, keywords of add_argument)
        """
        parser = argparse.ArgumentParser(prog=name, description=about)
        parser.add_argument("program_folder", nargs="?", default=str(ROOT / "build/release/bin"))
        parser.add_argument("--rounds", type=int, help=f"{quick} without it, {full} with --full")
        parser.add_argument("--full", action="store_true")
        parser.add_argument("--minutes", type=float, default=1e9, help="begins no further round after them")
        parser.add_argument("--workers", type=int, default=2, help="rounds at a time")
        parser.add_argument("--seed", type=int, default=None, help="of the random moments; told at the end")
        parser.add_argument("--record", action="store_true", help="writes the figures into last_runs.txt")
        for flag, words in more:
            parser.add_argument(flag, **words)
        self.args = parser.parse_args()
        self.name = name
        self.rounds = self.args.rounds or (full if self.args.full else quick)
        self.seed = self.args.seed if self.args.seed is not None else random.SystemRandom().randrange(10**9)
        self.bin = pathlib.Path(self.args.program_folder).resolve()
        self.faults, self.done = [], 0
        self.begun, self.commit = time.time(), commit()
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="korven_campaign_"))
        signal.signal(signal.SIGINT, self.stop)  # what was done until then is told and recorded all the same
        tell_last(name)
        for program in ("korven32c",):
            if not (self.bin / program).exists():
                sys.exit(f"{self.bin}/{program}: not built")

    def run(self, one_round):
        """Runs all rounds. one_round(place, random numbers of its own) returns whether it was one (a kill that
        came too late is none and is done again) and a fault or None."""
        places = Places(self.work, self.args.workers)

        def trial(number):
            if self.over():
                return None
            chance, place = random.Random(f"{self.seed} {number}"), places.take()
            counts = fault = None
            while not counts and not fault:
                counts, fault = one_round(place, chance)
            if fault and place.exists():
                place.rename(self.work / f"fault{number}")
            places.give_back(place)
            self.done += 1
            return fault

        with concurrent.futures.ThreadPoolExecutor(self.args.workers) as pool:
            trials = [pool.submit(trial, n) for n in range(self.rounds)]
            for n, one in enumerate(trials):
                fault = one.result()
                if fault:
                    self.fault(f"round {n}: {fault}")
                if (n + 1) % 50 == 0 and not self.over():
                    print(f"  {n + 1} of {self.rounds}, {len(self.faults)} faults, "
                          f"{time.time() - self.begun:.0f} s", flush=True)

    def stop(self, *_):
        """Begins no further round."""
        self.args.minutes = 0

    def over(self):
        return time.time() - self.begun > 60 * self.args.minutes

    def fault(self, words):
        self.faults.append(words)
        print("FAULT:", words, flush=True)

    def end(self, figures):
        """Tells what was run, and leaves with 1 if there was a fault."""
        tell(f"{self.name}: {figures}", len(self.faults), self.begun, self.args.record, self.commit, self.seed)
        if self.faults:
            print(f"{len(self.faults)} faults; what they left is in {self.work}")
            sys.exit(1)
        shutil.rmtree(self.work, ignore_errors=True)


def environment(home):
    """A user who has never started the program, with temporary files of his own, on a fixed day."""
    temporary = home / "tmp"
    temporary.mkdir(parents=True, exist_ok=True)
    home.chmod(0o700)
    kept = {name: value for name, value in os.environ.items()
            if name in ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")}
    return kept | {"HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"), "TMPDIR": str(temporary),
                   "XDG_DATA_HOME": str(home / "data"), "XDG_RUNTIME_DIR": str(home),
                   "LC_ALL": "C.UTF-8", "SOURCE_DATE_EPOCH": "1700000000"}


def contents(folder):
    """{name below the folder: bytes} of all files of a folder, PDF files without the moment of their making;
    empty if there is none."""
    found = {}
    for path in sorted(pathlib.Path(folder).rglob("*")):
        if path.is_file() and not path.is_symlink():
            content = path.read_bytes()
            found[str(path.relative_to(folder))] = (
                re.sub(rb"\(D:\d{14}Z?\)", b"()", content) if path.suffix == ".pdf" else content)
    return found


class Places:
    """A folder for each worker, made anew for each round: some outputs name the path of their project, so
    that they can only be compared with those that were made in the same place."""

    def __init__(self, work, workers):
        self.free = queue.Queue()
        self.all = [work / f"place{n}" for n in range(workers)]
        for place in self.all:
            self.free.put(place)

    def take(self):
        return self.free.get()

    def give_back(self, place):
        self.free.put(place)


def prepared(place, files):
    """Empties a place and lays files of an old date into its folder of projects.
    @return the folder and the environment of its user
    """
    shutil.rmtree(place, ignore_errors=True)
    folder = place / "lavori"
    folder.mkdir(parents=True)
    for name, content in files.items():
        target = folder / name
        target.parent.mkdir(exist_ok=True)
        target.write_bytes(content)
        os.utime(target, (1.6e9, 1.6e9))
    return folder, environment(place)


def left_behind(folder):
    """What programs left: temporary files, and halves and locks beside their outputs."""
    left = [path.name for path in (folder.parent / "tmp").iterdir()]
    return left + [name for name in contents(folder) if pathlib.Path(name).name.startswith(".korven-")]


def main():
    """For the campaigns in the shell: `last NAME`, `commit`, or `tell FIGURES FAULTS BEGUN COMMIT [--record]`."""
    match sys.argv[1:]:
        case ["last", name]:
            tell_last(name)
        case ["commit"]:
            print(commit())
        case ["tell", figures, faults, begun, sources, *record]:
            tell(figures, int(faults), float(begun), record == ["--record"], sources)
        case _:
            sys.exit(main.__doc__)


if __name__ == "__main__":
    main()
