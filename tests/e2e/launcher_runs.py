#!/usr/bin/env python3
"""The real launcher in bundles made by the bundle tool, with HOME in a throw-away folder and
DEBUG on for every component: whole runs, second instances, the client's life, and hostile or
damaged input. Every run must end with status 0 and no crash or hang, and nothing of a working
installation may be lost. Only processes that a case started itself, or that run with its
HOME (the clients its launchers started), are ever signalled.

  launcher_runs.py --build BUILD_DIR --case NAME      one case (CTest runs them one by one)
  launcher_runs.py --build BUILD_DIR --list           the case names, "slow" ones marked
"""
import argparse
import fcntl
import glob
import io
import os
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
READY = "user installation is ready, removing backup app"
ROLLBACK = "Failed to extract package, rollback to old installation"
REFUSED = "app has already launched, return"
RUNNING = "): running\n"  # the worker's first line: one per run that was not refused
CASES, SLOW = {}, set()


class Failure(Exception):
    pass


def check(ok, what):
    if not ok:
        raise Failure(what)


def case(*names, slow=()):
    """Registers fn under its own name or the given ones; slow: True, or the slow names."""
    def register(fn):
        for name in names or (fn.__name__,):
            CASES[name] = (fn, name)
            if slow is True or name in slow:
                SLOW.add(name)
        return fn
    return register


class Run:
    """A work folder with a HOME, an old and a new client tree, and the bundles made of them."""

    def __init__(self, work, launcher, home="home"):
        self.work, self.launcher = work, launcher
        self.home = os.path.join(work, home)
        os.makedirs(self.home)
        self.user = os.path.join(self.home, ".SkeldaBackup")
        self.app = os.path.join(self.user, "Skelda.app")
        self.trees = {}
        for name in ("old", "new"):
            self.trees[name] = os.path.join(work, name + "-client")
            common.make_client_tree(self.trees[name], 20, 512, name)
        self.children = []

    def bundle(self, version=NEW, name="New", package=None, info=None, tree="new"):
        """A bundle; `package` (bytes) replaces its package archive, `info` its INFO."""
        exe = common.make_bundle(self.launcher, self.trees[tree], version,
                                 f"{self.work}/{name}.app")
        res = f"{self.work}/{name}.app/Contents/Resources"
        for data, path in ((package, "package/skelda.vpk"), (info, "INFO")):
            if data is not None:
                with open(os.path.join(res, path), "wb") as f:
                    f.write(data)
        return exe

    def package(self, name="New"):
        return open(f"{self.work}/{name}.app/Contents/Resources/package/skelda.vpk", "rb").read()

    def env(self, **extra):
        return common.env_for(self.home, **extra)

    def start(self, exe, env=None, user=None):
        cmd = [exe]
        if user:  # another account, with setpriv from util-linux
            cmd = ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups"] + cmd
        # Output goes to files, not pipes: the client inherits them and outlives the launcher.
        out, err = tempfile.TemporaryFile(), tempfile.TemporaryFile()
        proc = subprocess.Popen(cmd, env=env or self.env(), stdout=out, stderr=err)
        proc.out, proc.err = out, err
        self.children.append(proc)
        return proc

    def wait(self, proc, timeout=300):
        proc.wait(timeout=timeout)
        proc.out.seek(0)
        proc.err.seek(0)
        self.stdout, self.stderr = (f.read().decode(errors="replace") for f in (proc.out, proc.err))
        check(proc.returncode == 0, f"exit status {proc.returncode}; stderr:\n{self.stderr[-2000:]}")

    def run(self, exe, env=None, user=None, timeout=300):
        self.wait(self.start(exe, env, user), timeout)

    def install_old(self):
        self.run(self.bundle(OLD, "Old", tree="old"))
        common.end_first_client(self.home)
        return common.tree_digest(self.app)

    def log(self):
        path = os.path.join(self.user, "log", "launcher.log")
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
                text = open(os.path.join(self.user, "ui.pid")).read()
                pid = int(text.strip().split("=")[1])
                if pid != old and os.path.exists(f"/proc/{pid}") and pid in self.clients():
                    return pid
            except (OSError, IndexError, ValueError):
                pass
            time.sleep(0.05)
        raise Failure("no client was started")

    def clients(self):
        return common.processes_of_home(self.home)

    def finish(self):
        for proc in self.children:
            if proc.poll() is None:
                proc.kill()
                proc.wait()
        common.kill_processes_of_home(self.home)


def tar(entries, mode="w"):
    """A tar archive of (name, data, mode, type) tuples, names kept exactly as given."""
    buf = io.BytesIO()
    with tarfile.open(fileobj=buf, mode=mode, format=tarfile.PAX_FORMAT) as t:
        for name, data, perm, kind in entries:
            info = tarfile.TarInfo(name)
            info.mode, info.type, info.size = perm, kind, len(data)
            info.devmajor, info.devminor = 1, 3
            t.addfile(info, io.BytesIO(data))
    return buf.getvalue()


def client_package(r, extra=(), mode="w"):
    """A working package of the new client plus `extra` entries, its INFO last."""
    exe = open(os.path.join(r.trees["new"], "Contents/MacOS/skelda-backup-ui"), "rb").read()
    return tar([("Contents/MacOS/skelda-backup-ui", exe, 0o755, tarfile.REGTYPE), *extra,
                ("Contents/Resources/INFO", b"[Version]\nbuild_version=200\n", 0o644,
                 tarfile.REGTYPE)], mode)


def members(package):
    with tarfile.open(fileobj=io.BytesIO(package)) as t:
        return {m.name: t.extractfile(m).read() for m in t if m.isfile()}


def expect_files(r, files):
    found = {}
    for base, _, names in os.walk(r.app.encode()):
        for name in names:
            path = os.path.join(base, name)
            found[os.path.relpath(path, r.app.encode()).decode()] = open(path, "rb").read()
    check(found == files, f"APP holds {len(found)} files, not the package's {len(files)}")


# ---- whole runs, second instances and the client ----

@case()
def three_runs_then_an_upgrade_leave_one_client(r):
    exe = r.bundle(OLD, "Skelda Backup", tree="old")  # a blank in the path
    r.run(exe)
    bundle = os.path.dirname(os.path.dirname(os.path.dirname(exe)))
    check(r.stdout == f"lib path = '{bundle}/Contents/Frameworks/plugins'\n", r.stdout)
    first = r.client()
    order = [RUNNING, "source does not exist",
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
    check(not os.path.exists(os.path.join(r.user, "app")), "the aged folder is still there")
    check(r.client() == first and r.clients() == [first], f"clients: {r.clients()}")
    r.run(r.bundle())
    check(r.clients() == [r.client(first)], f"clients after the upgrade: {r.clients()}")
    expect_files(r, members(r.package()))


@case()
def log_folder_in_the_way(r):
    os.makedirs(r.user)
    with open(os.path.join(r.user, "log"), "w") as f:
        f.write("in the way")
    r.run(r.bundle())
    r.client()
    check(open(os.path.join(r.user, "log")).read() == "in the way", "the file was changed")


def busy(r):
    """An old client that ignores SIGTERM, and a first launcher busy stopping it."""
    r.install_old()
    stubborn = subprocess.Popen([common.SAMPLE_CLIENT], env=r.env(SKELDA_SAMPLE_CLIENT_IGNORE_TERM="1"))
    r.children.append(stubborn)
    r.client()
    exe = r.bundle()
    holder = r.start(exe, env=r.env(XDG_RUNTIME_DIR=r.work))
    deadline = time.time() + 60
    while "local appdata exist" not in r.log() and time.time() < deadline:
        time.sleep(0.02)
    r.expect("local appdata exist")
    return exe, holder, stubborn


@case(slow=True)
def second_instance_refused_whatever_its_environment(r):
    exe, holder, stubborn = busy(r)
    started = time.time()
    env = {k: v for k, v in r.env().items() if k != "XDG_RUNTIME_DIR"}
    r.run(exe, env=env)
    check(r.count(REFUSED) == 1, "the second start was not refused")
    r.wait(holder)
    check(time.time() - started > 3.5, "SIGKILL came before the five probes")
    check(stubborn.wait(timeout=10) == -9, "the stubborn client was not killed")
    check(r.count(RUNNING) == 2, "the installation and the holder only")
    r.client(stubborn.pid)


@case(slow=True)
def twenty_at_once_give_one_run(r):
    exe, holder, _ = busy(r)
    for proc in [r.start(exe) for _ in range(19)] + [holder]:
        r.wait(proc)
    check((r.count(RUNNING), r.count(REFUSED)) == (2, 19), r.log())


@case(slow=True)
def killed_holder_leaves_no_stale_lock(r):
    exe, holder, _ = busy(r)
    holder.kill()
    holder.wait()
    r.run(exe)
    check((r.count(RUNNING), r.count(REFUSED)) == (3, 0), r.log())


@case()
def lock_held_by_another_account_refuses_nothing(r):
    # The launcher runs as nobody; root plays the other account. It takes over nobody's lock
    # folder (owner and mode) and holds a lock on every file in it.
    folder = f"/tmp/skelda-launcher-{NOBODY}"
    shutil.rmtree(folder, ignore_errors=True)
    os.chmod(r.work, 0o755)
    exe = r.bundle()
    subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", r.home], check=True)
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


@case()
def pid_of_another_user(r):
    # A process of the test's own (root) while the launcher runs as nobody: refused signals.
    sleeper = subprocess.Popen(["sleep", "600"])
    r.children.append(sleeper)
    os.chmod(r.work, 0o755)
    r.install_old()
    exe = r.bundle()
    with open(os.path.join(r.user, "ui.pid"), "w") as f:
        f.write(f"pid={sleeper.pid}\n")
    subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", r.home], check=True)
    r.run(exe, user=NOBODY)
    r.expect("kill: Operation not permitted (1)", READY)
    check(sleeper.poll() is None, "the other user's process was signalled")


@case()
def pid_reused_by_an_unrelated_process(r):
    # The old pid file dates from before this process started (a crash, then a restart).
    r.install_old()
    unrelated = subprocess.Popen(["sleep", "600"], env=r.env())
    r.children.append(unrelated)
    pid_file = os.path.join(r.user, "ui.pid")
    with open(pid_file, "w") as f:
        f.write(f"pid={unrelated.pid}\n")
    os.utime(pid_file, (time.time() - 3600,) * 2)
    r.run(r.bundle())
    r.expect(f"process {unrelated.pid} started after", READY)
    check(unrelated.poll() is None and "kill: " not in r.log(), "the unrelated process was signalled")


# ---- hostile and damaged input ----

def damaged(r, package, first_line):
    old = r.install_old()
    r.run(r.bundle(package=package))
    r.expect(first_line, ROLLBACK, "Failed to upgrade package")
    r.expect_app(old, "the old application, byte for byte")


@case("empty_package", "not_an_archive", "truncated_package", "dotdot_entry")
def damaged_package(r, name):
    r.bundle()
    good = r.package()
    package, line = {
        "empty_package": (b"", "Failed to calculate total file numbers, ret: 0"),
        "not_an_archive": (os.urandom(65536), "Failed to calculate total file numbers, ret: "),
        # where the cut lands decides which libarchive call notices it
        "truncated_package": (good[:len(good) // 2], "[ERROR] extractor.cpp("),
        "dotdot_entry": (tar([("Contents/ok", b"fine", 0o644, tarfile.REGTYPE),
                              ("../../escaped", b"evil", 0o644, tarfile.REGTYPE)]),
                         "archive_read_extract2 failed"),
    }[name]
    damaged(r, package, line)
    check(not os.path.lexists(os.path.join(r.home, "escaped")), "'..' escaped the application")


@case()
def absolute_names_stay_below_the_application(r):
    outside = os.path.join(r.work, "absolute-target")
    r.install_old()
    r.run(r.bundle(package=client_package(r, [(outside, b"abs", 0o644, tarfile.REGTYPE)])))
    r.expect(READY)
    check(not os.path.lexists(outside) and os.path.exists(r.app + outside), "written outside")


@case()
def device_nodes(r):
    # As root the nodes are made below APP; without privileges the extraction fails and
    # rolls back. Either way nothing outside the application is touched.
    old = r.install_old()
    r.run(r.bundle(package=tar([("Contents/dev-null", b"", 0o666, tarfile.CHRTYPE),
                                ("Contents/pipe", b"", 0o644, tarfile.FIFOTYPE)])))
    check(READY in r.log() or ROLLBACK in r.log(), "neither success nor rollback logged")
    if ROLLBACK in r.log():
        r.expect_app(old, "the old application after the rollback")


@case("names_under_C", "names_under_POSIX", "names_without_LANG", "names_under_UTF_8")
def non_ascii_names_install_under_every_locale(r, name):
    env = {k: v for k, v in r.env().items() if not k.startswith(("LC_", "LANG"))}
    env.update({"names_under_C": {"LC_ALL": "C"}, "names_under_POSIX": {"LC_ALL": "POSIX"},
                "names_without_LANG": {}, "names_under_UTF_8": {"LANG": "C.UTF-8"}}[name])
    package = client_package(r, [(n, n.encode(), 0o644, tarfile.REGTYPE) for n in (
        "Contents/Resources/fr.lproj/Préférences.strings", "Contents/Resources/ja.lproj/設定.txt")])
    r.run(r.bundle(package=package), env=env)
    r.expect(READY)
    expect_files(r, members(package))


@case(slow=True)
def many_tiny_entries(r):
    # Written from memory and compared with its members: the launcher does most of the writing.
    extra = [(f"Contents/Resources/data/d{i // 200:03d}/f{i:05d}.bin", b"%032d" % i, 0o644,
              tarfile.REGTYPE) for i in range(100_000)]
    package = client_package(r, extra, "w:gz")
    r.install_old()
    r.run(r.bundle(package=package), timeout=1500)
    r.expect(READY)
    expect_files(r, members(package))


INFO_CASES = {  # the shipped INFO: the line it gives, and whether it upgrades
    "info_empty": (b"", "target_version = (, , , )", False),
    "info_binary": (bytes(range(256)) * 64, "target_version = (", False),
    "info_huge": (b"[Version]\n" + b"".join(b"key%d=%s\n" % (i, b"x" * 100)
                                          for i in range(200_000)), "target_version = (, , , )", False),
    "info_40_digit_build": (b"[Version]\nbuild_version=" + b"1234567890" * 4 + b"\n",
                            "target_version = (, , " + "1234567890" * 4 + ", )", True),
}


@case(*INFO_CASES, slow=("info_huge",))
def malformed_info(r, name):
    content, line, upgrades = INFO_CASES[name]
    old = r.install_old()
    r.run(r.bundle(info=content))
    r.expect(line, READY if upgrades else "no need to upgrade")
    if not upgrades:
        r.expect_app(old, "the old application")


@case("level_file_malformed", "level_file_huge", slow=("level_file_huge",))
def malformed_level_file(r, name):
    old = r.install_old()
    exe = r.bundle()
    with open(f"{r.work}/New.app/log/launcher.debug", "wb") as f:
        f.write(b"launcher_debug\n=7\nservice_debug=seven\n\"unterminated=7\n\xff\xfe=1\n"
                if name == "level_file_malformed" else
                b"".join(b"component%d=7\n" % i for i in range(500_000)))
    r.run(exe)
    check(common.tree_digest(r.app) not in (None, old), "the upgrade did not happen")


@case()
def full_filesystem(r):
    if subprocess.run(["unshare", "-m", "true"], capture_output=True).returncode != 0:
        print("SKIPPED: mount namespaces are not allowed here")
        return
    old = r.install_old()
    with open(os.path.join(r.trees["new"], "Contents/Resources/big.bin"), "wb") as f:
        f.write(os.urandom(8 << 20))
    exe, saved, after = r.bundle(), f"{r.work}/saved", f"{r.work}/after"
    shutil.copytree(r.user, saved, symlinks=True)
    os.makedirs(after)
    script = (f'set -e; mount -t tmpfs -o size=4m tmpfs "$HOME/.SkeldaBackup"; '
              f'cp -a "{saved}/." "$HOME/.SkeldaBackup/"; "{exe}"; '
              f'cp -a "$HOME/.SkeldaBackup/." "{after}/"')
    subprocess.run(["unshare", "-m", "--propagation", "private", "sh", "-c", script],
                   env=r.env(), stdout=subprocess.DEVNULL, check=True, timeout=300)
    check(ROLLBACK in open(f"{after}/log/launcher.log").read(), "no rollback logged")
    check(common.tree_digest(f"{after}/Skelda.app") == old, "the old application is not back")


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--build", required=True)
    ap.add_argument("--case")
    ap.add_argument("--list", action="store_true")
    args = ap.parse_args()
    if args.list:
        print("\n".join(name + (" slow" if name in SLOW else "") for name in CASES))
        return 0
    work = tempfile.mkdtemp(prefix=f"skelda-{args.case}-")
    r = Run(work, common.launcher_binary(args.build))
    fn, name = CASES[args.case]
    try:
        fn(r, name) if fn.__code__.co_argcount == 2 else fn(r)
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
