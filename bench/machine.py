# SPDX-License-Identifier: GPL-3.0-or-later
"""What the kernel tells of processes and of the machine."""

import os


def read_or_nothing(path):
    """Processes and threads may end while they are looked at."""
    try:
        with open(path, encoding="ascii") as file:
            return file.read()
    except (FileNotFoundError, ProcessLookupError):
        return ""


def tasks(pids):
    """The folders of all threads."""
    for pid in pids:
        try:
            yield from (f"/proc/{pid}/task/{task}" for task in os.listdir(f"/proc/{pid}/task"))
        except FileNotFoundError:
            continue


def process_tree(pid):
    found = [pid]
    for process in found:
        for task in tasks([process]):
            found += [int(child) for child in read_or_nothing(f"{task}/children").split()]
    return found


def schedstat_seconds(pids):
    """Time on the processor of all threads, in the scheduler's nanoseconds."""
    return sum(int(line.split()[0]) for task in tasks(pids) if (line := read_or_nothing(f"{task}/schedstat"))) / 1e9


def pss_megabytes(pids):
    lines = [line for pid in pids for line in read_or_nothing(f"/proc/{pid}/smaps_rollup").splitlines()]
    return sum(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


def anonymous_megabytes(pid):
    """What the process itself has written to: no file and no other process shares it."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("Anonymous:")) / 1024


def written_bytes(pids):
    """What the file system had to write or will have to, whole pages of it."""
    lines = [line for pid in pids for line in read_or_nothing(f"/proc/{pid}/io").splitlines()]
    return sum(int(line.split()[1]) for line in lines if line.startswith("write_bytes:"))


def switches(pids):
    """How often each thread has given up the processor by itself."""
    return {task: int(line.split()[1]) for task in tasks(pids) for line in read_or_nothing(f"{task}/status").splitlines()
            if line.startswith("voluntary_ctxt_switches")}


def described():
    """The conditions of a run, in one line."""
    load = " ".join(f"{value:.1f}" for value in os.getloadavg())
    policy = {os.SCHED_OTHER: "usual", os.SCHED_FIFO: "real-time", os.SCHED_RR: "real-time"}.get(os.sched_getscheduler(0), "other")
    return f"{os.cpu_count()} processors, {os.uname().sysname} {os.uname().release}, load {load}, {policy} priority, nice {os.nice(0)}"
