#!/usr/bin/env python3
"""Compares every value of the XML of a file, read by an XML parser, with that of its JSON.

compare-xml-json.py PROGRAM FILE...: a line for each difference, exit code 1 when there are any.
"""
import base64
import json
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

SPACE = "{ORMO}"
OVERFLOW = ("TRE_OVERFLOW", "Registered Extensions", "Controlled Extensions")
BLANKS = " \t\n\r\v\f"


def run(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout


def xml_value(element):
    text = element.text or ""
    if element.get("base64Encoded") == "T":
        return base64.b64decode(text).decode("latin-1")
    return text


def json_value(value):
    if isinstance(value, dict):
        return base64.b64decode(value["base64"]).decode("latin-1")
    return value


def fields_of(element):
    """Tag and value of each field, in order, those of the user-defined part of a DES apart."""
    for child in element:
        name = child.tag.removeprefix(SPACE)
        if name.endswith("Field") and name != "DESCmplxField":
            by_tag = not child.get("field").isdigit()
            yield child.get("field" if by_tag else "name"), xml_value(child), child


def compare_tres(place, xml_segment, json_segment, problems):
    group = xml_segment.find(SPACE + "TREs")
    tres = [] if group is None else list(group)
    if group is not None and int(group.get("total")) != len(tres):
        problems.append(f"{place}: total of TREs")
    named = dict(json_segment["fields"])
    if named.get("DESID", named.get("DESTAG", "")).strip() in OVERFLOW and not json_segment["tres"]:
        return  # in JSON they stand at their owner only
    if len(tres) != len(json_segment["tres"]):
        problems.append(f"{place}: {len(tres)} TREs in XML, {len(json_segment['tres'])} in JSON")
        return
    for xml_tre, json_tre in zip(tres, json_segment["tres"]):
        where = f"{place} {json_tre['tag']}"
        if xml_tre.get("tag") != json_tre["tag"] or xml_tre.get("type") != json_tre["type"]:
            problems.append(f"{where}: {xml_tre.attrib}")
        data = xml_tre.find(SPACE + "DATA")
        if data is not None:
            if xml_value(data) != base64.b64decode(json_tre["raw"]).decode("latin-1"):
                problems.append(f"{where}: data differ")
            continue
        found = list(fields_of(xml_tre))
        if len(found) != len(json_tre["fields"]):
            problems.append(f"{where}: {len(found)} fields in place of {len(json_tre['fields'])}")
        for (tag, value, _), (name, wanted) in zip(found, json_tre["fields"]):
            stored = json_value(wanted)
            if tag != name or value not in (stored, stored.strip(BLANKS)):
                problems.append(f"{where} {name}: {value!r} in place of {stored!r}")


def compare_segment(place, xml_segment, json_segment, problems):
    wanted = {name: json_value(value) for name, value in json_segment["fields"]}
    count = 0
    for tag, value, element in fields_of(xml_segment):
        count += 1
        if wanted.get(tag) != value:
            problems.append(f"{place} {tag}: {value!r} in place of {wanted.get(tag)!r}")
        if int(element.get("size")) != len(value):
            problems.append(f"{place} {tag}: size {element.get('size')} for {len(value)} bytes")
    # The fields of a known DES type stand below the element of the field that holds them.
    complex_fields = len(xml_segment.findall(SPACE + "DESCmplxField"))
    if count + complex_fields != len(wanted):
        problems.append(f"{place}: {count} fields in place of {len(wanted)}")
    compare_tres(place, xml_segment, json_segment, problems)


def compare(program, file):
    line = run(program, "json", file)
    document = json.loads(line)
    if "error" in document:
        return None
    root = ElementTree.fromstring(run(program, "xml", file))
    found = {}
    for child in root:
        if child.tag == SPACE + "NITFFileHeader":
            found["NITFFileHeader", 0] = child
            continue
        if int(child.get("total")) != len(child):
            return [f"{child.tag}: total {child.get('total')} for {len(child)}"]
        for segment in child:
            found[segment.tag.removeprefix(SPACE), int(segment.get("index"))] = segment
    problems = []
    for segment in document["segments"]:
        key = segment["kind"], segment["index"]
        if key in found:
            compare_segment(f"{key[0]} {key[1]}", found.pop(key), segment, problems)
        elif segment["fields"]:
            problems.append(f"{key} is not in the XML")
    problems += [f"{key} is not in the JSON" for key in found]
    return problems


def main():
    program, files = sys.argv[1], sys.argv[2:]
    failed = compared = 0
    for file in files:
        problems = compare(program, file) if not file.endswith(".md") else None
        if problems is None:
            continue
        compared += 1
        for problem in problems[:5]:
            print(f"{file}: {problem}")
        failed += bool(problems)
    print(f"values: the XML of {compared} files was compared with their JSON, {failed} differ")
    sys.exit(1 if failed or not compared else 0)


main()
