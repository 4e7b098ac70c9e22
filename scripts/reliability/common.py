"""Shared pieces of the reliability scripts: bundles, throw-away homes, tree digests, and
the clients that a run started (found by their HOME, so nothing else is ever signalled)."""

import ctypes
import hashlib
import os
import shutil
import signal
import subprocess
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
MAKE_BUNDLE = os.path.join(ROOT, "tools", "make-bundle.sh")
SAMPLE_CLIENT = os.path.join(ROOT, "tools", "sample-client", "skelda-backup-ui")


def launcher_binary(build_dir):
    path = os.path.join(build_dir, "ui-client", "launcher", "skelda-launcher")
    if not os.access(path, os.X_OK):
        raise SystemExit(f"no launcher at {path}: build first (scripts/test.sh)")
    return path


def make_client_tree(folder, files, size, seed, per_folder=200):
    """A client application folder: the sample client plus `files` filler files,
    `per_folder` to a folder."""
    macos = os.path.join(folder, "Contents", "MacOS")
    os.makedirs(macos)
    shutil.copy(SAMPLE_CLIENT, os.path.join(macos, "skelda-backup-ui"))
    os.chmod(os.path.join(macos, "skelda-backup-ui"), 0o755)
    for i in range(files):
        sub = os.path.join(folder, "Contents", "Resources", "data", f"d{i // per_folder:03d}")
        os.makedirs(sub, exist_ok=True)
        with open(os.path.join(sub, f"f{i:05d}.bin"), "wb") as out:
            out.write(hashlib.sha256(f"{seed}-{i}".encode()).digest() * (size // 32))


def make_bundle(launcher, client, version, out, debug_all=True, compress="gzip", prefix=()):
    """Runs the bundle tool (behind `prefix`, a command that runs its arguments)."""
    cmd = [*prefix, MAKE_BUNDLE, "--launcher", launcher, "--client", client, "--version", version,
           "--out", out, "--compress", compress]
    if debug_all:
        cmd += ["--debug", "all"]
    subprocess.run(cmd, check=True, stdout=subprocess.DEVNULL)
    return os.path.join(out, "Contents", "MacOS", "skelda-launcher")


def tree_digest(folder):
    """Digest of names, types, link targets and file contents below folder; None if absent."""
    if not os.path.isdir(folder) or os.path.islink(folder):
        return None
    h = hashlib.sha256()
    for base, dirs, files in os.walk(folder):
        dirs.sort()
        rel = os.path.relpath(base, folder)
        h.update(f"D {rel}\n".encode())
        for name in sorted(files):
            p = os.path.join(base, name)
            if os.path.islink(p):
                h.update(f"L {rel}/{name} {os.readlink(p)}\n".encode())
                continue
            h.update(f"F {rel}/{name}\n".encode())
            with open(p, "rb") as f:
                h.update(hashlib.sha256(f.read()).digest())
    return h.hexdigest()


def env_for(home, **extra):
    env = dict(os.environ)
    env.update(HOME=home, QT_QPA_PLATFORM="offscreen", LANG="C.UTF-8", LC_ALL="C.UTF-8")
    env.update(extra)
    return env


def processes_of_home(home):
    """Pids of the processes with HOME=home in their environment or home as their working
    folder: the clients this run started. Both, since a process in the middle of an exec
    shows an empty environment for a moment, and the sample client execs twice (its script,
    then sleep) right after it writes ui.pid."""
    needle = f"HOME={home}".encode()
    pids = []
    for name in os.listdir("/proc"):
        if not name.isdigit() or int(name) == os.getpid():
            continue
        try:
            if os.readlink(f"/proc/{name}/cwd") == home:
                pids.append(int(name))
                continue
        except OSError:
            pass
        try:
            with open(f"/proc/{name}/environ", "rb") as f:
                if needle in f.read().split(b"\0"):
                    pids.append(int(name))
        except OSError:
            pass
    return pids


def kill_processes_of_home(home):
    for pid in processes_of_home(home):
        try:
            os.kill(pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
    deadline = time.time() + 5
    while processes_of_home(home) and time.time() < deadline:
        time.sleep(0.05)


def adopt_orphans():
    """Makes this process the new parent of every orphan among its descendants (Linux's
    child subreaper): a client that a launcher started detached stays this process's own
    child when the launcher ends, whatever its environment, and end_descendants finds it."""
    if ctypes.CDLL(None, use_errno=True).prctl(36, 1, 0, 0, 0) != 0:  # PR_SET_CHILD_SUBREAPER
        raise OSError(ctypes.get_errno(), "prctl(PR_SET_CHILD_SUBREAPER)")


def end_descendants():
    """SIGKILLs and reaps this process's children until it has none left; after
    adopt_orphans, that is every process it started, directly or not."""
    me = str(os.getpid())
    while True:
        for name in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{name}/stat") as f:
                    if f.read().rsplit(")", 1)[1].split()[1] == me:  # the parent's pid
                        os.kill(int(name), signal.SIGKILL)
            except (OSError, IndexError):
                pass
        try:
            if os.waitpid(-1, os.WNOHANG)[0] == 0:
                time.sleep(0.02)
        except ChildProcessError:
            return


def new_home(parent, name="home"):
    home = tempfile.mkdtemp(prefix=name + "-", dir=parent)
    return home


def fresh_copy(folder, work, prefix):
    """A copy of folder (a template home), at a new name in work."""
    home = tempfile.mkdtemp(prefix=prefix, dir=work)
    shutil.rmtree(home)
    shutil.copytree(folder, home, symlinks=True)
    return home


def end_first_client(home):
    """Ends the client that a first installation started, and drops its pid file. The
    client starts detached and writes that file itself: wait for it first, so that no late
    client writes it again."""
    pid_file = os.path.join(home, ".SkeldaBackup", "ui.pid")
    deadline = time.time() + 30
    while not os.path.exists(pid_file) and time.time() < deadline:
        time.sleep(0.05)
    kill_processes_of_home(home)
    os.remove(pid_file)


class Upgrade:
    """An upgrade from build 100 to build 200 of a client of `files` filler files, set up in
    work: the bundles Old.app and New.app, `template`, a home with build 100 installed by its
    own launcher (a first installation, its client stopped, no log folder), and the tree
    digests `old` of that installation and `new` of the package that New.app ships."""

    def __init__(self, work, launcher_bin, files, size, per_folder=200):
        old_tree, new_tree = os.path.join(work, "old-client"), os.path.join(work, "new-client")
        make_client_tree(old_tree, files, size, "old", per_folder)
        make_client_tree(new_tree, files, size, "new", per_folder)
        self.old_launcher = make_bundle(launcher_bin, old_tree, "1.0.100", f"{work}/Old.app")
        self.new_launcher = make_bundle(launcher_bin, new_tree, "1.0.200", f"{work}/New.app")

        self.template = os.path.join(work, "template")
        os.makedirs(self.template)
        subprocess.run([self.old_launcher], env=env_for(self.template), check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)
        end_first_client(self.template)
        self.user = os.path.join(self.template, ".SkeldaBackup")
        shutil.rmtree(os.path.join(self.user, "log"))
        self.old = tree_digest(os.path.join(self.user, "Skelda.app"))

        self.reference = os.path.join(work, "reference")
        os.makedirs(self.reference)
        subprocess.run(["bsdtar", "-xf", f"{work}/New.app/Contents/Resources/package/skelda.vpk",
                        "-C", self.reference], check=True)
        self.new = tree_digest(self.reference)
