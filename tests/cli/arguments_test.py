#!/usr/bin/env python3
"""arguments_test.py SOURCE NERLO [NERLO_PRO]

What the programs take stands in their manual pages, their completions and the README, and these
offer nothing else; the examples of the README, the manual and the help texts work.
"""
import gzip
import os
import re
import shutil
import subprocess
import sys
import tempfile

source, nerlo, *desktop = filter(None, sys.argv[1:])
OPTION = re.compile(r"(?<![\w-])--?[a-z][a-z-]*")
LONG = re.compile(r"(?<![\w-])--[a-z][a-z-]*")
GENERAL = {"--help", "-h", "--version"}
failures = []


def read(path):
    with open(os.path.join(source, path), encoding="utf-8") as file:
        return file.read()


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def help_of(program, *command):
    return output(program, *command, "--help")


def options_in_help(text):
    columns = re.findall(r"^ +(-[^\s,]+(?:, ?-[^\s,]+)*)", text, re.MULTILINE)
    return {option for column in columns for option in OPTION.findall(column)}


def expect(place, found, expected):
    for option in sorted(expected - found):
        failures.append(f"{place}: {option} is missing")
    for option in sorted(found - expected):
        failures.append(f"{place}: {option} is not taken")


def manual(name):
    text = read(f"packaging/man/{name}.1").replace("\\-", "-")
    return {title: body for title, body in re.findall(r"\.SH (.+)\n((?:(?!\.SH ).*\n)*)", text)}


def long_options(options):
    return {option for option in options if option.startswith("--")}


def bash_offers(name, *words):
    """What Tab behind "--" offers; the functions of the package bash-completion are not needed."""
    text = read(f"packaging/completions/{name}.bash")
    function = "_" + name.replace("-", "_")
    script = f"""{text.replace("local cur prev words cword", "")}
        _init_completion() {{ :; }}; compopt() {{ :; }}; _filedir() {{ :; }}
        words=("$0" "$@" --); cword=$((${{#words[@]}} - 1)); cur=--; prev=${{words[cword-1]}}
        COMPREPLY=(); {function}; printf '%s\\n' "${{COMPREPLY[@]}}" """
    return set(LONG.findall(output("bash", "-c", script, name, *words)))


def zsh_offers(command):
    text = read("packaging/completions/_nerlo")
    text = text.replace("$options", "--profile --options --set").replace("$locale", "--locale").replace("$help", "--help")
    for names, body in re.findall(r"^    ([a-z |]+)\)(.*?);;", text, re.MULTILINE | re.DOTALL):
        if command in names.split(" | "):
            return set(LONG.findall(body))
    return set()


def fish_offers(name, command=None):
    offered = set()
    for line in read(f"packaging/completions/{name}.fish").splitlines():
        commands = re.search(r"'__fish_seen_subcommand_from ([a-z ]+)", line)
        if line.startswith("complete") and "not __fish" not in line and (not commands or command in commands[1].split()):
            offered |= {"--" + option for option in re.findall(r" -l ([a-z-]+)", line)}
    return offered


def check_command(command, in_manual):
    taken = options_in_help(help_of(nerlo, command))
    pages = re.split(r"^\.TP\n\.B ([a-z]+)$", in_manual["COMMANDS"], flags=re.MULTILINE)
    page = dict(zip(pages[1::2], pages[2::2])).get(command, "").split("\n.PP\n")[0]
    expect(f"nerlo(1), {command}", set(OPTION.findall(page)), taken - GENERAL)
    wanted = long_options(taken)
    expect(f"nerlo.bash, {command}", bash_offers("nerlo", command), wanted)
    expect(f"_nerlo, {command}", zsh_offers(command), wanted)
    expect(f"nerlo.fish, {command}", fish_offers("nerlo", command), wanted)
    return wanted


def check_desktop(program):
    taken = options_in_help(help_of(program))
    expect("nerlo-pro(1)", set(OPTION.findall(manual("nerlo-pro")["OPTIONS"])), taken)
    wanted = long_options(taken)
    expect("nerlo-pro.bash", bash_offers("nerlo-pro"), wanted)
    expect("_nerlo-pro", set(LONG.findall(read("packaging/completions/_nerlo-pro"))), wanted)
    expect("nerlo-pro.fish", fish_offers("nerlo-pro"), wanted)
    return wanted


def examples(texts):
    for text in texts:
        for line in text.splitlines():
            line = line.strip().replace("\\(aq", "'").replace("\\e", "\\")
            if re.search(r"(^|\| )nerlo ", line):
                yield line


def check_examples(lines):
    with tempfile.TemporaryDirectory() as folder:
        tools = os.path.join(folder, "bin")
        os.mkdir(tools)
        os.symlink(nerlo, os.path.join(tools, "nerlo"))
        clipboard = os.path.join(tools, "xclip")
        with open(clipboard, "w", encoding="utf-8") as file:
            file.write('#!/bin/sh\ncase "$*" in *-o*) cat letter.txt ;; *) cat >pasted ;; esac\n')
        os.chmod(clipboard, 0o755)
        environment = {**os.environ, "PATH": tools + ":" + os.environ["PATH"],
                       "XDG_CONFIG_HOME": folder, "XDG_DATA_HOME": folder}
        profile = "<plist version='1.0'><dict><key>udSort</key><integer>1</integer></dict></plist>"
        for name in ("letter.txt", "notes.txt", "page.txt", "mail.txt", "work.plist", "mail.plist"):
            with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
                file.write(profile if name.endswith(".plist") else "Two  words.\n")
        record = b'{"text": "Two  words.", "messages": [{"content": "Two  words."}]}\n'
        for name, bytes_ in (("data.jsonl", record), ("data.jsonl.gz", gzip.compress(record))):
            with open(os.path.join(folder, name), "wb") as file:
                file.write(bytes_)
        shutil.copy(os.path.join(source, "assets/rules/dates-to-iso.nerlo-rules"), os.path.join(folder, "dates.nerlo-rules"))
        for arguments in (["init", "-q"], ["add", "."], ["-c", "user.name=x", "-c", "user.email=x@y", "commit", "-qm", "all"]):
            subprocess.run(["git", *arguments], cwd=folder, check=True)
        lines = ["nerlo profiles import work.plist", *lines]
        for line in lines:
            ended = subprocess.run(["bash", "-o", "pipefail", "-c", line], cwd=folder, text=True,
                                   env=environment, capture_output=True, check=False)
            found = ended.returncode == 1 and line.startswith("nerlo check ")
            if (ended.returncode != 0 and not found) or ended.stderr:
                failures.append(f"example `{line}`: {ended.returncode} {ended.stderr}")
    return len(lines)


in_manual = manual("nerlo")
helps = [help_of(nerlo)]
commands = re.findall(r"^  ([a-z]+) ", helps[0].split("Subcommands:")[1], re.MULTILINE)
helps += [help_of(nerlo, command) for command in commands]
wanted = {"--version", "--help"}
for each in commands:
    wanted |= check_command(each, in_manual)
expect("nerlo(1)", set(OPTION.findall(" ".join(in_manual.values()))) & GENERAL, GENERAL)
section = re.search(r"^## nerlo in the terminal\n(.*?)^## ", read("README.md"), re.M | re.S)[1]
mentioned = set(LONG.findall(section))
if desktop:
    wanted |= check_desktop(desktop[0])
    expect("README.md", mentioned, wanted)
else:
    expect("README.md", mentioned & wanted, wanted)
count = check_examples(list(examples([section, in_manual["EXAMPLES"], *helps])))
if count < 20 or len(commands) < 6:
    failures.append(f"only {count} examples and {len(commands)} commands were found")
print("\n".join(failures))
sys.exit(1 if failures else 0)
