"""A study over Dask beside the same study of the command line: compare.py PROGRAM PROJECT.

Two worker processes share 10,000 variants; one of them is killed on the way. What comes back has to
equal, digit by digit, what `korven32c serie` writes.
"""

import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import numpy as np
import pandas as pd
from dask.distributed import Client, LocalCluster, as_completed

import korven32

NUMBER, ROWS = 10_000, 100  # variants, and those of a task


def part(project: korven32.Progetto, rows: pd.DataFrame) -> pd.DataFrame:
    """What a task computes, with one thread: the cluster's workers are its threads."""
    return korven32.serie(project, rows, fili=1)


def study(seed: int) -> pd.DataFrame:
    random = np.random.default_rng(seed)
    return pd.DataFrame({
        "lunghezzaParatia": random.uniform(5, 20, NUMBER).round(3),
        "phiStrato[1]": random.normal(32, 3, NUMBER).clip(20, 45),
        "pretTirante[1]": random.uniform(0, 300, NUMBER).round(1),
    })


def over_dask(project: korven32.Progetto, plan: pd.DataFrame) -> pd.DataFrame:
    """The study on two workers, of which one is killed after a tenth of it."""
    with LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                      dashboard_address=None) as cluster, Client(cluster) as client:
        workers = client.run(os.getpid)
        assert len(set(workers.values()) | {os.getpid()}) == 3, "the workers are no processes of their own"
        begin = time.perf_counter()
        pieces = [plan.iloc[at:at + ROWS] for at in range(0, len(plan), ROWS)]
        shared = client.scatter(project, broadcast=True)
        tasks = client.map(part, [shared] * len(pieces), pieces, pure=False)
        done = 0
        for _ in as_completed(tasks):
            done += 1
            if done == len(tasks) // 10:
                victim = next(iter(workers.values()))
                os.kill(victim, signal.SIGKILL)
                print(f"killed worker {victim} after {done} of {len(tasks)} tasks")
        result = pd.concat(client.gather(tasks))
        after = client.run(os.getpid)
        assert victim not in after.values(), "the worker that was killed lives"
        print(f"{len(result)} variants in {time.perf_counter() - begin:.1f} s; workers since: "
              f"{sorted(after.values())}")
    return result


def over_command_line(program: str, project: str, plan: pd.DataFrame) -> pd.DataFrame:
    with tempfile.TemporaryDirectory() as folder:
        plan.to_csv(Path(folder) / "plan.csv", index=False)
        rows = Path(folder) / "rows.csv"
        subprocess.run([program, "serie", project, "--lingua", "ita", "--silenzioso",
                        "--piano", f"{folder}/plan.csv", "--uscita", str(rows)], check=True)
        return pd.read_csv(rows, float_precision="round_trip")


def compare(mine: pd.DataFrame, theirs: pd.DataFrame) -> None:
    assert list(theirs["variante"]) == list(range(1, len(mine) + 1))
    theirs = theirs.drop(columns="variante")
    theirs.columns = mine.columns  # the fields have their unit in the file
    pd.testing.assert_frame_equal(mine, theirs, check_exact=True, check_dtype=False)


def main() -> None:
    program, file = sys.argv[1:]
    project = korven32.Progetto.leggi(file)
    plan = study(seed=1)
    theirs = over_command_line(program, file, plan)
    mine = over_dask(project, plan)
    compare(mine, theirs)
    wrong = theirs.copy()
    wrong.iat[4711, -1] = 0.123456
    try:
        compare(mine, wrong)
    except AssertionError:
        print(f"equal, all {mine.size} numbers and words; {(mine['causa'] == 'eseguito').sum()} variants stand")
    else:
        sys.exit("the comparison sees nothing")


if __name__ == "__main__":
    main()
