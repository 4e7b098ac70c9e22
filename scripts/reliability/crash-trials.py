#!/usr/bin/env python3
"""Kills the real launcher with SIGKILL at random moments of an upgrade, then starts it
again normally, and checks that nothing of the user's client is ever lost.

Each trial: a home with the old client installed and running (started by this script),
the launcher of a bundle with a newer package, SIGKILL after a random delay spread over
the whole run, a look at the disk, a normal second run, and the final checks:
  - right after the kill the old application is whole at APP or at exactly one backup
    name, or the new one is complete at APP;
  - after the second run APP is the new package and a client of it is running;
  - backup folders remain only where the kill fell between the end of extraction and
    the clean-up.
Prints the counts per kill phase, the failures and the worst case found."""

import argparse
import os
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time

import common

PHASES = ("before-backup", "mid-extraction", "before-cleanup", "after-cleanup")


def backups(user):
    return sorted(n for n in os.listdir(user) if n.startswith("Skelda.app_tmp")) \
        if os.path.isdir(user) else []


def classify(user, old, new):
    """Kill phase from what is on disk, or an error text when the old client is lost."""
    app = common.tree_digest(os.path.join(user, "Skelda.app"))
    kept = [b for b in backups(user) if common.tree_digest(os.path.join(user, b)) == old]
    if app == old and not kept:
        return "before-backup", None
    if app == new:  # a backup still there, whole or partly removed: clean-up not done
        return ("before-cleanup" if backups(user) else "after-cleanup"), None
    if len(kept) == 1:
        return "mid-extraction", None
    return None, f"old client lost: APP digest {app}, backups {backups(user)}"


def start_client(home):
    """The installed client, started by this script; a thread reaps it the moment it ends,
    so that the launcher's probes do not find a zombie that looks alive."""
    user = os.path.join(home, ".SkeldaBackup")
    client = subprocess.Popen([os.path.join(user, "Skelda.app/Contents/MacOS/skelda-backup-ui")],
                              env=common.env_for(home), stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    threading.Thread(target=client.wait, daemon=True).start()
    deadline = time.time() + 5
    while not os.path.exists(os.path.join(user, "ui.pid")) and time.time() < deadline:
        time.sleep(0.01)
    return client


def run_trial(args, work, template, launcher, old, new, delay):
    home = common.fresh_copy(template, work, "trial-")
    user = os.path.join(home, ".SkeldaBackup")
    env = common.env_for(home)
    client = start_client(home)
    try:
        proc = subprocess.Popen([launcher], env=env, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)
        try:
            proc.wait(timeout=delay)
        except subprocess.TimeoutExpired:
            proc.kill()
            proc.wait()
        phase, error = classify(user, old, new)
        if error:
            return phase, delay, error
        second = subprocess.run([launcher], env=env, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, timeout=120)
        if second.returncode != 0:
            return phase, delay, f"second run exited {second.returncode}"
        if common.tree_digest(os.path.join(user, "Skelda.app")) != new:
            return phase, delay, "APP is not the new package after the second run"
        left = backups(user)
        if left and phase != "before-cleanup":
            return phase, delay, f"backups left after a kill {phase}: {left}"
        running = [p for p in common.processes_of_home(home) if p != client.pid]
        if not running:
            return phase, delay, "no client running after the second run"
        return phase, delay, None
    finally:
        client.kill()
        common.kill_processes_of_home(home)
        if not args.keep:
            shutil.rmtree(home, ignore_errors=True)


def time_upgrade(work, template, launcher, with_client=True):
    """Seconds of one whole upgrade, with or without a running client to stop first."""
    home = common.fresh_copy(template, work, "timing-")
    client = start_client(home) if with_client else None
    start = time.time()
    subprocess.run([launcher], env=common.env_for(home), check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)
    duration = time.time() - start
    if client:
        client.kill()
    common.kill_processes_of_home(home)
    shutil.rmtree(home, ignore_errors=True)
    return duration


def measure(work, template, launcher):
    """(whole run, part after the client stop): the stop alone takes about a second, so
    every other trial draws its kill from the part after it, where the files change."""
    whole = time_upgrade(work, template, launcher)
    return whole, min(whole, time_upgrade(work, template, launcher, with_client=False))


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--trials", type=int, default=300)
    ap.add_argument("--files", type=int, default=3000, help="filler files in the client")
    ap.add_argument("--build", default=os.path.join(common.ROOT, "build"))
    ap.add_argument("--seed", type=int, default=int(time.time()))
    ap.add_argument("--keep", action="store_true", help="keep every trial's home")
    args = ap.parse_args()
    rng = random.Random(args.seed)
    launcher_bin = common.launcher_binary(args.build)

    common.adopt_orphans()
    work = tempfile.mkdtemp(prefix="skelda-crash-")
    try:
        up = common.Upgrade(work, launcher_bin, args.files, 4096)
        template, new_launcher, old, new = up.template, up.new_launcher, up.old, up.new

        timings = [measure(work, template, new_launcher)]
        print(f"crash trials: {args.trials} trials, seed {args.seed}, {args.files} files, "
              f"one upgrade takes {timings[0][0]:.2f} s, {timings[0][1]:.2f} s after the stop")

        counts = {p: 0 for p in PHASES}
        failures = []
        for i in range(args.trials):
            if i and i % 20 == 0:  # the machine's load changes: measure again now and then
                timings = timings[-2:] + [measure(work, template, new_launcher)]
            whole, after_stop = sorted(timings)[len(timings) // 2]
            earliest = 0 if i % 2 == 0 else whole - after_stop
            phase, delay, error = run_trial(args, work, template, new_launcher, old, new,
                                            rng.uniform(earliest, whole * 1.1))
            if phase:
                counts[phase] += 1
            if error:
                failures.append((i, delay, phase, error))
                print(f"  trial {i}: kill at {delay:.3f} s ({phase}): {error}", file=sys.stderr)
        print("kill phase counts: " + ", ".join(f"{p} {counts[p]}" for p in PHASES))
        print(f"backup folders left (kills between extraction and clean-up): "
              f"{counts['before-cleanup']}")
        if failures:
            worst = failures[0]
            print(f"worst case: trial {worst[0]}, kill at {worst[1]:.3f} s: {worst[3]}")
        else:
            print("worst case: none (every trial ended with the new client installed and running)")
        print(f"{args.trials - len(failures)} passed, {len(failures)} failed")
        return 1 if failures else 0
    finally:
        common.end_descendants()
        if not args.keep:
            shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
