# SPDX-License-Identifier: GPL-2.0-or-later
"""schema_test.py SCHEMA CATALOGUE...: the schema is one, the catalogues fit it in each of the forms
that are read, and of catalogues with one mistake each every error stands at the mistake."""
import copy
import json
import sys

import jsonschema


def read(name):
    with open(name, encoding="utf-8") as file:
        return json.load(file)


def effect(**keys):
    return {"effects": [{"effect": keys}]}


ITEM = "groups/0/items/0"
EFFECT = ITEM + "/settings/effects/0/effect"


def mistakes(good):
    """(what, catalogue, place) for catalogues that have one mistake each. A key that should not be
    there, and one that is missing, stand at the object that it belongs to."""
    group = lambda c: c["groups"][0]
    item = lambda c: group(c)["items"][0]

    def put(holder, key, value):
        def change(catalogue):
            holder(catalogue)[key] = value
        return change

    def drop(holder, key):
        return lambda catalogue: holder(catalogue).pop(key)

    def variables(*listed, **named):
        return {"type": 2, "sliderSetting": {"variables": list(listed) if listed else named}}

    variable = {"effectID": "exposure", "setting": "stops", "begin": 0, "end": 1}
    slider = {**variable, "setting": "amount"}
    slider_place = ITEM + "/intensity/sliderSetting/variables/"
    changes = {
        "another format": (put(lambda c: c, "format", "other"), "format"),
        "no format": (drop(lambda c: c, "format"), ""),
        "version 2": (put(lambda c: c, "version", 2), "version"),
        "a misspelt key at the top": (put(lambda c: c, "group", []), ""),
        "groups that are a text": (put(lambda c: c, "groups", "Evenings"), "groups"),
        "a group that is a text": (put(lambda c: c, "groups", ["Evenings"]), "groups/0"),
        "a group without a name": (drop(group, "name"), "groups/0"),
        "an editable group": (
            put(lambda c: group(c)["settings"], "editable", True), "groups/0/settings/editable"),
        "another controller": (put(lambda c: group(c)["settings"], "controller", "video"),
                               "groups/0/settings/controller"),
        "names that are a text": (put(group, "names", "Abende"), "groups/0/names"),
        "a name of a language that is a number": (put(item, "names", {"de": 1}),
                                                  ITEM + "/names/de"),
        "an empty name of a language": (put(item, "names", {"de": ""}), ITEM + "/names/de"),
        "a name of no language": (put(item, "names", {"German": "Herbst"}), ITEM + "/names"),
        "a preset that is a number": (put(lambda c: group(c), "items", [1]), ITEM),
        "a preset without a name": (drop(item, "name"), ITEM),
        "an empty id": (put(item, "id", ""), ITEM + "/id"),
        "popular as a number": (put(item, "popular", 1), ITEM + "/popular"),
        "a misspelt key of a preset": (put(item, "favorite", True), ITEM),
        "no effects": (put(item, "settings", {"effects": []}), ITEM + "/settings/effects"),
        "effects that are a text": (put(item, "settings", {"effects": "all"}),
                                    ITEM + "/settings/effects"),
        "an unknown effect": (put(item, "settings", effect(id="glow")), EFFECT + "/id"),
        "an effect without an id": (put(item, "settings", effect(stops=1)), EFFECT),
        "an unknown parameter": (put(item, "settings", effect(id="exposure", stop=1)),
                                 EFFECT + "/stop"),
        "a parameter out of its range": (put(item, "settings", effect(id="exposure", stops=99)),
                                         EFFECT + "/stops"),
        "a parameter that is a text": (put(item, "settings", effect(id="exposure", stops="1")),
                                       EFFECT + "/stops"),
        "an unknown effect among named ones": (
            put(item, "settings", {"effects": {"first": {"effect": {"id": "glow"}}}}),
            ITEM + "/settings/effects/first/effect/id"),
        "a table in another folder": (
            put(item, "settings", effect(id="lut3d", file="../film.cube")), EFFECT + "/file"),
        "a table by its absolute path": (
            put(item, "settings", effect(id="lut3d", file="/film.cube")), EFFECT + "/file"),
        "a table below another folder": (
            put(item, "settings", effect(id="lut3d", file="luts/../../film.cube")),
            EFFECT + "/file"),
        "an intensity of type 3": (put(item, "intensity", {"type": 3}), ITEM + "/intensity/type"),
        "an intensity without its type": (put(item, "intensity", {}), ITEM + "/intensity"),
        "an intensity without its node": (put(item, "intensity", {"type": 1}),
                                          ITEM + "/intensity"),
        "an intensity of 0": (
            put(item, "intensity", {"type": 1, "blendSetting": {"value": 0}}),
            ITEM + "/intensity/blendSetting/value"),
        "a slider for another effect's parameter": (
            put(item, "intensity", variables(slider)), slider_place + "0/setting"),
        "the same in named variables": (
            put(item, "intensity", variables(tone=slider)), slider_place + "tone/setting"),
        "a slider whose begin is a text": (
            put(item, "intensity", variables({**variable, "begin": "0"})),
            slider_place + "0/begin"),
    }
    for what, (change, place) in changes.items():
        catalogue = copy.deepcopy(good)
        change(catalogue)
        yield what, catalogue, place


def by_name(elements, key):
    """The elements of a collection as an object whose members are named elements."""
    return {str(element.get(key, number)): element for number, element in enumerate(elements)}


def other_forms(good):
    """The catalogue with named elements in place of lists."""
    named = copy.deepcopy(good)
    for group in named["groups"]:
        for item in group["items"]:
            item["settings"]["effects"] = by_name(item["settings"]["effects"], "none")
        group["items"] = by_name(group["items"], "id")
    named["groups"] = by_name(named["groups"], "name")
    for group in named["groups"].values():
        del group["name"]
    return named


def place_of(error):
    return "/".join(map(str, error.absolute_path))


def main(schema_name, catalogue_names):
    schema = read(schema_name)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    failures = 0
    if "$id" not in schema:
        print("expected an $id of the schema, found none")
        failures += 1
    for name in catalogue_names:
        for catalogue in (read(name), other_forms(read(name))):
            for error in validator.iter_errors(catalogue):
                print(f"{name}: {place_of(error)}: {error.message[:200]}")
                failures += 1
    for what, catalogue, place in mistakes(read(catalogue_names[0])):
        # Editors mark every error that a validator names, the best one and those of its holders.
        errors = list(validator.iter_errors(catalogue))
        best = jsonschema.exceptions.best_match(errors)
        found = [f"\"{place_of(error)}\": {error.message[:120]}" for error in errors]
        if not errors or {place_of(error) for error in [*errors, best]} != {place}:
            print(f"{what}: expected an error at \"{place}\", found {'; '.join(found) or 'none'}")
            failures += 1
    return 1 if failures else 0


sys.exit(main(sys.argv[1], sys.argv[2:]))
