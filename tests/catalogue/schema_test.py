# SPDX-License-Identifier: GPL-2.0-or-later
"""schema_test.py SCHEMA CATALOGUE...: the schema is one, the catalogues fit it, and catalogues with
one mistake each do not."""
import copy
import json
import sys

import jsonschema


def read(name):
    with open(name, encoding="utf-8") as file:
        return json.load(file)


def effect(**keys):
    return {"effects": [{"effect": keys}]}


def mistakes(good):
    """(what, catalogue) for catalogues that have one mistake each."""
    group = lambda c: c["groups"][0]
    item = lambda c: group(c)["items"][0]

    def put(holder, key, value):
        def change(catalogue):
            holder(catalogue)[key] = value
        return change

    def drop(holder, key):
        return lambda catalogue: holder(catalogue).pop(key)

    slider = {"type": 2, "sliderSetting": {"variables": [
        {"effectID": "exposure", "setting": "amount", "begin": 0, "end": 1}]}}
    changes = {
        "another format": put(lambda c: c, "format", "other"),
        "no format": drop(lambda c: c, "format"),
        "version 2": put(lambda c: c, "version", 2),
        "a misspelt key at the top": put(lambda c: c, "group", []),
        "a group that is a text": put(lambda c: c, "groups", ["Evenings"]),
        "a group without a name": drop(group, "name"),
        "an editable group": put(lambda c: group(c)["settings"], "editable", True),
        "another controller": put(lambda c: group(c)["settings"], "controller", "video"),
        "a preset without a name": drop(item, "name"),
        "an empty id": put(item, "id", ""),
        "popular as a number": put(item, "popular", 1),
        "a misspelt key of a preset": put(item, "favorite", True),
        "no effects": put(item, "settings", {"effects": []}),
        "an unknown effect": put(item, "settings", effect(id="glow")),
        "an effect without an id": put(item, "settings", effect(stops=1)),
        "an unknown parameter": put(item, "settings", effect(id="exposure", stop=1)),
        "a parameter out of its range": put(item, "settings", effect(id="exposure", stops=99)),
        "a parameter that is a text": put(item, "settings", effect(id="exposure", stops="1")),
        "an intensity of type 3": put(item, "intensity", {"type": 3}),
        "an intensity without its node": put(item, "intensity", {"type": 1}),
        "an intensity of 0": put(item, "intensity", {"type": 1, "blendSetting": {"value": 0}}),
        "a slider for another effect's parameter": put(item, "intensity", slider),
    }
    for what, change in changes.items():
        catalogue = copy.deepcopy(good)
        change(catalogue)
        yield what, catalogue


def main(schema_name, catalogue_names):
    schema = read(schema_name)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    failures = 0
    for name in catalogue_names:
        for error in validator.iter_errors(read(name)):
            print(f"{name}: {'/'.join(map(str, error.absolute_path))}: {error.message[:200]}")
            failures += 1
    for what, catalogue in mistakes(read(catalogue_names[0])):
        if validator.is_valid(catalogue):
            print(f"expected the schema to refuse {what}")
            failures += 1
    return 1 if failures else 0


sys.exit(main(sys.argv[1], sys.argv[2:]))
