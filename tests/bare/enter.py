"""Runs a program with another root file system, as an ordinary user, in a mount namespace of its own.

Usage: enter.py JSON, with the keys root, binds ([source, target, "rw" or "ro"]), environment and command

Root becomes the user 1000. Anybody else does it in user namespaces, the inner one of which has the same number. What is not in the
new root cannot be reached: the old one is unmounted. The network stays the caller's.
"""
import ctypes
import json
import os
import sys

CLONE_NEWNS = 0x00020000
CLONE_NEWUSER = 0x10000000
MS_RDONLY, MS_REMOUNT, MS_BIND, MS_REC, MS_PRIVATE = 1, 32, 4096, 16384, 1 << 18
MNT_DETACH = 2
SYS_PIVOT_ROOT = {"x86_64": 155, "aarch64": 41}
USER = 1000
PR_SET_DUMPABLE = 4

libc = ctypes.CDLL(None, use_errno=True)


def check(result, what):
    if result != 0:
        error = ctypes.get_errno()
        raise OSError(error, f"{what}: {os.strerror(error)}")


def mount(source, target, flags, kind=None):
    check(libc.mount(os.fsencode(source), os.fsencode(target), kind, ctypes.c_ulong(flags), None), f"mount {target}")


def leave_user(inner, outer):
    """Into a user namespace in which this process is the user `inner`, who outside of it is `outer`."""
    uid, gid = outer
    check(libc.unshare(CLONE_NEWUSER), "unshare")
    for file, text in (("setgroups", "deny"), ("uid_map", f"{inner} {uid} 1"), ("gid_map", f"{inner} {gid} 1")):
        with open(f"/proc/self/{file}", "w") as stream:
            stream.write(text)


def enter(root, binds):
    mount("none", "/", MS_REC | MS_PRIVATE)
    mount(root, root, MS_BIND)
    for source, target, access in binds:
        mount(source, root + target, MS_BIND)
        if access == "ro":
            mount(source, root + target, MS_BIND | MS_REMOUNT | MS_RDONLY)
    for folder in ("/proc", "/dev"):
        mount(folder, root + folder, MS_BIND | MS_REC)
    os.chdir(root)
    check(libc.syscall(SYS_PIVOT_ROOT[os.uname().machine], b".", b"."), "pivot_root")
    check(libc.umount2(b".", MNT_DETACH), "umount")
    os.chdir("/")


def main():
    task = json.loads(sys.argv[1])
    is_root = os.getuid() == 0
    if not is_root:
        leave_user(0, (os.getuid(), os.getgid()))
    check(libc.unshare(CLONE_NEWNS), "unshare")
    enter(task["root"], task["binds"])
    if is_root:
        os.setgroups([])
        os.setresgid(USER, USER, USER)
        os.setresuid(USER, USER, USER)
        libc.prctl(PR_SET_DUMPABLE, 1, 0, 0, 0)
    else:
        leave_user(USER, (0, 0))
    os.umask(0o022)
    os.execve(task["command"][0], task["command"], task["environment"])


if __name__ == "__main__":
    main()
