#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks through the files of the languages: languages.py FOLDER

Each text is translated, and keeps what the program puts in or reads out of it: placeholders, marks of the help, the
letter that opens it by the keyboard, an ellipsis, the end of a sentence or a list. Prints what is wrong and fails if anything
is."""

import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as tree

KEPT = {
    "placeholders": re.compile(r"%L?[n1-9]"),
    "marks": re.compile(r"</?[a-z][^>]*>"),
    "letters": re.compile(r"&(?![a-z]+;)(?=\w)"),
    "ellipses": re.compile("…"),
}
ENDS = [(".", "。"), ";"]


def faults_of(source, text):
    if not text or text != text.strip():
        yield "is empty, or has a space at an end"
        return
    for what, pattern in KEPT.items():
        if collections.Counter(pattern.findall(source)) != collections.Counter(pattern.findall(text)):
            yield f"has other {what}"
    if any(source.endswith(end) != text.endswith(end) for end in ENDS):
        yield "ends otherwise"


def read(path):
    """The translations of each text, by its context, itself and its comment; a fault for each that is not finished."""
    texts, faults = {}, []
    for context in tree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            translation = message.find("translation")
            texts[key] = [form.text for form in translation.iter("numerusform")] or [translation.text]
            if translation.get("type"):
                faults.append(f"{path.name}: {key[1]!r} is {translation.get('type')}")
    return texts, faults


def main(folder):
    paths = sorted(folder.glob("*.ts"))
    if not paths:
        sys.exit(f"{folder} has no languages")
    count, faults, keys = 0, [], None
    for path in paths:
        texts, unfinished = read(path)
        faults += unfinished
        if keys is not None and keys != texts.keys():
            faults.append(f"{path.name} has other texts than {paths[0].name}")
        keys = texts.keys()
        for (_, source, _), forms in texts.items():
            count += 1
            faults += [f"{path.name}: {form!r}, for {source!r}, {fault}" for form in forms
                       for fault in faults_of(source, form or "")]
    print("\n".join([*faults, f"{count} texts read, {len(faults)} faults"]))
    sys.exit(1 if faults else 0)


main(pathlib.Path(sys.argv[1]))
