#!/usr/bin/env python3
"""check_test.py SOURCE NERLO: `nerlo check` in a repository, by itself and as a hook."""
import os
import re
import subprocess
import sys
import tempfile

source, nerlo = sys.argv[1:]
BAD = "two  spaces\n"
NAMES = ["plain.txt", "with space.txt", "-rf", ":(top)x", "a\n@@ -0,0 +1,99 @@", 'q"uote$(touch owned).txt', "\udcff.txt", "*.txt"]
failures = []


def run(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, errors="surrogateescape", check=False, **more)


def git(*arguments):
    ended = run("git", "-c", "user.name=x", "-c", "user.email=x@y", *arguments)
    if ended.returncode != 0 and arguments[0] != "commit":
        failures.append(f"git {arguments}: {ended.stderr}")
    return ended.returncode


def write(name, text):
    with open(name, "w", encoding="utf-8") as file:
        file.write(text)


def expect(what, found, wanted):
    if found != wanted:
        failures.append(f"{what}: {found!r}, not {wanted!r}")


def changed_lines():
    """Only what was changed since, in files of any name; a file that git does not know is new."""
    for name in NAMES:
        write(name, BAD + "one\n" + BAD)
    git("add", "--", ".")
    git("commit", "-q", "-m", "all")
    # Settings that change how a person sees a difference do not count.
    git("config", "diff.external", "touch owned")
    git("config", "color.ui", "always")
    git("config", "diff.interHunkContext", "10")
    for name in NAMES:
        expect(name, run(nerlo, "check", "--diff-from", "HEAD", "--", name).returncode, 0)
        write(name, BAD + "one\nmore\n" + BAD + "new  line\n")
        ended = run(nerlo, "check", "--diff-from", "HEAD", "--", name)
        shown = re.sub(r"[\x00-\x1f]", "?", name)
        expect(name, ended.stdout, f"{shown}:5:4: removes U+0020 (collapse-spaces)\n")
    alone = [run(nerlo, "check", "--format=json", "--", name).stdout[2:-2] for name in NAMES]
    together = run(nerlo, "check", "--format=json", "--", *NAMES, "no-such", *NAMES)
    expect("in order", together.stdout, "[\n" + ",\n".join(alone * 2) + "]\n")
    expect("one bad", together.stderr.count("no-such"), 1)
    write("new.txt", BAD)
    expect("new", run(nerlo, "check", "--diff-from", "HEAD", "new.txt").returncode, 1)
    for ref in ("no-such", "--output=owned", "HEAD..HEAD", ""):
        expect(f"ref {ref}", run(nerlo, "check", f"--diff-from={ref}", "new.txt").returncode, 2)
    expect("run by a name", os.path.exists("owned"), False)


def hook():
    """The hook's entry, as a runner calls it: with the names of the staged files."""
    with open(os.path.join(source, ".pre-commit-hooks.yaml"), encoding="utf-8") as file:
        entries = dict(re.findall(r"^- id: (\S+)$.*?^  entry: ([^\n]+)$", file.read(), re.M | re.S))
    expect("hooks", sorted(entries), ["nerlo-check", "nerlo-fix"])
    write(".git/hooks/pre-commit",
          "#!/bin/sh\nset -e\nentry=$(cat .git/entry)\ngit diff --cached --name-only -z | xargs -0 $entry --\ngit diff --quiet\n")
    os.chmod(".git/hooks/pre-commit", 0o755)
    git("add", "--", ".")
    write(".git/entry", entries["nerlo-check"])
    expect("a commit that is checked", git("commit", "-q", "-m", "bad"), 1)
    write(".git/entry", entries["nerlo-fix"])
    expect("a commit that is fixed", git("commit", "-q", "-m", "bad"), 1)
    git("add", "--", ".")
    write(".git/entry", entries["nerlo-check"])
    expect("a clean commit", git("commit", "-q", "-m", "good"), 0)
    with open("new.txt", encoding="utf-8") as file:
        expect("the fixed file", file.read(), "two spaces\n")


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    os.mkdir("bin")
    os.symlink(nerlo, "bin/nerlo")
    os.environ.update(HOME=folder, XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder, GIT_CONFIG_NOSYSTEM="1",
                      PATH=os.path.join(folder, "bin") + ":" + os.environ["PATH"])
    os.mkdir("repository")
    os.chdir("repository")
    git("init", "-q", ".")
    # One rule, so that texts of several lines stay as they are.
    write("nerlo.plist", "<plist version='1.0'><dict><key>udChangeMultipleSpacesToSingleSpace</key><integer>1</integer></dict></plist>\n")
    changed_lines()
    hook()
print("\n".join(failures).encode("utf-8", "backslashreplace").decode())
sys.exit(1 if failures else 0)
