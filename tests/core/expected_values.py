#!/usr/bin/env python3
"""Prints the rows that RealFilesTest.cpp expects, worked out from the files' bytes alone.

Rerun: python3 tests/core/expected_values.py FOLDER-OF-THE-REAL-FILES
Each value is unpacked at its own offset; log channels become 10 ** (value / divider), and the
spill of the other channels is summed up in double precision.
"""
import math
import struct
import sys

FILES = {  # file: channels to show
    "facscan-fcs2-int16-be/Data001.fcs": (1, 3),
    "partec-fcs2-int16-le/Partec.fcs": (1, 4),
    "eclipse-int32-le/iCyt.fcs": (1, 18),
    "lsrii-spill-pair/fake_large_fcs.fcs": (7, 9, 10),
    "aria-index-sort/index_sorted_example.fcs": (8, 10),
    "odd/AriaFile1.fcs": (4, 12),
}
OLD_SCALE = ("FACScan", "FACSCalibur")


def show(folder, name, channels):
    data = open(f"{folder}/{name}", "rb").read()
    offset = lambda at: int(data[at:at + 8].strip() or b"0")
    text = data[offset(10):offset(18) + 1].decode("latin-1")
    pieces = [piece.strip() for piece in text[1:].split(text[0])]

    def key(word, default=""):
        return pieces[pieces.index(word) + 1] if word in pieces else default

    events, count = int(key("$TOT")), int(key("$PAR"))
    begin = offset(26) or int(key("$BEGINDATA"))
    width = int(key(f"$P{count}B")) // 8
    order = "<" if key("$BYTEORD").startswith("1") else ">"
    code = {("F", 4): "f", ("I", 2): "H", ("I", 4): "I"}.get((key("$DATATYPE"), width))
    old = key("$CYT") in OLD_SCALE
    scale = {}  # channel: range, converted, log
    for n in range(1, count + 1):
        converted = "4" in key(f"$P{n}E")
        top = 10000 if converted and old else int(key(f"$P{n}R"))
        log = {"LOG": True, "LIN": False}.get(key(f"P{n}DISPLAY"), converted)
        scale[n] = (top, converted, log)

    def raw(event, n):
        at = begin + ((event - 1) * count + n - 1) * width
        value = struct.unpack_from(order + code, data, at)[0] if code else 0  # a width not read
        if code == "I":
            value &= 0xFFFFFF
        top, converted, _ = scale[n]
        if converted:
            value = 10 ** (value / (256 if old else round(top / math.log10(top))))
        return value

    spill = {}  # (from, into): factor
    if key("APPLY COMPENSATION") == "TRUE" and key("SPILL"):
        entries = key("SPILL").split(",")
        size = int(entries[0])
        names = [key(f"$P{n}N") for n in range(1, count + 1)]
        places = [names.index(name) + 1 for name in entries[1:size + 1]]
        factors = [float(entry) for entry in entries[size + 1:]]
        for i, a in enumerate(places):
            for j, b in enumerate(places):
                if factors[i * size + j] < 1:
                    spill[a, b] = factors[i * size + j]

    whole = min(events, (len(data) - begin) // (count * width))
    logs = ",".join(str(n) for n in scale if scale[n][2])
    rows = []
    for event in (1, whole):
        for n in channels:
            value = raw(event, n)
            taken = sum(f * raw(event, a) for (a, b), f in spill.items() if b == n)
            rows.append(f"{event} {n} {scale[n][0]} {value:.9g} {value - taken:.9g}")
    print(f'{{"{name}", {events}, {count}, "{logs}", "{"; ".join(rows)}"}},')


for name, channels in FILES.items():
    show(sys.argv[1], name, channels)
