"""The links of the project's documents."""
import re

LINK = re.compile(r"(?<!!)\[[^\]\n]*(?:\n[^\]\n]*)?\]\((?P<target>[^)\s]+)\)")
CODE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.MULTILINE | re.DOTALL)


def anchors(text):
    """The names of a document's headings, as code hosts make them."""
    headings = re.findall(r"^#+ (.*)$", CODE.sub(lambda match: match.group(0) if "\n" not in match.group(0) else "", text), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def dead_links(root, document):
    """What the document links to and is not there."""
    text = document.read_text(encoding="utf-8")
    dead = []
    for match in LINK.finditer(CODE.sub("", text)):
        path, _, anchor = match["target"].partition("#")
        if re.match(r"[a-z]+:", path):
            continue
        file = (document.parent / path).resolve() if path else document.resolve()
        is_there = file.exists() and file.is_relative_to(root.resolve())
        if not is_there or anchor and anchor not in anchors(file.read_text(encoding="utf-8")):
            dead.append(match["target"])
    return dead


def documents(root):
    return [path for path in sorted(root.rglob("*.md")) if not path.relative_to(root).parts[0] in ("build", ".git")]
