#!/usr/bin/env python3
"""Cuts the power, on paper, at chosen moments of a real upgrade, then starts the launcher
on each state the disk could be left in, and checks that the client ends whole.

One upgrade (build 100 installed, a bundle shipping build 200) runs under strace, which
records its file operations. From the record and a persistence model, each state is built
as a real home folder; the next launcher of the same bundle runs on it normally, and
afterwards Skelda.app must be the package byte for byte.

The persistence model (that of ext4's ordered journal, simplified):
  - the home before the run is durable;
  - namespace operations (create, mkdir, rename, unlink, rmdir, link, symlink, truncate)
    persist in the order they were made: after a cut at moment t, a prefix of them
    persists, of any length from the last barrier before t up to t. Every fsync,
    fdatasync, syncfs and sync is a barrier for the namespace operations made before it
    began;
  - a file's data persists once an fsync or fdatasync of it, or a syncfs or sync, came
    after its last write; sync_file_range only starts the writeback and makes nothing
    durable. Any subset of the other files may come back empty: the name is there, the
    data is not. A file that is kept keeps the bytes written to it before the cut;
  - only the Skelda.app* trees of the per-user installation are modelled; its log folder,
    upgrade.lock and ui.pid are copied from the home before the run.
Not covered: namespace operations persisting out of order, a write torn inside a file, a
drive that acknowledges a flush it keeps in its cache, file systems other than ext4's
ordered mode, and the client's own files.

The moments: always right after the extraction (its last write, before the first removal
in a backup), right after the backup's removal and after the end of the run, with every
namespace operation made so far persisted; then seeded random places between any two
recorded calls, with a persisted prefix drawn between the last barrier and the cut;
for each, a seeded random subset of the unsynced files lost, all of them, none, and all
but the one written last.
--no-flush records the run with every flush turned into a no-op (strace's syscall
injection): what a launcher without its flushes would leave."""

import argparse
import bisect
import codecs
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

import common

TRACED = ("open,openat,creat,write,pwrite64,writev,pwritev,pwritev2,rename,renameat,renameat2,"
          "unlink,unlinkat,mkdir,mkdirat,rmdir,link,linkat,symlink,symlinkat,truncate,"
          "ftruncate,fsync,fdatasync,syncfs,sync,sync_file_range,close,chdir")
FLUSHES = "fsync,fdatasync,syncfs,sync,sync_file_range"
APP = "Skelda.app"
UNKNOWN = b"contents unknown: the file was removed before the recorded run ended\n"


# ---- The record: strace's lines, as calls with their arguments ----

CALL = re.compile(r"^(\w+)\((.*)\)\s+= (.*)$", re.S)
FD = re.compile(r"^(-?\d+|AT_FDCWD)<(.*)>$", re.S)


def unquote(text):
    return codecs.escape_decode(text.encode("utf-8", "surrogateescape"))[0].decode(
        "utf-8", "surrogateescape")


def split_args(text):
    """The top-level arguments of a call: commas inside strings, <paths>, [] and {} are
    not separators."""
    args, depth, start, i, quote = [], 0, 0, 0, False
    while i < len(text):
        c = text[i]
        if quote:
            if c == "\\":
                i += 1
            elif c == '"':
                quote = False
        elif c == '"':
            quote = True
        elif c in "<[{":
            depth += 1
        elif c in ">]}":
            depth -= 1
        elif c == "," and depth == 0:
            args.append(text[start:i].strip())
            start = i + 1
        i += 1
    args.append(text[start:].strip())
    return args


def read_record(path):
    """(name, args, return text, start) of each completed call, in the order they completed,
    where start is the number of calls completed before it began; a call that another
    thread interrupted is joined again."""
    pending, calls = {}, []
    with open(path, encoding="utf-8", errors="surrogateescape") as f:
        for line in f:
            pid, _, rest = line.rstrip("\n").partition(" ")
            rest = rest.lstrip()
            if rest.endswith("<unfinished ...>"):
                pending[pid] = (rest[:-len("<unfinished ...>")].rstrip(), len(calls))
                continue
            start = len(calls)
            resumed = re.match(r"^<\.\.\. \w+ resumed>(.*)$", rest, re.S)
            if resumed:
                before, start = pending.pop(pid, ("", start))
                rest = before + resumed.group(1)
            m = CALL.match(rest)
            if m:
                calls.append((m.group(1), split_args(m.group(2)), m.group(3), start))
    return calls


# ---- The inode model ----

class Node:
    def __init__(self, ident, kind, source=None, target=None):
        self.id, self.kind, self.source, self.target = ident, kind, source, target
        self.children = {} if kind == "d" else None


class Tree:
    """Names below the home folder mapped to inodes; a folder's rename carries its subtree."""

    def __init__(self, home):
        self.home = home
        self.root = Node(-1, "d", home)

    def copy(self):
        other = Tree(self.home)
        def clone(node):
            c = Node(node.id, node.kind, node.source, node.target)
            if node.children is not None:
                c.children = {n: clone(ch) for n, ch in node.children.items()}
            return c
        other.root = clone(self.root)
        return other

    def parts(self, path):
        rel = os.path.relpath(path, self.home)
        return None if rel.startswith("..") else [p for p in rel.split("/") if p not in ("", ".")]

    def lookup(self, path, parent=False):
        parts = self.parts(path)
        if parts is None or (parent and not parts):
            return None
        node = self.root
        for name in parts[:-1] if parent else parts:
            node = node.children.get(name) if node and node.children is not None else None
        if parent:
            return (node, parts[-1]) if node and node.children is not None else None
        return node

    def apply(self, op):
        kind, args = op[0], op[1:]
        if kind in ("create", "mkdir", "symlink"):
            where = self.lookup(args[0], parent=True)
            if where:
                where[0].children[where[1]] = Node(args[1], {"create": "f", "mkdir": "d",
                                                             "symlink": "l"}[kind],
                                                   target=args[2] if kind == "symlink" else None)
        elif kind in ("unlink", "rmdir"):
            where = self.lookup(args[0], parent=True)
            if where:
                where[0].children.pop(where[1], None)
        elif kind in ("rename", "link", "exchange"):
            src, dst = self.lookup(args[0], parent=True), self.lookup(args[1], parent=True)
            if src and dst and src[1] in src[0].children:
                node = src[0].children[src[1]]
                if kind == "exchange":
                    src[0].children[src[1]] = dst[0].children[dst[1]]
                elif kind == "rename":
                    del src[0].children[src[1]]
                dst[0].children[dst[1]] = node

    def walk(self, node=None, path=None):
        """(path, node) of every name below node (the home folder by default)."""
        node, path = node or self.root, path or self.home
        for name, child in node.children.items():
            yield os.path.join(path, name), child
            if child.children is not None:
                yield from self.walk(child, os.path.join(path, name))


def modelled(home, path):
    """Whether path lies in a Skelda.app* tree of the per-user installation."""
    rel = os.path.relpath(path, os.path.join(home, ".SkeldaBackup")).split("/")[0]
    return rel.startswith(APP)


def starting_tree(home, snapshot):
    """The model of home before the run, whose contents are those of snapshot."""
    tree = Tree(home)
    user = Node(-2, "d", os.path.join(snapshot, ".SkeldaBackup"))
    tree.root.children[".SkeldaBackup"] = user
    ident = 0
    def add(parent, path):
        nonlocal ident
        for name in sorted(os.listdir(path)):
            p = os.path.join(path, name)
            kind = "l" if os.path.islink(p) else "d" if os.path.isdir(p) else "f"
            node = parent.children[name] = Node(ident, kind, p,
                                                os.readlink(p) if kind == "l" else None)
            ident += 1
            if kind == "d":
                add(node, p)
    for name in sorted(os.listdir(user.source)):
        if name.startswith(APP):
            p = os.path.join(user.source, name)
            user.children[name] = Node(ident, "d", p)
            ident += 1
            add(user.children[name], p)
    return tree, ident


class Record:
    """The recorded run, as the model sees it: `ops`, the namespace operations in order;
    `data`, the writes and flushes in order, each with the number of namespace operations
    made before it (`positions`). A flush also holds the number made before it began: those
    it makes durable, as a barrier."""

    def __init__(self, calls, home, snapshot):
        self.home = home
        self.start, next_id = starting_tree(home, snapshot)
        cwd = home
        self.live = self.start.copy()
        self.ops, self.data = [], []
        self.injected = self.sync_hints = 0
        ops_before = []  # namespace operations made before each call completed
        for name, args, ret, start in calls:
            ops_before.append(len(self.ops))
            if ret.startswith("-1 ") or ret.startswith("?"):
                continue
            if ret.endswith("(INJECTED)"):
                self.injected += 1
                continue
            if name == "chdir":
                cwd = os.path.join(cwd, unquote(args[0][1:-1]))
                continue
            # A flush is a barrier for the namespace operations made before it began.
            next_id = self.call(name, args, ret, cwd, next_id, ops_before[start])
        self.positions = [d[0] for d in self.data]

    def path(self, args, i, dirfd=None, cwd=None):
        """The absolute path of string argument i, relative to the folder of argument
        dirfd (its annotation) or to cwd."""
        text = unquote(args[i][1:-1])
        if os.path.isabs(text):
            return os.path.normpath(text)
        base = cwd
        if dirfd is not None:
            m = FD.match(args[dirfd])
            base = unquote(m.group(2)) if m else cwd
        return os.path.normpath(os.path.join(base, text))

    def fd_path(self, arg):
        m = FD.match(arg)
        return unquote(m.group(2)) if m else None

    def op(self, *op):
        self.ops.append(op)
        self.live.apply(op)

    def truncate(self, path, node, length):
        """A size change: a namespace operation (the old contents go) and a write."""
        self.op("truncate", path, node.id)
        self.data.append((len(self.ops), "write", node.id, ("set", length)))

    def call(self, name, args, ret, cwd, next_id, began):
        home = self.home
        if name in ("open", "openat", "creat"):
            path = self.path(args, 1, 0) if name == "openat" else self.path(args, 0, cwd=cwd)
            flags = "O_CREAT|O_TRUNC" if name == "creat" else args[2 if name == "openat" else 1]
            if not modelled(home, path) or "O_TMPFILE" in flags:
                return next_id
            node = self.live.lookup(path)
            if node is None and "O_CREAT" in flags:
                self.op("create", path, next_id)
                return next_id + 1
            if node is not None and node.kind == "f" and "O_TRUNC" in flags:
                self.truncate(path, node, 0)
        elif name in ("mkdir", "mkdirat"):
            path = self.path(args, 1, 0) if name == "mkdirat" else self.path(args, 0, cwd=cwd)
            if modelled(home, path):
                self.op("mkdir", path, next_id)
                return next_id + 1
        elif name in ("unlink", "unlinkat", "rmdir"):
            path = self.path(args, 1, 0) if name == "unlinkat" else self.path(args, 0, cwd=cwd)
            removes_dir = name == "rmdir" or (name == "unlinkat" and "AT_REMOVEDIR" in args[2])
            if modelled(home, path):
                self.op("rmdir" if removes_dir else "unlink", path)
        elif name in ("rename", "renameat", "renameat2", "link", "linkat"):
            at = name.endswith("at") or name == "renameat2"
            src = self.path(args, 1, 0) if at else self.path(args, 0, cwd=cwd)
            dst = self.path(args, 3, 2) if at else self.path(args, 1, cwd=cwd)
            if modelled(home, src) or modelled(home, dst):
                kind = "link" if name.startswith("link") else \
                       "exchange" if name == "renameat2" and "RENAME_EXCHANGE" in args[4] else "rename"
                self.op(kind, src, dst)
        elif name in ("symlink", "symlinkat"):
            path = self.path(args, 2, 1) if name == "symlinkat" else self.path(args, 1, cwd=cwd)
            if modelled(home, path):
                self.op("symlink", path, next_id, unquote(args[0][1:-1]))
                return next_id + 1
        elif name in ("write", "writev", "pwrite64", "pwritev", "pwritev2", "ftruncate",
                      "truncate"):
            path = self.path(args, 0, cwd=cwd) if name == "truncate" else self.fd_path(args[0])
            node = self.live.lookup(path) if path and modelled(home, path) else None
            if node is None or node.kind != "f":
                return next_id
            count = int(ret.split()[0])
            if name in ("ftruncate", "truncate"):
                self.truncate(path, node, int(args[1]))
            elif name.startswith("pwrite"):  # the offset is the fourth argument of all three
                self.data.append((len(self.ops), "write", node.id, ("at", int(args[3]) + count)))
            else:
                self.data.append((len(self.ops), "write", node.id, ("add", count)))
        elif name in ("fsync", "fdatasync"):
            path = self.fd_path(args[0])
            node = self.live.lookup(path) if path and modelled(home, path) else None
            self.data.append((len(self.ops), "flush", node.id if node else None, began))
        elif name in ("syncfs", "sync"):
            self.data.append((len(self.ops), "flush-all", None, began))
        elif name == "sync_file_range":
            self.sync_hints += 1
        return next_id

    def files_at(self, d):
        """For a cut after d writes and flushes: the size of each written file then, those
        whose data is not durable (in the order of their last writes), and the namespace
        operations made durable by a barrier."""
        size, durable, barrier = {}, {}, 0
        for pos, kind, ident, value in self.data[:d]:
            if kind == "write":
                how, n = value
                now = size.get(ident, 0)
                size[ident] = now + n if how == "add" else max(now, n) if how == "at" else n
                durable.pop(ident, None)
                durable[ident] = False
            else:
                barrier = max(barrier, value)
                if kind == "flush-all":
                    durable = dict.fromkeys(durable, True)
                elif ident in durable:
                    durable[ident] = True
        return size, [i for i, ok in durable.items() if not ok], barrier


# ---- States: built as real homes, then started ----

def build_state(record, template, home, k, size, lost, finals):
    """A home as a cut left it: namespace operations 0..k-1 persisted, the files of lost
    empty, the rest as in template. Returns how many files of unknown contents it holds."""
    tree = record.start.copy()
    for op in record.ops[:k]:
        tree.apply(op)
    truncated = {op[2] for op in record.ops[:k] if op[0] == "truncate"}
    shutil.copytree(template, home, symlinks=True,
                    ignore=lambda d, names: [n for n in names if d == os.path.join(
                        template, ".SkeldaBackup") and n.startswith(APP)])
    unknown = 0
    for path, node in tree.walk():
        if not modelled(record.home, path):
            continue
        path = os.path.join(home, os.path.relpath(path, record.home))
        # Contents and mode: those before the run for an old inode that was not truncated,
        # else those of the inode at the end of the recorded run.
        old = node.source and node.id not in truncated
        source = node.source if old else finals.get(node.id)
        if node.kind == "l":
            os.symlink(node.target, path)
        elif node.kind == "d":
            os.mkdir(path)
            if source:
                os.chmod(path, os.stat(source).st_mode & 0o7777)
        else:
            if old:
                shutil.copy2(node.source, path)
                continue
            if node.id in lost:
                data = b""
            elif source:
                with open(source, "rb") as f:
                    data = f.read(size.get(node.id, 0))
            else:
                data, unknown = UNKNOWN, unknown + 1
            with open(path, "wb") as f:
                f.write(data)
            if source:
                os.chmod(path, os.stat(source).st_mode & 0o7777)
    return unknown


def describe(user, reference, ran):
    """What the next run left, when it is not the package."""
    app = os.path.join(user, APP)
    if not os.path.isdir(app):
        return "no Skelda.app after the next run"
    info = os.path.join(app, "Contents", "Resources", "INFO")
    build = "no version file"
    if os.path.isfile(info):
        with open(info, errors="replace") as f:
            found = re.search(r"^build_version=(.*)$", f.read(), re.M)
        build = f"version file says build {found.group(1)}" if found else "empty version file"
    def files(root):
        return {os.path.relpath(os.path.join(b, n), root) for b, _, ns in os.walk(root)
                for n in ns}
    want, have = files(reference), files(app)
    empty = differ = 0
    for rel in want & have:
        with open(os.path.join(app, rel), "rb") as a, open(os.path.join(reference, rel), "rb") as b:
            got = a.read()
            if got != b.read():
                empty += not got
                differ += bool(got)
    missing, extra = len(want - have), len(have - want)
    log = os.path.join(user, "log", "launcher.log")
    nothing = os.path.isfile(log) and "no need to upgrade" in open(log, errors="replace").read()
    return (f"{build}; of {len(want)} files {empty} empty, {differ} different, {missing} "
            f"missing, {extra} extra; the next run {'found nothing to upgrade' if nothing else 'upgraded'}"
            f"{'' if ran == 0 else f' (exit {ran})'}")


def record_run(args, up, work):
    """Runs the launcher of New.app once under strace; returns the Record, and where each
    inode ended up (to read its contents from)."""
    home = common.fresh_copy(up.template, work, "recorded-")
    trace = os.path.join(work, "trace")
    cmd = ["strace", "-f", "-y", "-qq", "-s", "0", "--detach-on=execve", "-o", trace,
           "-e", "trace=" + TRACED]
    if args.no_flush:
        cmd += ["-e", f"inject={FLUSHES}:retval=0"]
    # The client that the run starts inherits the launcher's output: no pipe here, or a
    # read of it would wait for that client to end. A sanitized launcher's leak check stops
    # its threads with ptrace, which a process that strace traces cannot: it is left out.
    env = common.env_for(home)
    env["ASAN_OPTIONS"] = env.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
    run = subprocess.run(cmd + [up.new_launcher], env=env, cwd=home,
                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=300)
    common.end_descendants()
    if run.returncode != 0:
        raise SystemExit(f"the recorded run exited {run.returncode}")
    if common.tree_digest(os.path.join(home, ".SkeldaBackup", APP)) != up.new:
        raise SystemExit("the recorded run did not install the package: nothing to cut")
    # The home before the run was a copy of the template, which is left as it was.
    record = Record(read_record(trace), home, up.template)
    finals = {node.id: path for path, node in record.live.walk()}
    return record, finals


def cuts(record, rng):
    """(label, p, d): a cut after p namespace operations and d writes and flushes, the named
    moments first, then seeded random ones."""
    n, pos = len(record.ops), record.positions
    removal = [i for i, op in enumerate(record.ops) if op[0] in ("unlink", "rmdir") and
               os.path.relpath(op[1], os.path.join(record.home, ".SkeldaBackup")).startswith(
                   APP + "_tmp")]
    first = removal[0] if removal else n
    # The extraction ends with its last write before the first removal in the backup.
    writes = [i for i in range(bisect.bisect_right(pos, first)) if record.data[i][1] == "write"]
    if writes:
        yield "right after the extraction", pos[writes[-1]], writes[-1] + 1
    if removal:
        after = removal[-1] + 1
        yield "right after the backup removal", after, bisect.bisect_left(pos, after)
    yield "after the run's end", n, len(record.data)
    while True:
        p = rng.randint(0, n)
        yield "at a random place", p, rng.randint(bisect.bisect_left(pos, p),
                                                  bisect.bisect_right(pos, p))


def states(record, rng, count):
    """Up to count distinct states: (label, p, d, k, size, unsynced, lost), where k is the
    number of namespace operations persisted: all of them at the named moments, a number
    between the last barrier and the cut at the others."""
    seen, out = set(), []
    for tries, (label, p, d) in enumerate(cuts(record, rng)):
        if len(out) >= count or tries > 20 * count:
            return out
        size, unsynced, barrier = record.files_at(d)
        k = p if label != "at a random place" else rng.randint(barrier, p)
        tree = record.start.copy()
        for op in record.ops[:k]:
            tree.apply(op)
        present = {node.id for path, node in tree.walk() if node.kind == "f"}
        unsynced = [i for i in unsynced if i in present]
        q = rng.random()  # each file lost with this chance
        for lost in ({i for i in unsynced if rng.random() < q}, set(unsynced), set(),
                     set(unsynced[:-1])):
            key = (k, d, frozenset(lost))
            if key not in seen and len(out) < count:
                seen.add(key)
                out.append((label, p, d, k, size, unsynced, lost))
    return out


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=os.path.join(common.ROOT, "build"))
    ap.add_argument("--states", type=int, default=100)
    ap.add_argument("--seed", type=int, default=int(time.time()))
    ap.add_argument("--files", type=int, default=300, help="filler files in the client")
    ap.add_argument("--no-flush", action="store_true",
                    help="record the run with every flush turned into a no-op")
    ap.add_argument("--keep", action="store_true", help="keep the failing states' homes")
    args = ap.parse_args()
    if not shutil.which("strace"):
        raise SystemExit("no strace: scripts/install-deps.sh installs it")
    rng = random.Random(args.seed)
    launcher_bin = common.launcher_binary(args.build)

    common.adopt_orphans()
    work = os.path.realpath(tempfile.mkdtemp(prefix="skelda-power-"))
    failed = []
    try:
        up = common.Upgrade(work, launcher_bin, args.files, 256, per_folder=50)
        record, finals = record_run(args, up, work)
        writes = sum(1 for d in record.data if d[1] == "write")
        flushes = sum(1 for d in record.data if d[1] != "write")
        print(f"power cuts: seed {args.seed}, {args.files} files"
              f"{', flushes taken out' if args.no_flush else ''}")
        print(f"recorded upgrade: {len(record.ops)} namespace operations, {writes} writes, "
              f"{flushes} flushes, {record.sync_hints} writeback hints, {record.injected} "
              f"calls made no-ops", flush=True)
        chosen = states(record, rng, args.states)
        for i, (label, p, d, k, size, unsynced, lost) in enumerate(chosen):
            home = os.path.join(work, f"state-{i:03d}")
            unknown = build_state(record, up.template, home, k, size, lost, finals)
            run = subprocess.run([up.new_launcher], env=common.env_for(home), cwd=home,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                 timeout=300)
            common.end_descendants()
            user = os.path.join(home, ".SkeldaBackup")
            if run.returncode != 0 or common.tree_digest(os.path.join(user, APP)) != up.new:
                failed.append(i)
                print(f"  state {i}: cut {label}, after {p} of {len(record.ops)} namespace "
                      f"operations ({k} persisted) and {d} of {len(record.data)} writes and "
                      f"flushes; {len(lost)} of {len(unsynced)} unsynced "
                      f"files lost{f', {unknown} of unknown contents' if unknown else ''}: "
                      f"{describe(user, up.reference, run.returncode)}", flush=True)
            if not (args.keep and i in failed):
                shutil.rmtree(home)
        print(f"states tried: {len(chosen)}")
        print(f"states that end whole: {len(chosen) - len(failed)}")
        if args.keep and failed:
            print(f"failing states kept in {work}")
        print(f"{len(chosen) - len(failed)} passed, {len(failed)} failed")
        return 1 if failed else 0
    finally:
        common.end_descendants()
        if not (args.keep and failed):
            shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
