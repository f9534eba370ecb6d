"""Analysis sheets and packages, each wrong in one way: pairs of what is wrong, and the content."""
from attacks.data import fcs
from attacks.values import NUMBERS

WINDOW = """type location.x location.y size.x size.y file axis.x axis.y show quadrant.enabled
    quadrant.x quadrant.y density.enabled density.resolution regionlines.show fill.red border.enabled
    regionlines.showcreatedhere fastdraw.enabled background multicolor.enabled dot.size yscale smoothing
    printview.window.visible printview.stat.visible statistics.enabled statistics.x statistics.y
    statistics.column.1.visible gate id""".split()
POPULATION = """name type axis.x axis.y color.red corners created title.x title.y transparent corner.1.x
    corner.2.y""".split()
SHEET = """general.version:1.2.1
general.maxnumberofpopulations:16
population.1.name:Poly-1|type:Polygon|axis.x:1|axis.y:2|color.red:255|corners:4|created:1|corner.1.x:900\
|corner.1.y:8000|corner.2.x:7000|corner.2.y:8500|corner.3.x:7000|corner.3.y:500|corner.4.x:900|corner.4.y:700
population.3.name:Histo-3|type:Histogram|axis.x:1|axis.y:0|corners:2|created:2|corner.1.x:2500|corner.2.x:7500
definition.17.name:Poly-1 and not Histo-3|color.red:100|transparent:1
file.1.path:tube.fcs
file.2.path:table.txt
window.1.type:DotPlot|location.x:150|location.y:90|size.x:3000|size.y:3000|file:1|axis.x:1|axis.y:2|show:17\
|quadrant.enabled:1|quadrant.x:4000|quadrant.y:500|density.enabled:1|density.resolution:512|statistics.enabled:1
window.2.type:Histogram|location.x:300|size.x:3000|size.y:3000|file:1|axis.x:1|show:0|yscale:250|smoothing:2\
|statistics.enabled:1|statistics.x:1230
printview.visible:0
"""


def lines_of(sheet):
    for row in sheet.splitlines():
        first, *more = row.split("|")
        start = ".".join(first.split(":")[0].split(".")[:2])
        yield from [first] + [f"{start}.{setting}" for setting in more]


def sheets(pick):
    """Each key of every window kind and population with bad values, and lines that lie."""
    good = list(lines_of(SHEET))
    for kind in ("DotPlot", "Histogram", "Polygon"):
        number = {"DotPlot": 1, "Histogram": 2, "Polygon": 0}[kind]
        start = f"window.{number}." if number else "population.1."
        for key in WINDOW if number else POPULATION:
            for value in pick.sample(NUMBERS, 5):
                yield f"{kind} {key} {value[:9]}", "\n".join(good + [f"{start}{key}:{value}"])
    for value in NUMBERS:
        for row in ("window.{}.type:DotPlot", "window.{}.file:2", "population.{}.corners:9", "file.{}.path:tube.fcs",
                    "definition.{}.name:Poly-1", "population.1.corner.{}.x:1", "general.version:{}.{}.{}",
                    "window.1.type:{}", "file.3.path:{}", "definition.18.name:{}", "printview.{}:1"):
            yield f"{row} {value[:9]}", "\n".join(good + [row.replace("{}", value)])
    for path in (".", "/", "/dev/zero", "/dev/full", "fifo", "percent:%2e%2E/%00", "percent:%", "\udcff", "../" * 99,
                 "sheet.tessarin", "/proc/self/mem", "table.txt\\..", "a" * 5000):
        yield f"path {path[:20]}", "\n".join(good + [f"file.{n}.path:{path}" for n in range(1, 21)])
    for text in ("(" * 50000 + "Poly-1", "not " * 30000 + "Poly-1", "Poly-1 and " * 20000, "Def-18", ")", "and or not",
                 "Poly-1 or" + ")" * 999, "()" * 999, "Definition-17 and Definition-18"):
        yield f"definition {text[:20]}", "\n".join(
            good + [f"definition.{n}.name:{text}" for n in (17, 18, 32)] + ["window.1.show:18"])
    yield "all doubled", "\n".join(row for row in good for _ in range(2))
    yield "backwards", "\n".join(reversed(good))
    yield "many corners", "\n".join(good + [f"population.1.corner.{n}.x:{n}" for n in range(9999)])
    yield "fifty windows", "\n".join(
        good + [f"window.{n}.{key}:{n % 3}" for n in range(3, 60) for key in WINDOW])
    yield "CR alone", "\r".join(good)
    yield "no line ends", "".join(good)
    yield "a long line", "\n".join(good + ["window.1." + "axis." * 100000 + "x:1"])
    yield "comments", "\n".join("#" + row for row in good)


def package(entries, extra="", content=b""):
    """A package of the entries (name, length); the first window shows the first file."""
    head = "general.version:1.2.1\ngeneral.style:package\n" + "".join(
        f"file.{slot}.name:{name}\nfile.{slot}.length:{length}\n"
        for slot, (name, length) in enumerate(entries, 1))
    head += f"{extra}window.1.type:DotPlot\nwindow.1.file:1\ncontent:"
    return head.encode("utf-8", "surrogateescape") + content


def packages():
    data = fcs()
    size = len(data)
    names = ["../evil.fcs", "/evil.fcs", "..", ".", "", ".bashrc", "...x", "a/b.fcs", "a\\b.fcs", "x" * 256,
             "percent:%2e%2e%2fevil.fcs", "percent:a%00b.fcs", "percent:a%0Ab.fcs", "percent:%2ebashrc", "percent:",
             "\udcff.fcs", "notes.txt", "link.txt", "dangling", "closed", "fifo", "one.tessarin", "program", "con",
             "../" * 99, "~", "$HOME", "*", " ", "x.desktop", "\u202e.fcs", ".tessarin-x.part", "../link.txt"]
    lengths = [size, size + 1, 0, -1, 1, "nan", "1e18", "9223372036854775807", "1e308", "", "x", "4.5"]
    for number, name in enumerate(names):
        for length in [size] + lengths[1 + number % 3::4]:
            yield f"{name[:30]} {length}", package([(name, length), ("good.fcs", size)], content=data + data)
    for length in lengths:
        yield f"length {length}", package([("a.fcs", length), ("b.fcs", length), ("c.fcs", 9)], content=data)
        yield f"table length {length}", package([("a.txt", length)], content=b"A\tB\n1\t2\n")
    yield "sums overflow", package([(f"{n}.fcs", "4611686018427387903") for n in range(9)], content=data)
    yield "1001 files", package([(f"{n}.fcs", 1) for n in range(1001)], content=data * 2)
    yield "one name", package([("same.fcs", 100)] * 30, content=data * 20)
    yield "near names", package([(".a.fcs", 9), ("a.fcs", 9), ("/a.fcs", 9), ("a-2.fcs", 9)], content=data)
    yield "no content", package([("a.fcs", size)])
    yield "content twice", package([("a.fcs", size)], "content:\n", data)
    yield "paths too", package([("a.fcs", size)], "file.1.path:../old.txt\nfile.1.length:5\n", data)
    yield "length alone", package([], "file.1.length:5\nfile.99.length:5\nfile.-1.length:7\n", data)
