#!/usr/bin/env python3
"""Which small faults in the product code does the test suite notice?

Copies the checkout (tracked and untracked, unignored files as they stand) to a temporary
folder, builds it once, then applies one small fault at a time to the product sources
(lib/, include/, ui-client/) that this build compiles: a flipped comparison or logical
operator, a constant changed by one, a swapped returned result, a negated condition, a
deleted call. After each fault it rebuilds incrementally and runs the tests without the
slow label: the unit cases first, the end-to-end ones only when those pass. A fault is
caught when a test fails or the run hangs; a fault that does not compile is replaced by the
next one in the seeded order. Prints the share caught and the faults that survive, by file
and line, and the same share again without the faults that scripts/mutation-equivalent.txt
lists as changing no behaviour. Without --seed a fresh seed is drawn and printed.

    python3 scripts/mutation.py --seed 17 --faults 120
    python3 scripts/mutation.py --only lib/file --all
    python3 scripts/mutation.py --seed 17 --faults 120 --sanitize address --survivors-of LOG

The second form tries every fault of one folder (or file), in the seeded order. The third
form tries again, under AddressSanitizer + UBSan, only the faults that a first
run's output LOG lists as survivors: the leaks and over-reads that only a sanitizer sees.
"""
import argparse
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOTS = ("lib/", "include/", "ui-client/")
SKIP = re.compile(r"-mac\.cpp$|/translations/")  # not built here, or not code
SURVIVOR = re.compile(r"^  (\S+?):(\d+): (.*?): ")  # a line of the "survived:" list
SWAPS = [
    ("==", "!="), ("!=", "=="), ("<=", "<"), (">=", ">"), (" < ", " <= "), (" > ", " >= "),
    ("&&", "||"), ("||", "&&"),
    ("return 0;", "return -1;"), ("return -1;", "return 0;"),
    ("return true;", "return false;"), ("return false;", "return true;"),
]
INT = re.compile(r"(?<![\w.])(\d+)(?![\w.])")
CALL = re.compile(r"^(\s*)[\w:.>-]+(<[\w:, ]*>)?\(.*\);\s*$")
IF = re.compile(r"\b(if|while) \(")
EQUIVALENT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "mutation-equivalent.txt")


def read_equivalent(path):
    """The list's faults as (file, line number, fault, faulty line, why)."""
    entries = []
    with open(path, encoding="utf-8") as fh:
        for text in fh:
            m = re.match(r"^(\S+?):(\d+): (.*?): (.*) => (.*)$", text.rstrip("\n"))
            if m:
                entries.append((m[1], int(m[2]), m[3], m[4].strip(), m[5]))
            elif text.strip() and not text.startswith("#"):
                sys.exit(f"{path}: not 'FILE:LINE: FAULT: FAULTY LINE => WHY': {text.strip()}")
    return entries


def equivalent_faults(candidates, entries):
    """The candidates that the entries name. An entry is found by its file, fault and faulty
    line's text, so that lines added above it do not lose it; among equal texts the nearest
    line wins. Also returns the entries that name no candidate."""
    found, stale = set(), []
    for path, no, what, text, _ in entries:
        same = [c for c in candidates if (c[0], c[3], c[2].strip()) == (path, what, text)]
        if same:
            found.add(min(same, key=lambda c: abs(c[1] - no)))
        else:
            stale.append(f"{path}:{no}: {what}")
    return found, stale


def code_part(line):
    """The line with string and character literals and a trailing comment blanked out."""
    out, quote, i = [], None, 0
    while i < len(line):
        c = line[i]
        if quote:
            if c == "\\":
                out.append("  ")
                i += 2
                continue
            out.append(" ")
            if c == quote:
                quote = None
        elif c in "\"'":
            quote = c
            out.append(" ")
        elif line.startswith("//", i):
            break
        else:
            out.append(c)
        i += 1
    return "".join(out).ljust(len(line))


def closing_paren(text, start):
    depth = 0
    for i in range(start, len(text)):
        depth += {"(": 1, ")": -1}.get(text[i], 0)
        if depth == 0:
            return i
    return -1


def faults_of(path, lines):
    """Every fault of the file as (path, line number, new line, description)."""
    found = []
    for no, line in enumerate(lines, 1):
        code = code_part(line)
        s = code.strip()
        if not s or s.startswith(("#", "*", "/*")) or "static_assert" in s:
            continue
        for old, new in SWAPS:
            for m in re.finditer(re.escape(old), code):
                if old.strip() in "<>" and ("template" in code or "#include" in code):
                    continue
                at = m.start()
                found.append((path, no, line[:at] + new + line[at + len(old):],
                              f"'{old.strip()}' -> '{new.strip()}'"))
        for m in INT.finditer(code):
            if m.group(1).startswith("0") and m.group(1) != "0":
                continue  # octal
            n = int(m.group(1))
            found.append((path, no, line[:m.start()] + str(n + 1) + line[m.end():],
                          f"{n} -> {n + 1}"))
        for m in IF.finditer(code):
            open_at = m.end() - 1
            close_at = closing_paren(code, open_at)
            if close_at > 0:
                cond = line[open_at + 1:close_at]
                found.append((path, no, line[:open_at + 1] + "!(" + cond + ")" + line[close_at:],
                              f"negated {m.group(1)} condition"))
        if CALL.match(code) and not s.startswith(("return", "delete", "else")):
            found.append((path, no, CALL.match(code).group(1) + ";\n", "deleted call"))
    return found


def sh(cmd, cwd, timeout=None):
    """Runs cmd in its own process group; returns (exit code or None on timeout, output)."""
    p = subprocess.Popen(cmd, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         start_new_session=True, text=True, errors="replace")
    try:
        out, _ = p.communicate(timeout=timeout)
        return p.returncode, out
    except subprocess.TimeoutExpired:
        os.killpg(p.pid, signal.SIGKILL)
        p.communicate()
        return None, ""


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--seed", type=int, help="order of the faults (default: a fresh one, printed)")
    ap.add_argument("--faults", type=int, default=80)
    ap.add_argument("--only", metavar="PATH", help="only the faults of this file or folder")
    ap.add_argument("--all", action="store_true", help="every fault, not a sample")
    ap.add_argument("--work", help="folder for the copy (default: a new temporary folder)")
    ap.add_argument("--sanitize", choices=("address", "thread"), help="a sanitized build")
    ap.add_argument("--survivors-of", metavar="LOG",
                    help="try only the faults that this earlier run's output lists as survivors")
    args = ap.parse_args()
    if args.seed is None:
        args.seed = random.SystemRandom().randrange(1, 10 ** 9)
    retry = None
    if args.survivors_of:
        with open(args.survivors_of, encoding="utf-8") as fh:
            retry = {m.groups() for m in map(SURVIVOR.match, fh) if m}

    top = subprocess.run(["git", "rev-parse", "--show-toplevel"], capture_output=True,
                         text=True, check=True).stdout.strip()
    work = args.work or tempfile.mkdtemp(prefix="skelda-mutation-")
    src = os.path.join(work, "src")
    files = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=top,
                           capture_output=True, text=True, check=True).stdout.split("\n")
    for f in filter(None, files):
        if os.path.isfile(os.path.join(top, f)):
            os.makedirs(os.path.dirname(os.path.join(src, f)), exist_ok=True)
            shutil.copy2(os.path.join(top, f), os.path.join(src, f), follow_symlinks=False)

    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    supp = os.path.join(src, "tests")  # as scripts/test.sh sets them
    os.environ.update(ASAN_OPTIONS="detect_leaks=1:abort_on_error=1",
                      LSAN_OPTIONS=f"suppressions={supp}/lsan.supp",
                      UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1",
                      TSAN_OPTIONS=f"halt_on_error=1:suppressions={supp}/tsan.supp")
    build = os.path.join(work, "build")
    jobs = str(os.cpu_count() or 2)
    rc, out = sh(["cmake", "-S", src, "-B", build, "-G", "Ninja", "-DSKELDA_BENCH=OFF",
                  "-DCMAKE_BUILD_TYPE=RelWithDebInfo", f"-DSKELDA_SANITIZE={args.sanitize or ''}"],
                 work)
    if rc == 0:
        rc, out = sh(["cmake", "--build", build, "-j", jobs], work)
    # The unit cases take seconds and catch most faults; the end-to-end runs only follow them.
    ctest = ["ctest", "--test-dir", build, "-j", jobs, "--stop-on-failure"]
    stages = [ctest + ["-LE", "slow|e2e"], ctest + ["-L", "e2e", "-LE", "slow"]]
    limits = []
    for stage in stages:
        started = time.time()
        if rc == 0:
            rc, out = sh(stage, work)
        limits.append(max(120, 4 * (time.time() - started)))
    if rc != 0:
        sys.exit("the unchanged checkout does not build or pass its tests:\n" + out[-3000:])
    # Sources that this build compiles: files that only another system builds stay out.
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as fh:
        compiled = {os.path.relpath(os.path.realpath(c["file"]), os.path.realpath(src))
                    for c in json.load(fh)}

    candidates = []
    for f in sorted(filter(None, files)):
        if (f.startswith(ROOTS) and f.endswith((".cpp", ".h")) and not SKIP.search(f)
                and (f.endswith(".h") or f in compiled)):
            with open(os.path.join(src, f), encoding="utf-8") as fh:
                candidates += faults_of(f, fh.read().splitlines(keepends=True))
    random.Random(args.seed).shuffle(candidates)
    equivalent, stale = equivalent_faults(candidates, read_equivalent(EQUIVALENT))
    for entry in stale:
        print(f"equivalent list: no such fault any more: {entry}", file=sys.stderr)
    if args.only:  # filtered after the shuffle: the other faults keep their order
        only = args.only.rstrip("/")
        candidates = [c for c in candidates if c[0] == only or c[0].startswith(only + "/")]
    if args.all:
        args.faults = len(candidates)
    if retry is not None:
        candidates = [c for c in candidates if (c[0], str(c[1]), c[3]) in retry]
        args.faults = min(args.faults, len(candidates))
    print(f"{len(candidates)} possible faults; seed {args.seed}; sample {args.faults}; "
          f"test limits {limits[0]:.0f} s and {limits[1]:.0f} s"
          + (f"; sanitizer {args.sanitize}" if args.sanitize else ""), flush=True)

    caught, tried = 0, 0
    equal = []  # whether each fault of the equivalent list was caught
    survived = {False: [], True: []}  # by whether the list names the fault
    for path, no, new_line, what in candidates:
        if tried == args.faults:
            break
        target = os.path.join(src, path)
        with open(target, encoding="utf-8") as fh:
            original = fh.read()
        lines = original.splitlines(keepends=True)
        lines[no - 1] = new_line
        with open(target, "w", encoding="utf-8") as fh:
            fh.write("".join(lines))
        try:
            rc, _ = sh(["cmake", "--build", build, "-j", jobs], work, timeout=900)
            if rc != 0:
                continue  # does not compile: not a fault the tests could see
            tried += 1
            for stage, limit in zip(stages, limits):
                rc, _ = sh(stage, work, timeout=limit)
                if rc != 0:
                    break
            verdict = "caught" if rc != 0 else "SURVIVED"
            caught += rc != 0
            listed = (path, no, new_line, what) in equivalent
            if listed:
                equal.append(rc != 0)
            if rc == 0:
                survived[listed].append(f"{path}:{no}: {what}: {new_line.strip()}")
            print(f"[{tried}/{args.faults}] {verdict} {path}:{no} {what}"
                  + (" (listed as equivalent)" if listed else ""), flush=True)
        finally:
            with open(target, "w", encoding="utf-8") as fh:
                fh.write(original)

    sh(["cmake", "--build", build, "-j", jobs], work)
    real, real_caught = tried - len(equal), caught - sum(equal)
    print(f"\ncaught {caught} of {tried} faults ({100 * caught / max(tried, 1):.0f}%), "
          f"seed {args.seed}; without the {len(equal)} listed as equivalent: {real_caught} of "
          f"{real} ({100 * real_caught / max(real, 1):.0f}%)")
    for listed, title in ((False, "survived"), (True, "survived, listed as equivalent")):
        if survived[listed]:
            print(f"{title}:\n  " + "\n  ".join(sorted(survived[listed])))
    if not args.work:
        shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    main()
