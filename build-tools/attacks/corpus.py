"""All cases of an attack: what the other files here make, and random damage to it."""
import dataclasses
import os
import pathlib
import re

from attacks import data, sheets, tools
from attacks.values import NUMBERS


@dataclasses.dataclass
class Case:
    """One attack: a file, and what is wrong with it."""
    kind: str  # data, sheet, package or tool
    wrong: str
    file: str  # its name
    content: object  # bytes, or what makes the file at a path

    def put(self, folder):
        """Makes the file and gives its path from `folder`; a package gets a folder of its own."""
        path = pathlib.Path(self.file)
        if self.kind == "package":
            path = path.stem / path
            surroundings(folder / path.parent)
        if callable(self.content):
            self.content(folder / path)
        else:
            (folder / path).write_bytes(self.content)
        return str(path)


def surroundings(folder):
    """Files of all sorts, none of which may change but for notes.txt and old.bmp, which tools may write to."""
    (folder / "closed").mkdir(parents=True)
    (folder / ".d").mkdir()
    files = {"notes.txt": b"a report\r\n", "old.bmp": b"BM....", ".hidden": b"text", "program": b"#!/bin/sh\n",
             "binary": b"\0\1\2", ".d/x": b"text", "closed/x": b"text", "table.txt": b"A\tB\n1\t2\n3\t4\n",
             "tube.fcs": data.fcs(), "tube2.fcs": data.fcs({"$TOT": "40"}),
             "sheet.tessarin": "\n".join(sheets.lines_of(sheets.SHEET)).encode()}
    for name, content in files.items():
        (folder / name).write_bytes(content)
    (folder / "program").chmod(0o755)
    (folder / "closed" / "x").chmod(0o444)
    (folder / "closed").chmod(0o555)
    for name, target in {"link.txt": ".hidden", "dangling": "closed/none", "other.txt": "program"}.items():
        (folder / name).symlink_to(target)
    os.mkfifo(folder / "fifo")


def damaged(content, pick):
    """A good file after one to four kinds of random damage."""
    for _ in range(pick.randint(1, 4)):
        at, other = sorted(pick.choices(range(len(content) + 1), k=2))
        numbers = list(re.finditer(rb"\d+", content[:20000]))
        way = pick.randrange(6)
        if way == 0:
            content = content[:at] + content[other:]
        elif way == 1:
            content = content[:other] + content[at:other] * pick.randint(1, 3) + content[other:]
        elif way == 2 and numbers:
            found = pick.choice(numbers)
            content = content[:found.start()] + pick.choice(NUMBERS).encode()[:40] + content[found.end():]
        elif way == 3:
            content = content[:other]
        else:
            changed = bytearray(content)
            for _ in range(pick.randint(1, 12)):
                if changed:
                    changed[pick.randrange(min(len(changed), 1 << pick.randint(6, 20)))] = pick.randrange(256)
            content = bytes(changed)
    return content


def listed(kind, pairs, ending):
    for number, (wrong, content) in enumerate(pairs, 1):
        if isinstance(content, str):
            content = content.encode("utf-8", "surrogateescape")
        yield Case(kind, wrong, f"{kind}-{number}.{ending}", content)


def corpus(folder, pick):
    """Lists of cases, those of a kind together; cases of a list may share a start, but for tools."""
    found = [
        list(listed("data", [*data.wrong_fields(), *data.wrong_layouts(pick), *data.strange_files()], "fcs")),
        list(listed("table", data.wrong_tables(), "txt")),
        list(listed("sheet", sheets.sheets(pick), "tessarin")),
        list(listed("package", sheets.packages(), "tessarin")),
        list(listed("tool", tools.tools(pick), "tsrscript"))]
    found[0] += [Case("data", "a strange name", name, data.fcs()) for name in data.STRANGE_NAMES]
    samples = [data.fcs(), data.fcs({"$P1E": "4,0"}, kind="I", bits="16", order="1,2")]
    if folder:
        samples += [path.read_bytes()[:200000] for path in sorted(folder.rglob("*")) if path.is_file()]
    rows = [b"NAME\tA\tB\r\nx\t1.5\t2\r\ny\t3\t4\r\n", b"A\tB\n" + b"1,5\t-2e3\n" * 99]
    for cases, seeds, count in zip(found, (samples, rows, None, None, None), (400, 100, 300, 150, 200)):
        seeds = seeds or [case.content for case in cases if len(case.content) < 100000]
        damages = [(f"damage {number}", damaged(pick.choice(seeds), pick)) for number in range(count)]
        kind, ending = cases[0].kind, cases[0].file.rpartition(".")[2]
        cases += [dataclasses.replace(case, file=f"damaged-{case.file}")
                  for case in listed(kind, damages, ending)]
    return found
