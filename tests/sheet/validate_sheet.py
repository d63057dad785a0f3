"""Checks the files of sheets with readers of others: validate_sheet.py SHEET_FILES SCHEMA

SHEET_FILES is the program that writes them. JSON must fit the schema. HTML must be well-formed, refer to nothing outside
of it, and have names for the heads of its tables."""

import copy
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

import jsonschema


def refuse(name):
    raise ValueError(name + " is no JSON number")


def unique(members):
    names = [name for name, _ in members]
    assert len(names) == len(set(names)), f"a name twice: {names}"
    return dict(members)


def read_json(path):
    return json.loads(path.read_text("utf-8"), object_pairs_hook=unique, parse_constant=refuse)


def check_table(sheet):
    for section in sheet["sections"]:
        for part in section["parts"]:
            if part["kind"] == "table":
                assert all(len(row) == len(part["heads"]) for row in part["rows"]), part


def check_html(path):
    text = path.read_text("utf-8")
    assert text.startswith("<!DOCTYPE html>\n"), "no doctype"
    tree = ElementTree.fromstring(text.split("\n", 1)[1])
    assert tree.get("lang") == "en"
    elements = list(tree.iter())
    tags = {element.tag for element in elements}
    assert not tags & {"script", "link", "img", "iframe", "object", "base", "form"}, tags
    ids = [element.get("id") for element in elements if element.get("id")]
    assert len(ids) == len(set(ids)), "an id twice"
    for element in elements:
        assert not any(name.startswith("on") or name in ("src", "style") for name in element.keys()), element.attrib
        target = element.get("href")
        assert target is None or target.removeprefix("#") in ids and target[0] == "#", target
        if element.tag == "th":
            assert element.get("scope") in ("row", "col")
        if element.tag == "mfrac" or element.tag == "msup" or element.tag == "msub":
            assert len(element) == 2, ElementTree.tostring(element)
    assert not re.search(r"url\(|@import|https?:", tree.find("head/style").text)
    assert len(tree.find("body/nav")) == 2 and len(tree.findall("body/nav/ol/li")) == len(tree.findall("body/main/section"))


def refused(validator, sheet, change):
    """Returns whether the schema refuses the sheet after a change."""
    other = copy.deepcopy(sheet)
    change(other)
    return not validator.is_valid(other)


def first(sheet, kind, has):
    return next(part for section in sheet["sections"] for part in section["parts"] if part["kind"] == kind and has in part)


def check_schema(validator, sheet):
    """A schema that takes everything would pass unnoticed."""
    assert refused(validator, sheet, lambda s: s.update(format=2))
    assert refused(validator, sheet, lambda s: s.update(units="imperial"))
    assert refused(validator, sheet, lambda s: s["project"].update(author=""))
    assert refused(validator, sheet, lambda s: first(s, "step", "formula").pop("numbers"))
    assert refused(validator, sheet, lambda s: first(s, "step", "formula")["result"].pop("value"))
    assert refused(validator, sheet, lambda s: first(s, "step", "formula")["formula"].update(operation="integral"))
    assert refused(validator, sheet, lambda s: first(s, "step", "formula")["formula"].pop("parts"))
    assert refused(validator, sheet, lambda s: first(s, "input", "value").update(value="8"))
    assert refused(validator, sheet, lambda s: first(s, "judgement", "result").update(result="fine"))


def main(program, schema_path):
    schema = read_json(pathlib.Path(schema_path))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        subprocess.run([program, folder], check=True)
        sheets = sorted(folder.glob("*.json"))
        pages = sorted(folder.glob("*.html"))
        assert len(sheets) == len(pages) > 15
        for path in sheets:
            sheet = read_json(path)
            for error in validator.iter_errors(sheet):
                sys.exit(f"{path.name}: {error.json_path}: {error.message[:500]}")
            check_table(sheet)
        for path in pages:
            check_html(path)
        check_schema(validator, read_json(folder / "full.json"))
    print(f"{len(sheets)} sheets fit the schema, {len(pages)} pages are well-formed")


main(*sys.argv[1:])
