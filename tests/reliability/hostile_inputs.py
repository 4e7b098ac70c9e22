#!/usr/bin/env python3
"""Hostile and damaged inputs, each through the real launcher in a bundle, with HOME in a
throw-away folder. For every case: exit status 0, no crash or hang, the expected log line,
and nothing of a working installation lost.

  hostile_inputs.py --build BUILD_DIR --case NAME     one case (CTest runs them one by one)
  hostile_inputs.py --build BUILD_DIR --list          the case names
"""

import argparse
import io
import os
import shutil
import subprocess
import sys
import tarfile
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)),
                                "..", "..", "scripts", "reliability"))
import common  # noqa: E402

OLD, NEW = "1.0.100", "1.0.200"
# Seconds one launcher run may take; the cases that write very many files get more, as a
# slow shared disk in CI needs minutes for them.
TIMEOUT = 300
SLOW_TIMEOUT = 1500


class Case:
    """A work folder with an old client installed by its own launcher, and helpers to
    build the bundle under test and run it."""

    def __init__(self, work, launcher_bin, home_name="home"):
        self.work = work
        self.launcher_bin = launcher_bin
        self.home = os.path.join(work, home_name)
        os.makedirs(self.home)
        self.user = os.path.join(self.home, ".SkeldaBackup")
        self.app = os.path.join(self.user, "Skelda.app")
        self.old_tree = os.path.join(work, "old-client")
        common.make_client_tree(self.old_tree, 20, 512, "old")
        self.new_tree = os.path.join(work, "new-client")
        common.make_client_tree(self.new_tree, 20, 512, "new")

    def install_old(self):
        launcher = common.make_bundle(self.launcher_bin, self.old_tree, OLD, f"{self.work}/Old.app")
        self.run(launcher)
        common.end_first_client(self.home)
        return common.tree_digest(self.app)

    def bundle(self, version=NEW, package=None):
        """The new bundle; `package` (bytes or a path) replaces its package archive."""
        launcher = common.make_bundle(self.launcher_bin, self.new_tree, version,
                                      f"{self.work}/New.app")
        vpk = f"{self.work}/New.app/Contents/Resources/package/skelda.vpk"
        if isinstance(package, bytes):
            with open(vpk, "wb") as f:
                f.write(package)
        elif package:
            shutil.copy(package, vpk)
        return launcher

    def package_bytes(self):
        return read(f"{self.work}/New.app/Contents/Resources/package/skelda.vpk")

    def run(self, launcher, env=None, user=None, timeout=TIMEOUT):
        cmd = [launcher]
        if user:  # run as another user, with setpriv from util-linux
            cmd = ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups"] + cmd
        # Output goes to a file, not a pipe: the client that the launcher starts inherits it
        # and keeps running, so a pipe would never reach its end.
        with tempfile.TemporaryFile() as err:
            proc = subprocess.run(cmd, env=env or common.env_for(self.home),
                                  stdout=subprocess.DEVNULL, stderr=err, timeout=timeout)
            err.seek(0)
            self.stderr = err.read().decode(errors="replace")
        if proc.returncode != 0:
            raise Failure(f"exit status {proc.returncode}; stderr:\n{self.stderr[-2000:]}")

    def log(self):
        path = os.path.join(self.user, "log", "launcher.log")
        return read(path).decode(errors="replace") if os.path.exists(path) else ""

    def expect_log(self, text):
        if text not in self.log():
            raise Failure(f"log lacks {text!r}; log:\n{self.log()[-3000:]}")

    def expect_app(self, digest, what):
        if common.tree_digest(self.app) != digest:
            raise Failure(f"APP is not {what}")

    def new_digest(self):
        ref = os.path.join(self.work, "reference")
        os.makedirs(ref, exist_ok=True)
        subprocess.run(["bsdtar", "-xf", f"{self.work}/New.app/Contents/Resources/package/skelda.vpk",
                        "-C", ref], check=True)
        return common.tree_digest(ref)

    def finish(self):
        common.kill_processes_of_home(self.home)


class Failure(Exception):
    pass


def read(path):
    with open(path, "rb") as f:
        return f.read()


def tar_bytes(entries, mode="w"):
    """A tar archive from (TarInfo, data) pairs, names kept exactly as given."""
    buf = io.BytesIO()
    with tarfile.open(fileobj=buf, mode=mode, format=tarfile.PAX_FORMAT) as tar:
        for info, data in entries:
            info.size = len(data or b"")
            tar.addfile(info, io.BytesIO(data) if data else None)
    return buf.getvalue()


def file_info(name, mode=0o644, kind=tarfile.REGTYPE):
    info = tarfile.TarInfo(name)
    info.mode, info.type = mode, kind
    return info


ROLLBACK = "Failed to extract package, rollback to old installation"


def damaged_package(case, package, first_line):
    old = case.install_old()
    case.run(case.bundle(package=package))
    case.expect_log(first_line)
    case.expect_log(ROLLBACK)
    case.expect_log("Failed to upgrade package")
    case.expect_app(old, "the old application, byte for byte")


def case_empty_package(case):
    damaged_package(case, b"", "Failed to calculate total file numbers, ret: 0")


def case_not_an_archive(case):
    damaged_package(case, os.urandom(64 * 1024), "Failed to calculate total file numbers, ret: ")


def case_truncated_package(case):
    case.bundle()
    data = case.package_bytes()
    # Where a cut lands decides which libarchive call notices it; the extractor logs it.
    damaged_package(case, data[: len(data) // 2], "[ERROR] extractor.cpp(")


def case_dotdot_entry(case):
    escape = os.path.join(case.user, "escaped")
    package = tar_bytes([(file_info("Contents/ok"), b"fine"),
                         (file_info("../../escaped"), b"evil")])
    damaged_package(case, package, "archive_read_extract2 failed")
    if os.path.lexists(escape):
        raise Failure("an entry with '..' was written outside the application")


def case_absolute_names(case):
    outside = os.path.join(case.work, "absolute-target")
    case.bundle()
    mac = read(os.path.join(case.new_tree, "Contents/MacOS/skelda-backup-ui"))
    package = tar_bytes([(file_info(outside), b"abs"),
                         (file_info("Contents/MacOS/skelda-backup-ui", 0o755), mac),
                         (file_info("Contents/Resources/INFO"),
                          b"[Version]\nbuild_version=200\n")])
    case.install_old()
    case.run(case.bundle(package=package))
    case.expect_log("user installation is ready, removing backup app")
    if os.path.lexists(outside):
        raise Failure("an absolute entry name was written outside the application")
    if not os.path.exists(case.app + outside):
        raise Failure("the absolute entry was not kept below the application")


def case_device_nodes(case):
    old = case.install_old()
    node = file_info("Contents/dev-null", 0o666, tarfile.CHRTYPE)
    node.devmajor, node.devminor = 1, 3
    fifo = file_info("Contents/pipe", 0o644, tarfile.FIFOTYPE)
    case.run(case.bundle(package=tar_bytes([(node, None), (fifo, None)])))
    # Without a version file the result reads as out of date, and no file outside the
    # application is touched; whether the nodes can be made depends on the privileges.
    log = case.log()
    if ROLLBACK not in log and "user installation is ready" not in log:
        raise Failure("neither success nor rollback logged")
    if ROLLBACK in log:
        case.expect_app(old, "the old application after the rollback")


def case_many_tiny_entries(case):
    # The package is written straight from memory and the result compared with its members,
    # so that the launcher, not the test, does most of the writing to disk.
    client = read(os.path.join(case.new_tree, "Contents/MacOS/skelda-backup-ui"))
    members = {"Contents/MacOS/skelda-backup-ui": client}
    for i in range(100_000):
        members[f"Contents/Resources/data/d{i // 200:03d}/f{i:05d}.bin"] = b"%032d" % i
    entries = [(file_info(name, 0o755 if "MacOS" in name else 0o644), data)
               for name, data in members.items()]
    case.install_old()
    case.run(case.bundle(package=tar_bytes(entries, "w:gz")), timeout=SLOW_TIMEOUT)
    case.expect_log("user installation is ready, removing backup app")
    found = 0
    for base, _, files in os.walk(case.app):
        for name in files:
            path = os.path.join(base, name)
            if read(path) != members.get(os.path.relpath(path, case.app)):
                raise Failure(f"{path} is not the package's entry")
            found += 1
    if found != len(members):
        raise Failure(f"{found} files extracted of {len(members)}")


def case_sparse_2gb_entry(case):
    tree = os.path.join(case.work, "sparse-client")
    shutil.copytree(case.new_tree, tree)
    with open(os.path.join(tree, "Contents", "Resources", "sparse.img"), "wb") as f:
        f.truncate(2 * 1024 ** 3)
    case.new_tree = tree
    case.install_old()
    case.run(case.bundle())
    case.expect_log("user installation is ready, removing backup app")
    size = os.path.getsize(os.path.join(case.app, "Contents", "Resources", "sparse.img"))
    if size != 2 * 1024 ** 3:
        raise Failure(f"sparse entry extracted with size {size}")


def info_case(case, content, expect):
    old = case.install_old()
    launcher = case.bundle()
    with open(f"{case.work}/New.app/Contents/Resources/INFO", "wb") as f:
        f.write(content)
    case.run(launcher)
    case.expect_log(expect)
    return old


def case_info_empty(case):
    old = info_case(case, b"", "target_version = (, , , )")
    case.expect_log("no need to upgrade")
    case.expect_app(old, "the old application (an empty target file means no upgrade)")


def case_info_binary(case):
    old = info_case(case, bytes(range(256)) * 64, "target_version = (")
    case.expect_log("no need to upgrade")
    case.expect_app(old, "the old application")


def case_info_huge(case):
    big = b"[Version]\n" + b"".join(b"key%d=%s\n" % (i, b"x" * 100) for i in range(200_000))
    old = info_case(case, big, "target_version = (, , , )")
    case.expect_log("no need to upgrade")
    case.expect_app(old, "the old application")


def case_info_40_digit_build(case):
    info_case(case, b"[Version]\nbuild_version=1234567890123456789012345678901234567890\n",
              "target_version = (, , 1234567890123456789012345678901234567890, )")
    case.expect_log("user installation is ready, removing backup app")


def pid_case(case, pid_text, expect_line=None):
    case.install_old()
    with open(os.path.join(case.user, "ui.pid"), "w") as f:
        f.write(pid_text)
    case.run(case.bundle())
    case.expect_log("user installation is ready, removing backup app")
    if expect_line:
        case.expect_log(expect_line)
    if "kill: " in case.log() and not expect_line:
        raise Failure("a signal was attempted")


def case_pid_zero(case):
    pid_case(case, "pid=0\n")


def case_pid_minus_one(case):
    pid_case(case, "pid=-1\n")


def case_pid_garbage(case):
    pid_case(case, "pid=\x01\x02garbage\xff\n")


def case_pid_unused_number(case):
    with open("/proc/sys/kernel/pid_max") as f:
        pid_max = int(f.read())
    pid_case(case, f"pid={pid_max + 1}\n")  # above pid_max: no process can have it


def case_pid_other_user(case):
    # A process of another user: the test's own child (run as root) while the launcher runs
    # as "nobody", so that its signals are refused.
    sleeper = subprocess.Popen(["sleep", "600"])
    try:
        os.chmod(case.work, 0o755)
        case.install_old()
        launcher = case.bundle()
        with open(os.path.join(case.user, "ui.pid"), "w") as f:
            f.write(f"pid={sleeper.pid}\n")
        subprocess.run(["chown", "-R", "65534:65534", case.home], check=True)
        case.run(launcher, user=65534)
        case.expect_log("kill: Operation not permitted (1)")
        case.expect_log("user installation is ready, removing backup app")
        if sleeper.poll() is not None:
            raise Failure("the other user's process was signalled")
    finally:
        sleeper.kill()
        sleeper.wait()


def level_case(case, content):
    old = case.install_old()
    launcher = case.bundle()
    with open(f"{case.work}/New.app/log/launcher.debug", "wb") as f:
        f.write(content)
    case.run(launcher)
    if common.tree_digest(case.app) in (None, old):
        raise Failure("the upgrade did not happen")


def case_level_file_malformed(case):
    level_case(case, b"launcher_debug\n=7\nservice_debug=seven\n\"unterminated=7\n\xff\xfe=1\n")


def case_level_file_huge(case):
    level_case(case, b"".join(b"component%d=7\n" % i for i in range(500_000)))


def case_home_non_ascii(case):
    home_case = Case(os.path.join(case.work, "w"), case.launcher_bin, "Hôme Földer 家 with blanks")
    try:
        home_case.install_old()
        home_case.run(home_case.bundle())
        home_case.expect_log("user installation is ready, removing backup app")
        home_case.expect_app(home_case.new_digest(), "the new package")
    finally:
        home_case.finish()


def case_full_filesystem(case):
    old = case.install_old()
    big = os.path.join(case.new_tree, "Contents", "Resources", "big.bin")
    with open(big, "wb") as f:
        f.write(os.urandom(8 * 1024 * 1024))
    launcher = case.bundle()
    saved = os.path.join(case.work, "saved-user")
    shutil.copytree(case.user, saved, symlinks=True)
    script = f"""
        set -e
        mount -t tmpfs -o size=4m tmpfs "$HOME/.SkeldaBackup"
        cp -a "{saved}/." "$HOME/.SkeldaBackup/"
        "{launcher}"
        cp -a "$HOME/.SkeldaBackup/." "{case.work}/after/"
    """
    os.makedirs(os.path.join(case.work, "after"))
    probe = subprocess.run(["unshare", "-m", "--propagation", "private", "true"],
                           capture_output=True)
    if probe.returncode != 0:
        print("SKIPPED: mount namespaces are not allowed here")
        return
    with tempfile.TemporaryFile() as err:
        proc = subprocess.run(["unshare", "-m", "--propagation", "private", "sh", "-c", script],
                              env=common.env_for(case.home), stdout=subprocess.DEVNULL,
                              stderr=err, timeout=TIMEOUT)
        err.seek(0)
        if proc.returncode != 0:
            raise Failure(f"run on a full file system failed: {err.read().decode()[-2000:]}")
    after = os.path.join(case.work, "after")
    log = read(os.path.join(after, "log", "launcher.log")).decode(errors="replace")
    if ROLLBACK not in log:
        raise Failure(f"no rollback logged:\n{log[-3000:]}")
    if common.tree_digest(os.path.join(after, "Skelda.app")) != old:
        raise Failure("the old application is not back byte for byte")


CASES = {name[5:]: fn for name, fn in globals().items() if name.startswith("case_")}


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--build", required=True)
    ap.add_argument("--case")
    ap.add_argument("--list", action="store_true")
    args = ap.parse_args()
    if args.list:
        print("\n".join(CASES))
        return 0
    launcher_bin = common.launcher_binary(args.build)
    work = tempfile.mkdtemp(prefix=f"skelda-hostile-{args.case}-")
    case = Case(work, launcher_bin)
    try:
        CASES[args.case](case)
    except Failure as e:
        print(f"FAILED {args.case}: {e}\nwork folder kept: {work}")
        return 1
    finally:
        case.finish()
    shutil.rmtree(work, ignore_errors=True)
    print(f"ok {args.case}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
