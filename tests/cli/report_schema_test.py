# SPDX-License-Identifier: GPL-2.0-or-later
"""report_schema_test.py SCHEMA PROGRAM PHOTO: every line that "apply --json" writes fits the schema,
and lines with one mistake each do not."""
import copy
import json
import os
import shutil
import subprocess
import sys
import tempfile

import jsonschema

LOOKS = """{"format": "lumetra-catalogue", "version": 1, "groups": [{"name": "Looks", "items": [
    {"name": "Bright", "id": "bright", "intensity": {"type": 1, "blendSetting": {"value": 80}},
     "effects": [{"effect": {"id": "exposure", "stops": 1}}]},
    {"name": "Plain", "id": "plain", "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]}"""


def run(program, folder, *arguments):
    """The lines of one run in that folder."""
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "HOME": folder, "XDG_DATA_HOME": folder}
    done = subprocess.run(
        [program, "apply", *arguments, "--json", "--only-named", "--catalogue", "looks.json"],
        cwd=folder, env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    return [json.loads(line) for line in done.stdout.decode("utf-8").splitlines()]


def make_reports(program, photo):
    with tempfile.TemporaryDirectory() as folder:
        with open(os.path.join(folder, "looks.json"), "w", encoding="utf-8") as looks:
            looks.write(LOOKS)
        for name in ("a.jpg", "b.jpg", "gr\u00fc\u00df\"e\u0001.jpg"):
            shutil.copy(photo, os.path.join(folder, name))
        with open(os.path.join(folder, "broken.jpg"), "wb") as broken:
            broken.write(b"no photo")
        photos = sorted(os.listdir(folder))
        photos.remove("looks.json")
        form = ["-o", "out/{name}.png"]
        yield run(program, folder, *photos, "a.jpg", "missing.jpg", "-p", "bright", *form)
        yield run(program, folder, *photos, "-p", "bright", "--skip", *form)
        yield run(program, folder, *photos, "-p", "bright", "--skip", "--shard", "2/3", *form)
        yield run(program, folder, "a.jpg", "-p", "bright", "--shard", "2/2", *form)
        yield run(program, folder, *photos, "-p", "bright", "--dry-run")
        yield run(program, folder, "a.jpg", "-p", "plain", "--metadata", "none", "-o", "x.jpg")


def mistakes(job, end):
    def change(line, **keys):
        changed = copy.deepcopy(line)
        changed.update(keys)
        return changed

    def drop(line, key):
        changed = copy.deepcopy(line)
        del changed[key]
        return changed

    summary = end["summary"]
    yield "another state", change(job, state="done")
    yield "no photo", drop(job, "photo")
    yield "no looks", drop(job, "looks")
    yield "a failure without a reason", change(job, state="failed")
    yield "an unknown key", change(job, result=1)
    yield "a look without a name", change(job, looks=[{"id": "bright"}])
    yield "both at once", {**job, **end}
    yield "another version", {"summary": change(summary, version=2)}
    yield "no count", {"summary": drop(summary, "written")}
    yield "a count below 0", {"summary": change(summary, failed=-1)}
    yield "nothing", {}


def main(schema_name, program, photo):
    with open(schema_name, encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    failures = []
    states = set()
    job = end = None
    for lines in make_reports(program, photo):
        if not lines or "summary" not in lines[-1]:
            failures.append(f"expected a summary at the end, found {lines[-1:]}")
            continue
        end = lines[-1]
        for line in lines:
            states.add(line.get("state"))
            job = line if line.get("state") == "written" else job
            failures += [f"{line}: {error.message}" for error in validator.iter_errors(line)]
    if not {"written", "skipped", "failed", "planned"} <= states:
        failures.append(f"expected lines of all states, found {states}")
    else:
        failures += [f"{what}: expected an error, found none" for what, line in mistakes(job, end)
                     if validator.is_valid(line)]
    print("\n".join(failures))
    return 1 if failures else 0


sys.exit(main(*sys.argv[1:]))
