#!/usr/bin/env python3
"""Runs every command over files whose fields, and whose name, are control bytes: none may come out as it is.

check-output.py PROGRAM FILE DIRECTORY: a line for each command that lets one through, exit code 1 when there are any.
"""
import base64
import json
import os
import subprocess
import sys

PROGRAM, SAMPLE, WORK = sys.argv[1:]
# A document carries the characters from U+0080 to U+009F of a value as they are; what is meant for a person does not.
DOCUMENTS = ("xml", "json", "json --typed", "table", "cgm", "validate --xml", "validate --json", "property")


def commands(file):
    target = os.path.join(WORK, "out")
    return {
        "info": ["info", "--all", file],
        "validate": ["validate", file],
        "validate --xml": ["validate", "--xml", file],
        "validate --json": ["validate", "--json", file],
        "json": ["json", file],
        "json --typed": ["json", "--typed", file],
        "xml": ["xml", file],
        "table": ["table", "--field", "NITFFileHeader.FTITLE", "--field", "ImageSegment.IID1", file],
        "diff": ["diff", file, SAMPLE],
        "dump": ["dump", file],
        "dump image": ["dump", file, "image:0"],
        "property": ["property", file],
        "cgm": ["cgm", file],
        "cgm --svg": ["cgm", "--svg", file],
        "extract": ["extract", file, "text:0", "-o", target],
        "extract none": ["extract", file, "text:77", "-o", target],
        "preview": ["preview", file, "-o", target],
        "describe": ["describe", file],
        "none": ["info", file + "x"],
    }


def leak(name, output):
    text = output.decode("utf-8", errors="surrogateescape")
    for character in text:
        code = ord(character)
        if (code < 0x20 and character not in "\n\t") or code == 0x7F or code >= 0xDC80 and code < 0xDD00:
            return f"{code:#x}"
        if 0x80 <= code < 0xA0 and name not in DOCUMENTS:
            return f"{code:#x}"
    return None


def run(name, arguments, problems, why):
    result = subprocess.run([PROGRAM, *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    if result.returncode not in (0, 1, 2):
        problems.append(f"{name} of {why}: exit code {result.returncode}")
    for stream, output in (("standard output", result.stdout), ("standard error", result.stderr)):
        found = leak(name, output)
        if found:
            problems.append(f"{name} of {why}: {found} on {stream}")
    return result.returncode


def places(file):
    """Offset and length of every field of every header."""
    document = json.loads(subprocess.run([PROGRAM, "json", file], stdout=subprocess.PIPE, check=True).stdout)
    for segment in document["segments"]:
        offset = segment["header_offset"]
        for name, value in segment["fields"]:
            length = len(base64.b64decode(value["base64"])) if isinstance(value, dict) else len(value)
            yield name, offset, length
            offset += length


def main():
    with open(SAMPLE, "rb") as stream:
        good = stream.read()
    problems = []
    broken = os.path.join(WORK, "controls.ntf")
    for filling in (b"\x1b[31m\r\n", b"\x7f\x9b\x85\x00"):
        whole = bytearray(good)
        kept = 0
        for name, offset, length in places(SAMPLE):
            bad = (filling * length)[:length]
            with open(broken, "wb") as stream:
                stream.write(good[:offset] + bad + good[offset + length:])
            if run("info", ["info", broken], problems, name) == 0:
                whole[offset:offset + length] = bad
                kept += 1
        with open(broken, "wb") as stream:
            stream.write(whole)
        if kept < 50:
            problems.append(f"only {kept} fields can be control bytes")
        for name, arguments in commands(broken).items():
            run(name, arguments, problems, "such a file")
    odd = os.path.join(WORK, "a\x1b[31m\n\x9b.ntf")
    with open(odd, "wb") as stream:
        stream.write(good)
    for name, arguments in commands(odd).items():
        run(name, arguments, problems, "a file of such a name")
    for problem in problems[:20]:
        print(problem)
    print(f"output: {len(problems)} control bytes came out")
    sys.exit(1 if problems else 0)


main()
