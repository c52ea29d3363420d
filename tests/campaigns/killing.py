"""Kills programs at random moments: at a random time of their lives, or at the entry of a system call that
strace chooses, which meets the few calls that write as often as the many that only look."""

import os
import re
import signal
import subprocess
import time

# What a program asks of files. The kill comes before the call is carried out.
FILE_CALLS = ("openat", "read", "write", "pwrite64", "fsync", "fdatasync", "rename", "renameat", "renameat2",
              "close", "flock", "fchmod", "chmod", "ftruncate", "unlink", "unlinkat", "mkdir", "rmdir", "lseek",
              "newfstatat", "getdents64", "access", "faccessat2", "statx", "link", "linkat", "symlink", "utimensat",
              "execve", "wait4", "readlink", "fallocate", "copy_file_range", "sendfile")
HERE = re.compile(r"AT_FDCWD<[^>]*>")
CALL = re.compile(r"^(\d+)\s+([a-z0-9_]+)\((.*)")


def calls(command, folder, env, marks):
    """The file calls of one undisturbed run that name one of the marks (parts of paths; of open files too),
    but for those of programs that it started.
    @return [(call, number among the calls of that name in its thread, line)] in their order, each pair once
    """
    log = folder / "calls.strace"
    subprocess.run(["strace", "-f", "-qq", "-y", "-s", "200", "-o", str(log), "-e",
                    "trace=" + ",".join("?" + name for name in FILE_CALLS)] + command,
                   cwd=folder, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    counted, found, seen = {}, [], set()
    lines = log.read_text(encoding="utf-8", errors="replace").splitlines()
    others = {line.split()[0] for line in lines[1:] if " execve(" in line}
    for line in lines:
        match = CALL.match(line)
        if not match or match.group(1) in others:
            continue
        thread, name, rest = match.groups()
        number = counted[thread, name] = counted.get((thread, name), 0) + 1
        if (name, number) not in seen and any(mark in HERE.sub("", rest) for mark in marks):
            seen.add((name, number))
            found.append((name, number, line))
    log.unlink()
    return found


def ended(group):
    """Waits for all of a process group; what a killed program started may still be at work."""
    for _ in range(6000):
        try:
            os.killpg(group, 0)
        except ProcessLookupError:
            return True
        except PermissionError:
            return True
        time.sleep(0.01)
    return False


def kill_by_clock(command, folder, env, seconds, whole_group):
    """Starts the command and kills it after some seconds, with or without the programs that it started.
    @return True if it was still there to be killed
    """
    with subprocess.Popen(command, cwd=folder, env=env, start_new_session=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as program:
        try:
            program.wait(seconds)
            alive = False
        except subprocess.TimeoutExpired:
            alive = True
            if whole_group:
                os.killpg(program.pid, signal.SIGKILL)
            else:
                program.kill()
            program.wait()
        ended(program.pid)
    return alive


def kill_at_call(command, folder, env, call, number):
    """Runs the command and kills it when one of its threads begins so manieth call of that name.
    @return True if it came to that call
    """
    done = subprocess.run(["strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={call}",
                           "-e", f"inject={call}:signal=SIGKILL:when={number}"] + command,
                          cwd=folder, env=env, start_new_session=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return done.returncode in (-signal.SIGKILL, 128 + signal.SIGKILL)


def kill_somewhere(command, folder, env, places, seconds, chance):
    """One kill: every second time by the clock, else at one of the places of `calls`.
    @return (True if it met the program alive, what was done in words)
    """
    if not places or chance.random() < 0.5:
        after, whole = chance.uniform(0, seconds), chance.random() < 0.5
        return (kill_by_clock(command, folder, env, after, whole),
                f"killed after {after:.4f} s" + (" with what it started" if whole else ""))
    call, number, _ = chance.choice(places)
    return kill_at_call(command, folder, env, call, number), f"killed at {call} number {number}"
