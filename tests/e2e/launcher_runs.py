#!/usr/bin/env python3
"""The real launcher in bundles made by the bundle tool, with HOME in a throw-away folder and
DEBUG on for every component: whole runs, second instances, the client's life, hostile input.
Every run must end with status 0, and nothing of a working installation may be lost. Only the
case's own children and the processes with its HOME (its clients) are ever signalled.
  launcher_runs.py --build BUILD_DIR (--case NAME | --list)
"""
import argparse
import contextlib
import fcntl
import glob
import io
import os
import plistlib
import shutil
import subprocess
import sys
import tarfile
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..",
                                "scripts", "reliability"))
import common  # noqa: E402

OLD, NEW, NOBODY = "1.0.100", "1.0.200", 65534
AS_NOBODY = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
READY = "user installation is ready, removing backup app"
ROLLBACK = "Failed to extract package, rollback to old installation"
REFUSED = "app has already launched, return"
RUNNING = "): running\n"  # the worker's first line: one per run that was not refused
CASES = {}


class Failure(Exception):
    """What a case found wrong."""


def check(ok, what):
    if not ok:
        raise Failure(what)


def write(path, data):
    with open(path, "wb" if isinstance(data, bytes) else "w") as f:
        f.write(data)


def wait_until(ready, timeout=30, step=0.05):
    deadline = time.time() + timeout
    while not ready() and time.time() < deadline:
        time.sleep(step)


def case(*names):
    """Registers fn under its own name, or under each of the given ones (fn(r, name))."""
    def register(fn):
        CASES.update({name: (fn, name) for name in names or (fn.__name__,)})
        return fn
    return register


class Run:
    """A work folder with a HOME, an old and a new client tree, and the bundles made of them."""

    def __init__(self, work, launcher):
        self.work, self.launcher, self.home, self.children = work, launcher, f"{work}/home", []
        self.user, self.app = f"{self.home}/.SkeldaBackup", f"{self.home}/.SkeldaBackup/Skelda.app"
        self.trees = {name: f"{work}/{name}-client" for name in ("old", "new")}
        for name, tree in self.trees.items():
            common.make_client_tree(tree, 20, 512, name)
        os.makedirs(self.home)

    def bundle(self, version=NEW, name="New", package=None, tree="new"):
        """A bundle of the tree; `package` (bytes) replaces its package archive."""
        exe = common.make_bundle(self.launcher, self.trees[tree], version,
                                 f"{self.work}/{name}.app")
        if package is not None:
            write(f"{self.work}/{name}.app/Contents/Resources/package/skelda.vpk", package)
        return exe

    def package(self, name="New"):
        return open(f"{self.work}/{name}.app/Contents/Resources/package/skelda.vpk", "rb").read()

    def env(self, **extra):
        return common.env_for(self.home, **extra)

    def start(self, exe, env=None, user=None, stdout=None, closed=False):
        """`user`: as nobody; `stdout`: a descriptor for standard output in place of the file
        below; `closed`: the launcher starts with descriptors 0, 1 and 2 closed."""
        cmd = AS_NOBODY * bool(user) + [exe]
        if closed:
            cmd = ["sh", "-c", 'exec "$@" <&- >&- 2>&-', "sh", *cmd]
        # Output goes to files, not pipes: the client inherits them and outlives the launcher.
        files = tempfile.TemporaryFile(), tempfile.TemporaryFile()
        proc = subprocess.Popen(cmd, env=env or self.env(), stdout=stdout or files[0],
                                stderr=files[1])
        proc.files = files
        self.children.append(proc)
        return proc

    def run(self, exe, env=None, user=None, timeout=300, **how):
        self.wait(self.start(exe, env, user, **how), timeout)

    def wait(self, proc, timeout=300):
        proc.wait(timeout=timeout)
        self.stdout, self.stderr = (f.seek(0) or f.read().decode(errors="replace")
                                    for f in proc.files)
        check(proc.returncode == 0, f"exit status {proc.returncode}; stderr:\n{self.stderr[-2000:]}")

    def install_old(self):
        self.run(self.bundle(OLD, "Old", tree="old"))
        common.end_first_client(self.home)
        return common.tree_digest(self.app)

    def log(self):
        path = f"{self.user}/log/launcher.log"
        return open(path, "rb").read().decode(errors="replace") if os.path.exists(path) else ""

    def count(self, text):
        return self.log().count(text)

    def expect(self, *texts):
        for text in texts:
            check(text in self.log(), f"log lacks {text!r}; log:\n{self.log()[-3000:]}")

    def expect_app(self, digest, what):
        check(common.tree_digest(self.app) == digest, f"APP is not {what}")

    def client(self, old=0, timeout=30):
        """The live pid that a client recorded, once it is not `old`."""
        deadline = time.time() + timeout
        while time.time() < deadline:
            try:
                pid = int(open(f"{self.user}/ui.pid").read().strip().split("=")[1])
                if pid != old and os.path.exists(f"/proc/{pid}") and pid in self.clients():
                    return pid
            except (OSError, IndexError, ValueError):
                pass
            time.sleep(0.05)
        raise Failure("no client was started")

    def clients(self):
        return common.processes_of_home(self.home)

    def expect_a_client(self, what):
        wait_until(self.clients)
        check(self.clients(), what)

    def give_home_to_nobody(self):
        os.chmod(self.work, 0o755)
        subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", self.home], check=True)

    def client_script(self, *lines, tree="new"):
        """The tree's client becomes the sample client with `lines` run first."""
        exe = os.path.join(self.trees[tree], "Contents/MacOS/skelda-backup-ui")
        shebang, rest = open(common.SAMPLE_CLIENT).read().split("\n", 1)
        write(exe, "\n".join([shebang, 'dir="$HOME/.SkeldaBackup"', *lines, rest]))

    def expect_clients_inherit_nothing(self):
        """Every client still running holds descriptors 0 to 2 only, for good (a descriptor
        that goes within a second, such as the locale files `sleep` reads at its start, is
        its own). Looked at once it has become its `sleep`; one that does not within 10 s
        (blocked writing a FIFO ui.pid) as it is, less the descriptor its script is read by."""
        def held(pid, late):
            try:
                fds = {int(fd): os.readlink(f"/proc/{pid}/fd/{fd}")
                       for fd in os.listdir(f"/proc/{pid}/fd")}
            except (OSError, ValueError):
                return {}  # ended, or between two files
            return {fd: t for fd, t in fds.items() if fd > 2 and
                    not (late and t.endswith("/Contents/MacOS/skelda-backup-ui"))}
        deadline, left = time.time() + 10, set(self.clients())
        while left:
            late = time.time() > deadline
            for pid in list(left):
                try:
                    if not late and open(f"/proc/{pid}/comm").read().strip() != "sleep":
                        continue
                except OSError:
                    pass
                extra = held(pid, late)
                for _ in range(10):
                    if not extra:
                        break
                    time.sleep(0.1)
                    extra = {fd: t for fd, t in held(pid, late).items() if extra.get(fd) == t}
                check(not extra, f"client {pid} inherited {extra}")
                left.discard(pid)
            time.sleep(0.02)

    def finish(self):
        for proc in self.children:  # kill() leaves a process that has been waited for alone
            proc.kill()
            proc.wait()
        common.end_descendants()  # the clients too: orphans are this process's children


def client_package(r, extra=()):
    """A pax tar package of the new client plus `extra` (name, data) files, its INFO last."""
    exe = open(os.path.join(r.trees["new"], "Contents/MacOS/skelda-backup-ui"), "rb").read()
    buf = io.BytesIO()
    with tarfile.open(fileobj=buf, mode="w", format=tarfile.PAX_FORMAT) as t:
        for name, data in [("Contents/MacOS/skelda-backup-ui", exe), *extra,
                           ("Contents/Resources/INFO", b"[Version]\nbuild_version=200\n")]:
            info = tarfile.TarInfo(name)
            info.mode, info.size = 0o755 if data is exe else 0o644, len(data)
            t.addfile(info, io.BytesIO(data))
    return buf.getvalue()


def expect_package(r, package=None):
    """APP holds the package's files (the new bundle's by default), byte for byte."""
    with tarfile.open(fileobj=io.BytesIO(package or r.package())) as t:
        files = {m.name: t.extractfile(m).read() for m in t if m.isfile()}
    found = {}
    for base, _, names in os.walk(r.app.encode()):
        for name in names:
            path = os.path.join(base, name)
            found[os.path.relpath(path, r.app.encode()).decode()] = open(path, "rb").read()
    check(found == files, f"APP holds {len(found)} files, not the package's {len(files)}")


def expect_upgraded(r, package=None):
    r.expect(READY)
    expect_package(r, package)


# ---- whole runs, second instances and the client ----

@case()
def three_runs_then_an_upgrade_leave_one_client(r):
    exe = r.bundle(OLD, "Skelda Backup", tree="old")  # a blank in the path
    for n in ("", "1"):  # a first installation removes a leftover APP_tmp, not APP_tmp1
        os.makedirs(f"{r.app}_tmp{n}/left/over")
    r.run(exe)
    bundle = os.path.dirname(os.path.dirname(os.path.dirname(exe)))
    check(r.stdout == f"lib path = '{bundle}/Contents/Frameworks/plugins'\n", r.stdout)
    plist = plistlib.load(open(f"{bundle}/Contents/Info.plist", "rb"))
    check({"CFBundleIdentifier", "CFBundleName", "LSMinimumSystemVersion", "NSHighResolutionCapable",
           "NSPrincipalClass"} <= plist.keys() and plist["CFBundleExecutable"] == os.path.basename(exe)
          and (plist["CFBundleShortVersionString"], plist["CFBundleVersion"]) == (OLD, "100"), plist)
    first = r.client()
    check(os.readlink(f"/proc/{first}/cwd") == r.home, "the client does not run in HOME")
    order = [RUNNING, "source does not exist", "Source version: ('', '')",
             "source version = 0, target version = 100",
             f"extract package: '{bundle}/Contents/Resources/package/skelda.vpk' -> '{r.app}'",
             READY, f"removing aged app folder {r.user}/app", "done"]
    at = 0
    for line in order:
        at = r.log().find(line, at)
        check(at >= 0, f"log lacks {line!r} in order; log:\n{r.log()}")
    os.makedirs(os.path.join(r.user, "app", "old"))  # the aged folder goes on every run
    r.run(exe)
    r.run(exe)
    check(r.count("no need to upgrade") == 2 and r.count(READY) == 1, r.log())
    check(glob.glob(f"{r.user}/app") + glob.glob(r.app + "_*") == [r.app + "_tmp1"], "aged folder left")
    check(r.client() == first and r.clients() == [first], f"clients: {r.clients()}")
    r.run(r.bundle())
    check(r.clients() == [r.client(first)], f"clients after the upgrade: {r.clients()}")
    expect_package(r)


@contextlib.contextmanager
def dead_pipe(wanted=True):
    """The writing end of a pipe whose reading end is closed: a write raises SIGPIPE."""
    read, write = os.pipe() if wanted else (None, None)
    try:
        read is None or os.close(read)
        yield write
    finally:
        write is None or os.close(write)


@case("stdout_a_dead_pipe_no_upgrade", "stdout_a_dead_pipe_and_an_upgrade")
def stdout_a_dead_pipe(r, name):
    """`skelda-launcher | true`: the first output line meets a pipe nobody reads."""
    r.install_old()
    upgrade = not name.endswith("no_upgrade")
    with dead_pipe() as out:
        r.run(r.bundle() if upgrade else r.bundle(OLD, "Old", tree="old"), stdout=out)
    r.expect(RUNNING, READY if upgrade else "no need to upgrade")
    if upgrade:
        expect_package(r)
    r.client()


@case()
def descriptors_0_1_2_closed(r):
    """No file of the launcher's takes the place of standard input, output or error; the
    client, which inherits them, writes into none of the launcher's files."""
    r.install_old()
    r.client_script("echo 'the client says'; echo 'the client says' >&2")
    r.run(r.bundle(), closed=True)
    expect_upgraded(r)
    pid, log = r.client(), os.path.realpath(f"{r.user}/log/launcher.log")
    std = [os.path.realpath(f"/proc/{pid}/fd/{fd}") for fd in range(3)]
    check(std == ["/dev/null"] * 3, f"the client's descriptors 0-2: {std}")
    check("the client says" not in r.log() and log not in std, r.log()[-2000:])


RECORD = """import os, sys
fds = []
for fd in range(4096):
    try:
        os.fstat(fd)
        fds.append(fd)
    except OSError:
        pass
open(sys.argv[1] + "~", "w").write(" ".join(map(str, fds)))
os.rename(sys.argv[1] + "~", sys.argv[1])
os.execvp("sleep", ["sleep", "infinity"])"""


@case()
def client_records_its_descriptors(r):
    """The client started after an upgrade holds descriptors 0 to 2 and nothing else, with
    every signal at its default and none blocked."""
    r.install_old()
    r.client_script('grep "^Sig[IB]" /proc/$$/status > "$dir/signals"',
                    'printf "pid=%s\\n" "$$" > "$dir/ui.pid"',
                    f"exec python3 -c '{RECORD}' \"$dir/descriptors\"")
    r.run(r.bundle())
    r.client()
    wait_until(lambda: os.path.exists(f"{r.user}/descriptors"))
    fds = open(f"{r.user}/descriptors").read()
    check(fds == "0 1 2", f"the client's descriptors: {fds}")
    signals = open(f"{r.user}/signals").read()
    blocked, ignored = (int(line.split()[1], 16) for line in signals.splitlines())
    # Less glibc's own signals 32 and 33 (SIGCANCEL, SIGSETXID), below SIGRTMIN: its
    # posix_spawn (2.36) leaves them ignored in every child, and no caller can name them.
    check(blocked == 0 and ignored & ~(3 << 31) == 0, signals)


@case()
def every_descriptor_of_the_launcher_is_close_on_exec(r):
    """Watched through /proc during an upgrade: each descriptor above 2 that the launcher
    holds (the log, the lock files, the package archive...) has O_CLOEXEC."""
    common.make_client_tree(f"{r.work}/big-client", 3000, 512, "big")
    r.trees["big"] = f"{r.work}/big-client"
    r.install_old()
    proc, seen = r.start(r.bundle(tree="big")), {}
    while proc.poll() is None:
        try:
            for fd in os.listdir(f"/proc/{proc.pid}/fd"):
                if int(fd) > 2:
                    target = os.readlink(f"/proc/{proc.pid}/fd/{fd}")
                    info = open(f"/proc/{proc.pid}/fdinfo/{fd}").read()
                    flags = int(info.split("flags:")[1].split()[0], 8)
                    seen[target] = seen.get(target, True) and bool(flags & os.O_CLOEXEC)
        except (OSError, IndexError, ValueError):
            pass  # the launcher closed it meanwhile, or ended
    r.wait(proc)
    r.expect(READY)
    check(f"{r.user}/log/launcher.log" in seen and
          f"{r.work}/New.app/Contents/Resources/package/skelda.vpk" in seen and
          f"{r.user}/upgrade.lock" in seen, f"not all seen: {sorted(seen)}")
    # Less what others open in the process: the sanitizers' run times (the launcher's own
    # /proc entries, pipes: the launcher makes none; ThreadSanitizer's /tmp/tsan.* file) and
    # system libraries' files under /usr (a font that Qt reads while the dialog is drawn),
    # which the spawn closes in the client.
    bad = [t for t, ok in seen.items() if not ok and
           not t.startswith((f"/proc/{proc.pid}/", "pipe:", "/tmp/tsan.", "/usr/"))]
    check(not bad, f"without close-on-exec: {bad}")


@case()
def busy_launcher_refuses_others_and_leaves_no_lock_when_killed(r):
    # The first launcher is held up stopping an old client that ignores SIGTERM; it started
    # with XDG_RUNTIME_DIR set, the others do not matter either way.
    r.install_old()
    stubborn = subprocess.Popen([common.SAMPLE_CLIENT], env=r.env(SKELDA_SAMPLE_CLIENT_IGNORE_TERM="1"))
    r.children.append(stubborn)
    r.client()
    exe = r.bundle()
    holder = r.start(exe, env=r.env(XDG_RUNTIME_DIR=r.work))
    wait_until(lambda: "local appdata exist" in r.log(), 60, 0.02)
    no_xdg = {k: v for k, v in r.env().items() if k != "XDG_RUNTIME_DIR"}
    for proc in [r.start(exe, env=no_xdg) for _ in range(3)] + [r.start(exe) for _ in range(3)]:
        r.wait(proc)
    check((r.count(RUNNING), r.count(REFUSED)) == (2, 6), r.log())
    holder.kill()  # in the middle of the stop: the kernel drops its lock
    holder.wait()
    r.run(exe)
    check((r.count(RUNNING), r.count(REFUSED)) == (3, 6), r.log())
    check(stubborn.wait(timeout=10) == -9, "the stubborn client was not killed")


@case()
def lock_held_by_another_account_refuses_nothing(r):
    # The launcher runs as nobody; root plays the other account. It takes over nobody's lock
    # folder (owner and mode) and holds a lock on every file in it.
    folder = f"/tmp/skelda-launcher-{NOBODY}"
    shutil.rmtree(folder, ignore_errors=True)
    exe = r.bundle()
    r.give_home_to_nobody()
    r.run(exe, user=NOBODY)
    os.chown(folder, 0, 0)
    os.chmod(folder, 0o777)
    held = [open(p, "a") for p in glob.glob(folder + "/*")]
    check(held, "the first run made no lock file")
    try:
        for f in held:
            fcntl.flock(f, fcntl.LOCK_EX)
        r.run(exe, user=NOBODY)
        check("is not private to this user" in r.stderr, r.stderr)
        check((r.count(RUNNING), r.count(REFUSED)) == (2, 0), r.log())
    finally:
        shutil.rmtree(folder, ignore_errors=True)


@case("two_builds_at_once", "one_build_at_two_paths")
def launchers_started_together(r, name):
    """Two launchers of one user at two paths: one upgrade at a time, the newest build wins."""
    common.make_client_tree(f"{r.work}/big-client", 600, 512, "big")
    newer = common.make_bundle(r.launcher, f"{r.work}/big-client", "1.0.201",
                               f"{r.work}/Newer.app")
    other = r.bundle()
    if name == "one_build_at_two_paths":
        shutil.copytree(f"{r.work}/Newer.app", f"{r.work}/New.app", symlinks=True,
                        dirs_exist_ok=True)
    for attempt in range(4):
        shutil.rmtree(r.user, ignore_errors=True)
        order = (other, newer) if attempt % 2 else (newer, other)
        for proc in [r.start(exe) for exe in order]:
            r.wait(proc)
        expect_package(r, r.package("Newer"))
        check(not glob.glob(r.app + "_*"), f"backup folders left: {glob.glob(r.app + '_*')}")
        if name == "one_build_at_two_paths":
            check(r.count(READY) == 1, f"not one upgrade:\n{r.log()[-3000:]}")
        common.kill_processes_of_home(r.home)


# ---- hostile and damaged input ----

@case()
def empty_package(r):
    """Damaged packages are the extractor test's; an empty one must fail the extraction too."""
    old = r.install_old()
    r.run(r.bundle(package=b""))
    r.expect("Failed to calculate total file numbers, ret: 0", ROLLBACK, "Failed to upgrade package")
    r.expect_app(old, "the old application, byte for byte")


@case("names_under_C", "names_under_POSIX", "names_without_LANG", "names_under_UTF_8")
def non_ascii_names_install_under_every_locale(r, name):
    env = {k: v for k, v in r.env().items() if not k.startswith(("LC_", "LANG"))}
    env.update({"names_under_C": {"LC_ALL": "C"}, "names_under_POSIX": {"LC_ALL": "POSIX"},
                "names_without_LANG": {}, "names_under_UTF_8": {"LANG": "C.UTF-8"}}[name])
    package = client_package(r, [(n, n.encode()) for n in (
        "Contents/Resources/fr.lproj/Préférences.strings", "Contents/Resources/ja.lproj/設定.txt")])
    r.run(r.bundle(package=package), env=env)
    expect_upgraded(r, package)


UNTRUSTED = {  # how ui.pid is made: the reason logged
    "pid_of_another_account": "process {pid} is another account's",
    "pid_file_dated_ahead": "dated in the future",
    "pid_file_is_a_fifo": "not a regular file",
    "pid_file_is_a_folder": "not a regular file",
}


@case(*UNTRUSTED)
def untrusted_pid_file(r, name):
    """An upgrade with a ui.pid that must not be believed: nothing of its process is
    signalled, and the user's own client runs afterwards."""
    r.install_old()
    pid_file, other = f"{r.user}/ui.pid", None
    if name == "pid_file_is_a_fifo":
        os.mkfifo(pid_file)
    elif name == "pid_file_is_a_folder":
        os.makedirs(pid_file)
    else:  # a live process that started before the file was written, not a client of r.home
        other = subprocess.Popen(AS_NOBODY * (name == "pid_of_another_account") + ["sleep", "600"])
        r.children.append(other)
        write(pid_file, f"pid={other.pid}\n")
        if name == "pid_file_dated_ahead":
            os.utime(pid_file, (time.time() + 3600,) * 2)
    r.run(r.bundle(), timeout=60)
    reason = UNTRUSTED[name].format(pid=other and other.pid)
    r.expect(f"[NOTE] mac/running-client.cpp(", f"pid file '{pid_file}' not trusted: {reason}\n",
             READY)
    check(other is None or other.poll() is None, "the process of the pid file was signalled")
    r.expect_a_client("the user's own client was not started")


info = lambda build: b"[Version]\nbuild_version=" + build.encode() + b"\n"  # noqa: E731


VERSIONS = {  # APP's INFO (None: none), its client, the shipped INFO (None: none): upgrade?
    "no_client_older_target": (info("500"), False, info("400"), True),
    "no_source_info": (None, True, info("1"), True),  # the least build above none
    "equal_builds": (info("400"), True, info("400"), False),
    "never_downgrades": (info("401"), True, info("400"), False),
    "trailing_letter": (info("1203x"), True, info("1203"), False),
    "letters_only": (info("abc"), True, info("1"), True),
    "forty_digit_target": (info("2147483646"), True, info("1234567890" * 4), True),
    "negative_source_no_target_info": (info("-1"), True, None, True),
    "zero_source_no_target_info": (info("0"), True, None, False),
    "target_info_binary": (info("100"), True, bytes(range(256)) * 64, False),
    # a version file that cannot be read counts as build 0, with a warning naming it
    "target_info_unreadable": (info("100"), True, "mode 000, read by nobody", False),
    "target_info_folder": (info("100"), True, "a folder", False),
    # Bytes beyond ASCII, read as UTF-8 under Qt 5 and Qt 6 alike: beside the build they change
    # nothing (no extraction on every run); a byte-order mark before the number is dropped.
    "non_ascii_beside_the_build": (info("400") + b"major_version=1 \xce\xb2\nminor_version=\xe9\n",
                                   True, info("400"), False),
    "byte_order_mark_in_source_build": (info("\ufeff401"), True, info("400"), False),
    "byte_order_mark_opens_target_info": (info("399"), True, b"\xef\xbb\xbf" + info("400"), True),
}


@case(*VERSIONS)
def upgrade_decision(r, name):
    source, client, target, upgrades = VERSIONS[name]
    r.install_old()
    exe = r.bundle()
    target_info = f"{r.work}/New.app/Contents/Resources/INFO"
    for path, content in ((f"{r.app}/Contents/Resources/INFO", source), (target_info, target)):
        if content == "mode 000, read by nobody":
            os.chmod(path, 0)
            continue
        os.remove(path)
        if content == "a folder":
            os.makedirs(path)
        elif content is not None:
            write(path, content)
    if not client:
        os.remove(f"{r.app}/Contents/MacOS/skelda-backup-ui")
    old = common.tree_digest(r.app)
    nobody = "nobody" in str(target)
    if nobody:
        r.give_home_to_nobody()
    r.run(exe, user=NOBODY if nobody else None)
    if isinstance(target, str):
        r.expect(f"[WARNING] skelda-service.cpp(", f"cannot read version file '{target_info}': "
                 + ("Permission denied" if nobody else "not a regular file") + "\n")
    if upgrades:
        expect_upgraded(r)
    else:
        r.expect("no need to upgrade")
        r.expect_app(old, "the old application")


@case()
def ten_backup_names_taken_and_a_malformed_level_file(r):
    """Nothing changes, and the broken lines of the level file turn no DEBUG line on."""
    old = r.install_old()
    taken = sorted(f"{r.app}_tmp{n}" for n in ["", *range(1, 10)])
    for name in taken:
        os.makedirs(f"{name}/left")
    exe = r.bundle()
    write(f"{r.work}/New.app/log/launcher.debug",
          b"launcher_debug\n=7\nservice_debug=seven\n\"unterminated=7\n\xff\xfe=1\n")
    r.run(exe)
    r.expect(f"failed to backup app from '{r.app}' -> '{r.app}_tmp9' at max retries, exiting\n")
    r.expect_app(old, "the old application")
    check(sorted(glob.glob(r.app + "_*")) == taken and r.count("failed to backup app") == 11, r.log())
    for name in taken:  # each failure with the system's reason, from the file layer
        r.expect(f"[ERROR] move-file.cpp(", f"FSRename: rename('{r.app}' -> '{name}'): "
                 "Directory not empty (39)\n")
    check(r.count(RUNNING) == 1, "DEBUG lines of the second run")


@case("first_install_does_not_fit", "upgrade_does_not_fit", "disk_already_full",
      "upgrade_does_not_fit_and_stderr_a_dead_pipe")
def full_disk(r, name):
    """HOME/.SkeldaBackup on a 4 MiB file system of its own, in a mount namespace. The last
    case gives the launcher a pipe nobody reads for standard error, where the lines go that
    the full log file does not take."""
    if subprocess.run(["unshare", "-m", "true"], capture_output=True).returncode != 0:
        print("SKIPPED: mount namespaces are not allowed here")
        return
    old = None if name == "first_install_does_not_fit" else r.install_old()
    if name != "disk_already_full":
        write(os.path.join(r.trees["new"], "Contents/Resources/big.bin"), os.urandom(8 << 20))
    exe, saved, after = r.bundle(), f"{r.work}/saved", f"{r.work}/after"
    os.makedirs(r.user, exist_ok=True)
    shutil.copytree(r.user, saved, symlinks=True)
    os.makedirs(after)
    fill = 'cat /dev/zero > "$HOME/.SkeldaBackup/filler" 2>/dev/null || true; ' \
        if name == "disk_already_full" else ""
    script = (f'set -e; mount -t tmpfs -o size=4m tmpfs "$HOME/.SkeldaBackup"; '
              f'cp -a "{saved}/." "$HOME/.SkeldaBackup/"; {fill}"{exe}"; '
              f'rm -f "$HOME/.SkeldaBackup/filler"; cp -a "$HOME/.SkeldaBackup/." "{after}/"')
    # err is not a pipe: the client started inherits it
    with dead_pipe(name.endswith("a_dead_pipe")) as dead, tempfile.TemporaryFile() as err:
        subprocess.run(["unshare", "-m", "--propagation", "private", "sh", "-c", script],
                       env=r.env(), stdout=subprocess.DEVNULL, stderr=dead or err,
                       check=True, timeout=300)
        out = err.seek(0) or err.read().decode(errors="replace")
    if dead:  # nothing said can be read: the old application is back, whole, and runs
        check(common.tree_digest(f"{after}/Skelda.app") == old, "the old application is not back")
        r.expect_a_client("no client was started")
        return
    # Lines that the full log file did not take reach standard error, whole.
    said = open(f"{after}/log/launcher.log", errors="replace").read() + out
    check("failed: 'Write failed: No space left on device'" in said, said[-3000:])
    if old:
        check(ROLLBACK + "\n" in said, "no rollback said")
        check(common.tree_digest(f"{after}/Skelda.app") == old, "the old application is not back")
    else:
        check("Failed to launch Skelda UI\n" in said, "a client was started")
        check(not os.path.exists(f"{after}/Skelda.app"), "the partial application is left")
    if name == "disk_already_full":
        check("[ERROR] launcher.cpp(" in out, f"stderr lacks the failure: {out[-2000:]}")


@case()
def same_client_same_bundle(r):
    """The bundle tool's package, INFO and Info.plist do not change with the client files'
    times, modes and creation order, the umask or the account; one changed byte does."""
    tree, copy = r.trees["new"], f"{r.work}/copy"
    files = [p for p in glob.glob(f"{tree}/**", recursive=True) if os.path.isfile(p)]
    for n, path in enumerate(sorted(files, reverse=True)):
        twin = copy + path[len(tree):]
        os.makedirs(os.path.dirname(twin), exist_ok=True)
        shutil.copy(path, twin)
        os.chmod(twin, os.stat(path).st_mode | 0o066)
        os.utime(twin, (1e9 + n,) * 2)
    os.chmod(r.work, 0o777)

    def made(client, name, umask, user=()):
        common.make_bundle(r.launcher, client, NEW, f"{r.work}/{name}.app", prefix=[
            *user, "sh", "-c", f'umask {umask}; exec "$0" "$@"'])
        return [open(f"{r.work}/{name}.app/Contents/{p}", "rb").read()
                for p in ("Resources/package/skelda.vpk", "Resources/INFO", "Info.plist")]
    first = made(tree, "A", "022")
    time.sleep(1.1)  # a time stamp of the run itself, in seconds, would differ
    check(made(copy, "B", "077", AS_NOBODY) == first, "the bundles of one client differ")
    data = bytearray(open(twin, "rb").read())
    data[0] ^= 1
    write(twin, bytes(data))
    check(made(copy, "C", "022")[0] != first[0], "a changed client file left the package as it was")


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--build", required=True)
    ap.add_argument("--case")
    ap.add_argument("--list", action="store_true")
    args = ap.parse_args()
    if args.list:
        print("\n".join(CASES))
        return 0
    common.adopt_orphans()
    work = tempfile.mkdtemp(prefix=f"skelda-{args.case}-")
    r = Run(work, common.launcher_binary(args.build))
    fn, name = CASES[args.case]
    try:
        fn(r, name) if fn.__code__.co_argcount == 2 else fn(r)
        r.expect_clients_inherit_nothing()
    except (Failure, subprocess.SubprocessError) as e:
        print(f"FAILED {args.case}: {e}\nwork folder kept: {work}")
        return 1
    finally:
        r.finish()
    shutil.rmtree(work, ignore_errors=True)
    print(f"ok {args.case}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
