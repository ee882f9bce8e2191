"""Kills lorvane-cli while it saves and lets its system calls fail: the study on the disk is the old or the new one,
byte for byte, and nothing stays beside it. With LORVANE_LONG_TESTS in the environment it goes on for longer."""

import errno
import json
import os
import random
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM, SHIM = sys.argv[1], sys.argv[2]
KILLS, SECONDS = (200, 60) if os.environ.get("LORVANE_LONG_TESTS") else (25, 0)
SCENARIOS = 50
KILLED = -9
MAY_FAIL = ("fchown", "fchmod")


class Disk:
    """A folder with one study, and beside the folder the two studies that it may hold."""

    def __init__(self, root):
        self.log, self.folder = root / "calls", root / "folder"
        self.folder.mkdir()
        self.path = self.folder / "study"
        self.sources = [root / "old", root / "new"]
        self.make_studies(root / "seed")
        self.old, self.new = (source.read_bytes() for source in self.sources)
        assert self.old != self.new and len(self.old) > 200_000, len(self.old)

    def make_studies(self, seed):
        run(f"save {seed}")
        header, *block = seed.read_bytes().splitlines(keepends=True)
        cases = [line.replace(b"System ABCDE", b"Case %d" % i) for i in range(SCENARIOS) for line in block]
        seed.write_bytes(b"".join([header, *cases, *block]))
        run(f"open {seed}", *self.turns(*self.sources))

    @staticmethod
    def turns(first, second):
        return ["set txtd 0.5", f"save {first}", "set txtd 0.6", f"save {second}"]

    def put(self, content):
        for file in self.folder.iterdir():
            file.unlink()
        if content is not None:
            self.path.write_bytes(content)

    def content(self):
        return self.path.read_bytes() if self.path.exists() else None

    def save(self, fault=""):
        """Saves the new study over what is there. The answer to it, and the calls that changed files."""
        self.log.unlink(missing_ok=True)
        preload = {"LD_PRELOAD": SHIM, "FAULT_FOLDER": str(self.folder), "FAULT_LOG": str(self.log), "FAULT": fault}
        done = run(f"open {self.sources[1]}", f"save {self.path}", **preload)
        return done, self.log.read_text().splitlines()

    def left_beside(self):
        return [file for file in self.folder.iterdir() if file != self.path]


def run(*lines, **environment):
    return subprocess.run([PROGRAM, "drive"], input="\n".join(lines) + "\n", capture_output=True, text=True, timeout=60,
                          env={**os.environ, **environment})


def check_order(disk):
    """What is renamed is on the disk before, and the folder after."""
    disk.put(disk.old)
    _, calls = disk.save()
    rename = calls.index("rename")
    assert "fsync" in calls[:rename] and "fsync" in calls[rename:], calls
    assert disk.content() == disk.new
    return calls


def kill_at_every_step(disk):
    """Beside the study lies what another killed save left, so that its removal is killed, too."""
    kills = 0
    for old in (disk.old, None):
        outcomes = set()
        step = calls = 0
        while step <= calls:
            step += 1
            for action in ("before", "half", "after"):
                disk.put(old)
                (disk.folder / ".lorvane-1-0.tmp").write_text("left")
                done, log = disk.save(f"{step} {action}")
                calls = len(log)
                if done.returncode != KILLED:
                    assert done.returncode == 0 and step > calls, (step, action, done)
                    continue
                kills += 1
                assert disk.content() in (old, disk.new), (step, action, log)
                outcomes.add(disk.content())
                assert json.loads(disk.save()[0].stdout.splitlines()[-1]) == {"ok": True}
                assert disk.content() == disk.new and not disk.left_beside(), (step, action, log)
        assert outcomes == {old, disk.new}
    return kills


def fail_every_step(disk, calls):
    """Until the new file has the name, a failure is told and the old study stays. Owner and permissions may be refused."""
    failures = 0
    for step, call in enumerate(calls, 1):
        faults = [errno.ENOSPC, errno.EIO, errno.EACCES]
        for fault in faults + (["short", errno.EINTR] if call == "write" else []):
            disk.put(disk.old)
            done, log = disk.save(f"{step} {fault}")
            answer = json.loads(done.stdout.splitlines()[-1])
            refused = step <= calls.index("rename") + 1 and call not in MAY_FAIL and fault in faults
            assert ("error" in answer) == refused, (step, fault, answer, log)
            if refused:
                assert os.strerror(fault) in answer["error"] and str(disk.path) in answer["error"], answer
            assert disk.content() == (disk.old if refused else disk.new), (step, fault, log)
            assert not disk.left_beside(), (step, fault, log)
            failures += 1
    return failures


def kill_at_random(disk):
    chance = random.Random(20)
    disk.put(disk.old)
    script = "\n".join(disk.turns(disk.path, disk.path) * 1000).encode() + b"\n"
    kills = amidst = 0
    end = time.monotonic() + SECONDS
    while kills < KILLS or time.monotonic() < end:
        with tempfile.TemporaryFile() as lines:
            lines.write(script)
            lines.seek(0)
            with subprocess.Popen([PROGRAM, "drive", disk.sources[0]], stdin=lines, stdout=subprocess.PIPE) as saving:
                saving.stdout.readline()
                time.sleep(chance.uniform(0, 0.1))
                assert saving.poll() is None, "the session ended before it was killed"
                saving.kill()
        kills += 1
        assert disk.content() in (disk.old, disk.new), kills
        amidst += len(disk.left_beside())
        assert len(disk.left_beside()) <= 1, disk.left_beside()
    disk.save()
    assert disk.content() == disk.new and not disk.left_beside()
    return kills, amidst


def main():
    with tempfile.TemporaryDirectory() as root:
        disk = Disk(Path(root))
        calls = check_order(disk)
        print(f"{kill_at_every_step(disk)} kills at the steps of a save: {', '.join(calls)}")
        print(f"{fail_every_step(disk, calls)} failures of these")
        kills, amidst = kill_at_random(disk)
        print(f"{kills} kills at random, {amidst} of them amidst a save")
        assert amidst > 0


main()
