"""Data files and text tables, each wrong in one way: pairs of what is wrong, and the content or what makes it."""
import os
import socket
import struct

from attacks.values import NUMBERS


def fcs(changes=(), header=(), delimiter=b"|", data=None, order="4,3,2,1", kind="F", bits="32"):
    """A file of four channels and 60 events, right but for the changes."""
    if data is None:
        data = b"".join(struct.pack(">f", (i * 7919) % 1024) for i in range(240))
    words = {"$PAR": "4", "$TOT": "60", "$DATATYPE": kind, "$MODE": "L", "$BYTEORD": order,
             "$NEXTDATA": "0", "$CYT": "LSRII", "APPLY COMPENSATION": "TRUE",
             "SPILL": "2,C1,C2,1,0.1,0.2,1", "$BTIM": "10:11:12", "SAMPLE ID": "one"}
    for channel in "1234":
        words |= {f"$P{channel}N": "C" + channel, f"$P{channel}B": bits, f"$P{channel}R": "1024",
                  f"$P{channel}E": "0,0", f"P{channel}DISPLAY": "LIN"}
    words |= dict(changes)
    text = delimiter + b"".join(
        key.encode() + delimiter + value.encode("utf-8", "surrogateescape") + delimiter
        for key, value in words.items())
    begin = 58 + len(text)
    parts = {"version": "FCS3.0", "text begin": 58, "text end": begin - 1, "data begin": begin,
             "data end": begin + len(data) - 1, "analysis begin": 0, "analysis end": 0} | dict(header)
    head = f"{parts.pop('version')}    " + "".join(f"{place:>8}"[:8] for place in parts.values())
    return head.encode("utf-8")[:58].ljust(58) + text + data


def wrong_fields():
    """Each field of header and TEXT with values that are none."""
    for part in ("version", "text begin", "text end", "data begin", "data end", "analysis begin"):
        for value in ["", "FCS2.0", "FCS3.1", "FCS9", "0", "-1", "57", "58", "60", "400", "99999999",
                      "1e7", "nan"]:
            yield f"{part} {value}", fcs(header={part: value})
    keys = ["$PAR", "$TOT", "$DATATYPE", "$MODE", "$BYTEORD", "$BEGINDATA", "$ENDDATA", "$NEXTDATA",
            "$BEGINSTEXT", "$ENDSTEXT", "$P1B", "$P4B", "$P1R", "$P1E", "$P1N", "$P2S", "P1DISPLAY",
            "SPILL", "$SPILLOVER", "$COMP", "$DFC1TO2", "APPLY COMPENSATION", "$CYT", "$BTIM",
            "$DATE", "SAMPLE ID", "CREATOR", "$TIMESTEP", "$FIL", "$P5N"]
    for number, key in enumerate(keys):
        for value in NUMBERS[number % 3::3]:
            yield f"{key} {value[:9]}", fcs({key: value})
    for key, values in {"$PAR": ["1000", "32768"], "$P1E": ["4,0", "400,1", "-4,0", "4,-1", "0,1e300"],
                        "SPILL": ["0", "9,C1", "2,C1,C1,0,0,0,0", "2,C1,C2,nan,inf,1e308,1", "-2,C1"],
                        "$COMP": ["2,1,2,3", "99,1", "4" + ",1e38" * 16], "P1DISPLAY": ["LOG"],
                        "$P1N": ["C2", "a\tb\nc", "n" * 70000]}.items():
        yield from ((f"{key} {value[:9]}", fcs({key: value})) for value in values)


def wrong_layouts(pick):
    """Types, widths, orders, delimiters, encodings and cuts."""
    for kind in "IFDALix":
        for bits in ("8", "10", "16", "24", "32", "64", "4096"):
            order = pick.choice(["1,2,3,4", "4,3,2,1", "1,2", "2,1,4,3", "1", "1,1,1,1", "0,-1"])
            yield f"type {kind} {bits} {order}", fcs({"$TOT": "70"}, kind=kind, bits=bits, order=order)
    for byte in b"/\\\x0c!,0$ \n\x00\xff\t\"":
        yield f"delimiter {byte}", fcs(delimiter=bytes([byte]))
    whole = fcs()
    for end in (0, 1, 5, 6, 10, 17, 57, 58, 59, 200, len(whole) - 960, len(whole) - 1, len(whole) - 7):
        yield f"cut at {end}", whole[:end]
    for name, data in {"nan": struct.pack(">f", float("nan")), "inf": struct.pack(">f", float("inf")),
                       "huge": b"\x7f\x7f\xff\xff", "negative": b"\xff\x7f\xff\xff", "tiny": b"\0\0\0\1",
                       "log zero": b"\0\0\0\0"}.items():
        yield f"all {name}", fcs({"$P1E": "4,0", "P2DISPLAY": "LOG"}, data=data * 240)
    yield "a megabyte of delimiters", whole[:18] + b" 1000057" + whole[26:58] + b"|" * 1000000
    yield "3000 channels", fcs({"$PAR": "3000"} | {f"$P{n}R": "1024" for n in range(3000)})
    yield "UTF-16", whole.decode("latin-1").encode("utf-16")
    yield "bytes", pick.randbytes(5000)


def wrong_tables():
    """Text tables with each part wrong in turn."""
    row = "1\t2\t3\r\n"
    tables = {"no title": "", "one title": "A", "titles alone": "A\tB\tC\r\n", "blank": " \t \t\r\n" * 9,
              "names": "NAME\tA\nx\t1\ny\t2\n", "names alone": "name\nx\ny\n", "CR alone": "A\tB\r1\t2\r",
              "wide": "A\t" * 40000 + "\n" + "1\t" * 40000, "short rows": "A\tB\tC\n1\n\n2\t3\n",
              "long rows": "A\tB\n" + row * 50 + "1\t" * 5000, "one long line": "A" * 3000000,
              "quotes": 'A\t"B\n"1\t2\n"\t"""\n', "commas": "A\tB\n1,5\t2,,5\n,\t1.2.3\n",
              "NUL": "A\tB\0\n\0\t1\n", "no end": "A\tB\n" + row * 20 + "4\t5", "title breaks": "\n\nA\tB\n1\t2",
              "semicolons": "A;B\n1;2\n", "only tabs": "\t" * 300, "bells": "\a\tB\x1b[2J\n1\t2\n"}
    tables |= {f"cell {value[:9]}": f"A\tB\n{value}\t{value}\n{row}" for value in NUMBERS}
    for name, text in tables.items():
        yield name, text.encode("utf-8")
    yield "UTF-16 table", "A\tB\n1\t2\n".encode("utf-16")
    yield "UTF-8 mark", "\ufeffA\tB\n1\t2\n".encode("utf-8")
    yield "Latin-1", b"\xe4\t\xff\n1\t2\n"


def sparse(path):
    path.write_bytes(fcs({"$TOT": "250000000", "$ENDDATA": "4000000500"}))
    os.truncate(path, 4 << 30)


def bound_socket(path):
    with socket.socket(socket.AF_UNIX) as made:
        made.bind(os.path.relpath(path))


def mode(bits, content):
    return lambda path: (path.write_bytes(content), path.chmod(bits))


def strange_files():
    """What stands under a name and is no plain file, and plain files under strange names."""
    yield from {"fifo": os.mkfifo, "folder": os.mkdir, "no right": mode(0, fcs()), "sparse": sparse,
                "read only": mode(0o400, fcs()), "loop": lambda path: path.symlink_to(path.name),
                "zero": lambda path: path.symlink_to("/dev/zero"), "socket": bound_socket,
                "nowhere": lambda path: path.symlink_to("/none"), "gone": lambda path: None,
                "memory": lambda path: path.symlink_to("/proc/self/mem"),
                "full": lambda path: path.symlink_to("/dev/full")}.items()


STRANGE_NAMES = ["-x.fcs", "a\nb.fcs", "\udcff\udce4.fcs", "n" * 250, "percent:%00.fcs", "a:b|c.fcs", " ",
                 ".hidden.fcs", "%s%n%x.fcs", "$HOME.fcs", "x.FCS ", "\u202egpj.fcs", "a\tb.txt", "*.fcs"]
