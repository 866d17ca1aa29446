#!/usr/bin/python3
"""Validates saved models against docs/saved-model.schema.json.

usage: validate_schema.py FILE...       every file must be valid
       validate_schema.py --self-test   the schema itself, the example of docs/saved-format.md, the model
                                        with everything in data/, and documents with a fault each, which
                                        must not be valid

Needs Debian's python3-jsonschema. Exit status 0: all is as it should be.
"""

import copy
import json
import re
import sys
from pathlib import Path

import jsonschema

HERE = Path(__file__).resolve().parent
DOCS = HERE.parent.parent / "docs"


def make_validator():
    schema = json.loads((DOCS / "saved-model.schema.json").read_text(encoding="utf-8"))
    kind = jsonschema.validators.validator_for(schema)
    kind.check_schema(schema)
    return kind(schema)


def problems(validator, document):
    errors = sorted(validator.iter_errors(document), key=lambda error: list(map(str, error.path)))
    return ["/".join(map(str, error.path)) + ": " + error.message[:200] for error in errors]


def read_example():
    text = (DOCS / "saved-format.md").read_text(encoding="utf-8")
    return json.loads(re.search(r"```json\n(.*?)```", text, re.DOTALL).group(1))


def misspell_member(document):
    document["model"]["nmae"] = document["model"].pop("name")


def misspell_in_class(document):
    document["model"]["designPackages"][0]["elements"][0]["isAbstrct"] = True


def name_unknown_class(document):
    document["model"]["types"][0]["class"] = "KYRBaseType"


def misplace_class(document):
    document["model"]["types"].append({"id": 9, "class": "KYRAttribute"})


def drop_id(document):
    del document["model"]["designPackages"][0]["id"]


def write_default(document):
    document["model"]["types"][1]["userDefined"] = False


def write_text_reference(document):
    document["model"]["types"][1]["baseConcreteType"] = "2"


def leave_range(document):
    document["model"]["designPackages"][0]["elements"][0]["visibility"] = 4


def change_version(document):
    document["version"] = 2


FAULTS = (misspell_member, misspell_in_class, name_unknown_class, misplace_class, drop_id, write_default,
          write_text_reference, leave_range, change_version)


def self_test(validator):
    example = read_example()
    full = json.loads((HERE / "data" / "full-model.json").read_text(encoding="utf-8"))
    found = ["example of saved-format.md: " + text for text in problems(validator, example)]
    found += ["full-model.json: " + text for text in problems(validator, full)]
    for fault in FAULTS:
        damaged = copy.deepcopy(example)
        fault(damaged)
        if not problems(validator, damaged):
            found.append(fault.__name__ + ": not noticed")
    return found


def main(arguments):
    if not arguments:
        print(__doc__, file=sys.stderr)
        return 2
    validator = make_validator()
    if arguments == ["--self-test"]:
        found = self_test(validator)
    else:
        found = []
        for name in arguments:
            document = json.loads(Path(name).read_text(encoding="utf-8"))
            found += [name + ": " + text for text in problems(validator, document)]
    for text in found:
        print(text)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
