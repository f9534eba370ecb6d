"""Tools that ask for what they should not get: pairs of what is wrong, and the text."""
import pathlib
import re

from attacks.values import NUMBERS

GOOD = {"N": "1", "P": "1", "K": "1", "I": "2", "J": "3", "S": "number", "Q": "ul", "V": "5", "W": "4", "C": "2",
        "E": "1+2*(3)", "X": "500", "NAME": "made", "PATH": ".", "TEXT": "word", "PROMPT": "?", "TITLE": "?",
        "START": ".", "A=B": "1=1", "A>B": "1>2", "A<B": "2<1"}
PLACES = ["/dev/full", "/dev/zero", ".hidden", "program", "binary", "closed/x", "link.txt", "old.bmp", "notes.txt",
          "fifo", "../x", "/none/x", ".d/x", "n" * 300, "tube.fcs", "", ".", "closed", "dangling"]
LOOPS = {
    "boxes": "do:3000\nmessage:box\nloop", "questions": "do:3000\nquestion.$x.input:?\nloop", "no loop": "do:5",
    "no do": "loop", "deep": "do:2\n" * 101, "rounds": "do:100000\n$n.calc:$n+1\nloop", "zero": "do:0\nloop",
    "nested": "do:200\ndo:200\n$n.calc:$n+1\nloop\nloop", "crossed": "do:3\n$n.if.equals:1\nloop\nendif\nloop",
    "doubling": "$x.set:ab\n" + "$x.set:$x$x\n" * 45, "own name": "$x.set:a\n$x.set:$x$x$y\n$y.set:$x$y\n" * 99,
    "open ifs": "$x.set:1\n" + "$x.if.equals:1\n" * 20000, "endifs": "endif\n" * 20000, "blank": "\n \n\t\n",
    "dots": "." * 9999, "colons": ":" * 9999, "long": "$x.set:" + "y" * 3000000,
    "variables": "".join(f"$v{n}.set:{n}\n" for n in range(5000)),
    "windows": "".join(f"create.{kind}:{n}\n" for kind in ("dotplot", "histogram") for n in range(1, 51)),
    "reports": "".join(f"output.set:made{n}\noutput.write:x\n" for n in range(300)),
    "big report": "output.set:/dev/full\n" + f"output.write:{'z' * 900}\n" * 99,
    "walk": "do:50\nw.1.file.move:next\nloop"}
WORDS = """Abs Sgn Int Fix Round Sqr Exp Log Atn Rnd Len Left Mid InStr Replace Space String Chr ChrW Asc CInt
    Hex""".split()


def forms():
    """The commands and queries that the document on tools lists, one by one.

    A short one takes the place of the words from where a name of its row begins again, else of the last.
    """
    document = pathlib.Path(__file__).resolve().parents[2] / "docs" / "tools.md"
    for row in re.findall(r"^\| (`.*?) \|", document.read_text(encoding="utf-8"), re.M):
        first, *more = re.findall(r"`([^`]+)`", row)
        path, colon, value = first.partition(":")
        words = path.split(".")
        again = [other.split(".")[0] for other in more if "." in other]
        kept = next((at for at, word in enumerate(words) if word in again), len(words) - 1)
        yield first
        for other in more:
            if re.match(r"[$@]|create|update|[wpf]\.", other):
                yield other
                continue
            if value and not re.search("[.:]", other):
                yield f"{path}:{other}"
            if not value or value in GOOD:
                yield ".".join(words[:kept] + [other if ":" in other else other + colon + value])


def filled(form, pick, bad):
    """A form with values for its letters: good ones, or bad behind the colon, in the words or in both."""
    path, colon, value = form.partition(":")
    words = [(pick.choice(NUMBERS) if "words" in bad else GOOD[word]) if word in GOOD else word
             for word in path.split(".")]
    if value in GOOD:
        worse = PLACES if value in ("NAME", "PATH") else NUMBERS
        value = pick.choice(worse) if "value" in bad else GOOD[value]
    line = ".".join(words) + colon + value
    return "$s.set:" + line + "\noutput.write:$s" if line.startswith("@") else line


def tools(pick):
    begin = "$x.set:3\noutput.set:made\n"
    for form in sorted(set(forms())):
        for text in dict.fromkeys(filled(form, pick, bad) for bad in ([], ["value"], ["value", "words"])):
            yield form, begin + text + "\nupdate.window:all\n"
    for place in PLACES:
        yield f"report {place[:20]}", f"output.set:{place}\noutput.write:report of $x[tab]\noutput.close\n"
        yield f"picture {place[:20]}", f"w.1.saveimage:{place}\n"
        yield f"folder {place[:20]}", f"folder.set:{place}\noutput.set:made\noutput.write:x\nw.1.saveimage:made\n"
        yield f"load {place[:20]}", f"w.1.file.load:{place}\nw.1.file.move:next\n"
    for name, text in LOOPS.items():
        yield f"loop {name}", begin + text + "\n"
    for word in WORDS:
        for value in ("", "2147483647", "-1e308", '"a",99999999999', '2147483647,"a"', '"x","",-1'):
            yield f"{word} {value}", f"$x.calc:{word}({value})\n$y.calc:Len({word}({value}) & {word}({value}))\n"
    for text in ("1/0", "0\\0", "5 Mod 0", "2^2^2^2^2^2", "(" * 90000, "-" * 90000 + "1", "1+" * 90000, '"' * 99,
                 "9223372036854775807*-1", "-2147483648\\-1", "Not " * 50000 + "1", "1e999", "&HFFFFFFFFFF", "0/0"):
        yield f"expression {text[:20]}", f"$x.calc:{text}\nmessage:$x\n"
