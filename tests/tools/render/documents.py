#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The manual pages, the completions and --help name the same options, and each language has its manual pages:
documents.py LUMORA-RENDER LUMORA RESOURCES MANUAL-FOLDER"""

import gzip
import pathlib
import re
import subprocess
import sys

program, window = sys.argv[1:3]
resources, manual = map(pathlib.Path, sys.argv[3:])
faults = []


def differ(what, found, wanted):
    if found != wanted:
        faults.append(f"{what}: {sorted(found ^ wanted)} stand in one of the two alone")


help_text = subprocess.run([program, "--help"], check=True, capture_output=True, text=True).stdout
# "  -0, --null            Names ...": an option, and what it takes.
in_help = set(re.findall(r"^  (?:-\w, )?(--[a-z-]+)(?: <(\w+)>)?", help_text, re.MULTILINE))
short_in_help = set(re.findall(r"^  (-\w), ", help_text, re.MULTILINE))
assert len(in_help) > 15, help_text

page = (resources / "man" / "lumora-render.1").read_text().replace(r"\-", "-")
heads = re.findall(r"^\.TP\n(\.B.*)", page[page.index(".SH OPTIONS") : page.index(".SH LINES OF JSON")], re.MULTILINE)
in_page = {(name, value) for head in heads for name, value in re.findall(r'(--[a-z-]+)(?: " (\w+)")?', head)}
differ("--help and the manual page", in_help, in_page)
differ("--help and the manual page", short_in_help, {name for head in heads for name in re.findall(r" (-\w)\b ", head)})

# What the shell offers, asked of bash itself.
COMPLETE = """
compopt() { :; }
source "$1"; complete=$2; shift 2
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
$complete
printf '%s\\n' "${COMPREPLY[@]}"
"""


def offered(*words, by=program):
    name = pathlib.Path(by).name
    shell = ["bash", "-c", COMPLETE, "bash", resources / "completion" / name, "_" + name.replace("-", "_")]
    run = subprocess.run([*shell, by, *words], check=True, capture_output=True, text=True)
    if run.stderr:
        faults.append(run.stderr)
    return set(run.stdout.split("\n")) - {""}


differ("--help and the completion", {name for name, _ in in_help}, offered("--"))
differ("looks that begin with M", {"Magazine", "Mono"}, offered("--look", "M"))
differ("borders", {r"By\ Filter", "Thin", "Medium", "Thick", "Rounded", "Instant", "Cinema", "None"}, offered("--border", ""))
differ("crops", {r"By\ Filter", "Square", "Cinema", "6x4", "4x3", "7x6", "None"}, offered("--crop", ""))
differ("levels", {"all"}, offered("--metadata", "a"))

# The same of the window's program.
help_text = subprocess.run([window, "--help"], check=True, capture_output=True, text=True).stdout
in_help_of_window = set(re.findall(r"^  (-\w), (--[a-z]+) ", help_text, re.MULTILINE))
page = (resources / "man" / "lumora.1").read_text().replace(r"\-", "-")
differ("lumora --help and its manual page", in_help_of_window, set(re.findall(r'^\.BR (-\w) ", " (--[a-z]+)$', page, re.MULTILINE)))
names = {name for _, name in in_help_of_window}
assert names == {"--help", "--version"}, help_text
differ("lumora --help and its completion", names, offered("-", by=window))
differ("names of files", {"lumora.1"}, {pathlib.Path(name).name for name in offered("--", f"{resources}/man/lumora.", by=window)})

# In another language a page has another summary, and nothing else.
pages = sorted((resources / "man").glob("*.1"))
languages = sorted(file.stem for file in (resources / "languages").glob("*.ts"))
assert len(pages) == 2 and languages, (pages, languages)
for page in pages:
    lines = page.read_text().splitlines()
    summary = lines.index(".SH NAME") + 1
    summaries = set()
    for language in languages:
        translated = gzip.open(manual / language / "man1" / f"{page.name}.gz", "rt", encoding="utf-8").read().splitlines()
        other = [i for i, pair in enumerate(zip(lines, translated, strict=True)) if pair[0] != pair[1]]
        if other != [summary] or not translated[summary].startswith(f"{page.stem} \\- "):
            faults.append(f"{language}/{page.name} differs in the lines {other}")
        summaries.add(translated[summary])
    if len(summaries) < len(languages):
        faults.append(f"{page.name} has the same summary in two languages")

for page in pages:
    run = subprocess.run(["man", "--warnings", "-l", page], capture_output=True, text=True, env={"LC_ALL": "C.UTF-8", "PATH": "/usr/bin:/bin"})
    if run.returncode or run.stderr or "NAME" not in run.stdout:
        faults.append(f"{page}: {run.stderr or run.stdout}")

print("\n".join([*faults, f"{len(in_help)} options, {len(faults)} faults"]))
sys.exit(1 if faults else 0)
