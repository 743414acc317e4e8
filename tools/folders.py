# SPDX-License-Identifier: MIT
"""The folders under src/, what they say they use, and what they include.

A folder states its uses in its CMakeLists.txt, as libraries: zqn_library(name SOURCES ... USES ...), zqn_program(...) alike.
What holds: every include of another folder has a stated use and every stated use an include; no folder uses one of a
higher floor, nor, on floor 4, another of its own; no circle runs through folders. A header that is stated under HEADERS is
public, and includes public headers alone. Tests, and what they share in src/testing/, may look anywhere.
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

# On floor 4 each folder is one toolkit or one database; what toolkits share is for all of them.
FLOORS = {
    "runtime": 1,
    "ado": 2, "contract": 2, "forms": 2,
    "frontend/basics": 3, "frontend": 3, "dialog": 3, "definitions": 3, "catalogues": 3, "split": 3,
    "sales": 3, "sales/basics": 3, "sales/payment_types": 3, "sales/price_lists": 3, "sales/offers": 3, "sales/layouts": 3,
    "ado/sqlite": 4, "ado/odbc": 4, "desktop/shared": 4, "desktop/headless": 4, "desktop/qt": 4,
    "host": 5, "host/database": 5, "host/database/schema": 5, "host/session": 5, "host/information": 5, "host/script": 5,
    "host/desk": 5, "host/command": 5,
}
SHARED = "desktop/shared"
TESTING = "testing"

STATEMENT = re.compile(r"^zqn_(?:library|program)\(\s*([\w-]+)([^()]*)\)", re.MULTILINE)
KEYWORDS = ("SOURCES", "HEADERS", "USES", "LINKS")
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)', re.MULTILINE)


def includes(text):
    """Line, quote or angle, and name of each include."""
    for found in INCLUDE.finditer(text):
        yield text.count("\n", 0, found.start()) + 1, *found.groups()


def is_test(path):
    """Tests stand beside their subject; what they share stands in src/testing/."""
    return path.stem.endswith("_test") or TESTING in path.parts


@dataclass
class Folder:
    name: str
    file: Path
    libraries: list = field(default_factory=list)
    uses: dict = field(default_factory=dict)  # library: line of its statement
    headers: list = field(default_factory=list)  # the public ones, as they are included


def stated(source):
    """The folders under src/ by name, as their CMakeLists.txt state them."""
    folders = {}
    for file in sorted(source.rglob("CMakeLists.txt")):
        name = file.parent.relative_to(source).as_posix()
        text = re.sub(r"#.*", "", file.read_text(encoding="utf-8"))
        folder = Folder(name, file)
        for statement in STATEMENT.finditer(text):
            folder.libraries.append(statement.group(1))
            keyword = None
            for word in re.finditer(r"\S+", statement.group(2)):
                if word.group() in KEYWORDS:
                    keyword = word.group()
                elif keyword == "USES":
                    folder.uses.setdefault(word.group(), text.count("\n", 0, statement.start(2) + word.start()) + 1)
                elif keyword == "HEADERS":
                    folder.headers.append(f"{name}/{word.group()}")
        if folder.libraries and name.split("/")[0] != TESTING:
            folders[name] = folder
    return folders


def folder_of(path, folders):
    """The folder a path from src/ on belongs to: the longest name wins."""
    return max((name for name in folders if path.startswith(name + "/")), key=len, default=None)


class Tree:
    """The folders of a source tree with their arrows; `files` are the sources with their texts."""

    def __init__(self, source, files, floors=FLOORS):
        self.source, self.floors = source, floors
        self.folders = stated(source)
        self.home = {library: name for name, folder in self.folders.items() for library in folder.libraries}
        self.files = [(path, text) for path, text in files
                      if path.is_relative_to(source) and path.suffix in (".h", ".cpp") and not is_test(path)]
        self.public = {header for folder in self.folders.values() for header in folder.headers}

    def uses(self, name):
        """The folders that a folder says it uses."""
        return sorted({self.home[library] for library in self.folders[name].uses if library in self.home} - {name})

    def complaints(self):
        """Pairs of a place, a path with its line, and what is wrong there."""
        for rule in (self.known, self.included, self.floors_kept, self.circles, self.public_headers):
            yield from rule()

    def known(self):
        for path, _ in self.files:
            relative = path.relative_to(self.source).as_posix()
            if folder_of(relative, self.folders) is None:
                yield path, 1, "stands in no folder with a library"
        for folder in self.folders.values():
            if folder.name not in self.floors:
                yield folder.file, 1, "stands on no floor; give the folder a row in tools/folders.py"
            for library, line in folder.uses.items():
                if library not in self.home:
                    yield folder.file, line, f"{library} is no library of a folder"

    def included(self):
        seen = {name: set() for name in self.folders}
        for path, text in self.files:
            name = folder_of(path.relative_to(self.source).as_posix(), self.folders)
            if name is None:
                continue
            for line, quote, header in includes(text):
                if quote == "<":
                    continue
                other = folder_of(header, self.folders)
                if other is None:
                    yield path, line, f'"{header}" is not written from src/ on'
                elif other != name:
                    seen[name].add(other)
                    if other not in self.uses(name):
                        yield path, line, f'"{header}" is of {other}, which {name} does not say it uses'
        for name, folder in self.folders.items():
            for library, line in folder.uses.items():
                other = self.home.get(library)
                if other not in (None, name) and other not in seen[name]:
                    yield folder.file, line, f"says it uses {library}, and includes nothing of {other}"

    def floors_kept(self):
        for name, folder in self.folders.items():
            floor = self.floors.get(name)
            for library, line in folder.uses.items():
                other = self.home.get(library)
                above = self.floors.get(other)
                if None in (floor, above) or other == name:
                    continue
                if above > floor:
                    yield folder.file, line, f"{other} stands on floor {above}, this is floor {floor}"
                elif above == floor == 4 and other != SHARED:
                    yield folder.file, line, f"{other} stands beside this folder, where each is one toolkit or one database"

    def circles(self):
        done, road = set(), []

        def walk(name):
            if name in road:
                circle = road[road.index(name):] + [name]
                yield self.folders[name].file, 1, "a circle of folders: " + " -> ".join(circle)
            elif name not in done:
                road.append(name)
                for other in self.uses(name):
                    yield from walk(other)
                done.add(road.pop())

        for name in self.folders:
            yield from walk(name)

    def public_headers(self):
        texts = {path.relative_to(self.source).as_posix(): (path, text) for path, text in self.files}
        for folder in self.folders.values():
            for header in folder.headers:
                if header not in texts:
                    yield folder.file, 1, f"the public header {header} does not exist"
                    continue
                path, text = texts[header]
                for line, quote, included in includes(text):
                    if quote == '"' and included not in self.public:
                        yield path, line, f'a public header includes "{included}", which is not stated as public'

    def arrows(self):
        """The picture for docs/architecture.md: each arrow that no longer road of arrows stands for."""
        reached = {}

        def below(name):
            if name not in reached:
                reached[name] = set()
                for other in self.uses(name):
                    reached[name] |= {other} | below(other)
            return reached[name]

        def mark(name):
            return re.sub(r"\W", "_", name)

        lines = ["```mermaid", "flowchart TD"]
        for floor in sorted(set(self.floors.values()), reverse=True):
            lines.append(f"  subgraph floor {floor}".replace("floor ", "floor") + f'["floor {floor}"]')
            lines += [f'    {mark(name)}["{name}"]' for name in sorted(self.folders) if self.floors.get(name) == floor]
            lines.append("  end")
        for name in sorted(self.folders, key=lambda name: (-self.floors.get(name, 0), name)):
            straight = [other for other in self.uses(name)
                        if not any(other in below(between) for between in self.uses(name))]
            lines += [f"  {mark(name)} --> {mark(other)}" for other in straight]
        return "\n".join([*lines, "```"]) + "\n"
