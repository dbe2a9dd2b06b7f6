"""Checks that the installer's helper loads the C library and nothing else. Usage: standalone_test.py HELPER"""
import re
import subprocess
import sys

C_LIBRARY = re.compile(r"(libc\.so\.6|libm\.so\.6|ld-linux[-\w]*\.so\.\d)")


def main():
    table = subprocess.run(["readelf", "--dynamic", sys.argv[1]], check=True, capture_output=True, text=True).stdout
    needed = re.findall(r"\(NEEDED\).*\[(.+)\]", table)
    others = [name for name in needed if not C_LIBRARY.fullmatch(name)]
    if "libc.so.6" not in needed:
        sys.exit("the table of needed libraries was not understood:\n" + table)
    if others:
        sys.exit("the helper needs " + ", ".join(others) + ": link them statically (PELNAR_STANDALONE_HELPER)")
    print("needed: " + ", ".join(needed))


main()
