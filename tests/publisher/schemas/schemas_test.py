"""What every verb prints with --json follows its schema, which names every member, as does its page in docs/formats.

Usage: schemas_test.py PUBLISHER-FOLDER PROGRAM"""
import copy
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import zipfile

import jsonschema

FEED = """<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"
     xmlns:p="https://pelnar.example/xml-namespaces/appcast"><channel>
<item><title>Two</title>MORE<pelnar1_Note>text</pelnar1_Note><pelnar1_Odd x="y"/>
  <enclosure url="https://a.example/5.2.zip" length="20" sparkle:version="5.2"/>
  <sparkle:deltas><enclosure url="https://a.example/1" length="3" sparkle:deltaFrom="5.1"/>
    <enclosure url="https://a.example/2" length="3" sparkle:deltaFrom="5.1.0"/></sparkle:deltas></item>
<item><p:withdrawn/><enclosure url="https://a.example/5.1.zip" length="19" sparkle:version="5.1"/></item>
<item><sparkle:channel>beta</sparkle:channel><enclosure url="https://a.example/6.zip" length="0" sparkle:version="6"/></item>
</channel></rss>"""
BETA = FEED.replace("MORE", "<sparkle:channel>beta</sparkle:channel>")
FEED = FEED.replace("MORE", "")
LOG_LINE = "I20261121 06:41:22.123456 777 SparkleManager:"
LOG = (LOG_LINE + "560] static Pelnar::App::SparkleManager &Pelnar::App::SparkleManager::GetInstance()\n" + LOG_LINE +
       "318] void Pelnar::App::SparkleManager::Impl::SetState((anonymous namespace)::State): "
       "Switch from WAITING to FETCHING_INFO\n")


def make_bundle(path, version):
    with zipfile.ZipFile(path, "w") as archive:
        archive.writestr("App.app/Resources/Info-gnustep.plist",
                         f'{{ CFBundleIdentifier = "com.example.app"; CFBundleVersion = "{version}"; '
                         f'CFBundleShortVersionString = "{version}"; NSExecutable = "App"; }}')
        program = zipfile.ZipInfo("App.app/App")
        program.external_attr = 0o100755 << 16
        archive.writestr(program, "#!/bin/sh\n" + version)


def make_questions(folder, run):
    """Command lines by the name of a schema."""
    for name, text in (("feed.xml", FEED), ("beta.xml", BETA), ("log", LOG)):
        (folder / name).write_text(text)
    feed, beta = folder / "feed.xml", folder / "beta.xml"
    for version in ("1.0", "2.0"):
        make_bundle(folder / f"{version}.zip", version)
    run("delta", "create", folder / "1.0.zip", folder / "2.0.zip", "-o", folder / "d.delta")
    client = ("--system-version", "12", "--local-version")
    return {
        "explain": [("explain", feed, *client, "5.1"), ("explain", beta, *client, "5.1", "--rollout-group", "2"),
                    ("explain", feed, *client, "5", "--channels", "beta")],
        "matrix": [("matrix", feed, "--versions", "from-feed", "--systems", "11,unknown")],
        "diff": [("diff", feed, beta), ("diff", beta, feed), ("diff", feed, feed)],
        "simulate": [("simulate", feed, "--days", "2", "--clients", "3")],
        "lint": [("lint", feed), ("lint", feed, beta)],
        "timeline": [("timeline", folder / "log")],
        "delta-show": [("delta", "show", folder / "d.delta")],
    }


def closed(schema):
    """The schema without room for members that it does not name."""
    if isinstance(schema, dict):
        result = {key: closed(value) for key, value in schema.items()}
        if "properties" in schema:
            result["additionalProperties"] = False
        return result
    return [closed(each) for each in schema] if isinstance(schema, list) else schema


def spoilt(document):
    """The document without each member, and with another value in its place."""
    for key in document:
        less = copy.deepcopy(document)
        del less[key]
        yield f"without {key}", less
        yield f"with another {key}", {**document, key: {"other": 1}}


def main():
    publisher, program = pathlib.Path(sys.argv[1]), sys.argv[2]
    failures = []

    def run(*arguments):
        result = subprocess.run([program, *map(str, arguments)], capture_output=True, text=True, timeout=60, check=False)
        if result.returncode not in (0, 1):
            failures.append(f"{arguments}: status {result.returncode}, {result.stderr}")
        return result.stdout

    completion = (publisher / "description/pelnar-appcast.bash").read_text()
    verbs = {verb.replace(" ", "-") for verb in re.findall(r'"([a-z -]+)"\) words="[^"]* --json[ "]', completion)}
    schemas = {path.name.split(".")[0]: path for path in (publisher / "schemas").glob("*.schema.json")}
    with tempfile.TemporaryDirectory() as name:
        questions = make_questions(pathlib.Path(name), run)
        if not verbs or not verbs == set(schemas) == set(questions):
            failures.append(f"verbs with --json: {verbs}; schemas: {set(schemas)}; questions: {set(questions)}")
        for schema_name, path in schemas.items():
            schema = json.loads(path.read_text())
            jsonschema.Draft202012Validator.check_schema(schema)
            page = (publisher.parent / f"docs/formats/{schema_name}-json.md").read_text()
            failures += [f"{schema_name}: its page does not name {word}"
                         for word in (path.name, *(f"`{key}`" for key in schema.get("properties", {}))) if word not in page]
            validator = jsonschema.Draft202012Validator(closed(schema))
            for arguments in questions.get(schema_name, []):
                document = json.loads(run(*arguments, "--json") or "{}")
                failures += [f"{arguments}: {error.json_path}: {error.message}"
                             for error in validator.iter_errors(document)]
                failures += [f"{schema_name}: accepts a document {how}" for how, other in spoilt(document)
                             if how != "without streams" and validator.is_valid(other)]
    print("\n".join(failures) or f"{len(schemas)} schemas hold")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
