#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Quorrel authors
# SPDX-License-Identifier: MIT
"""Writes tests/data/well/trajectories.txt: random wells and their paths by minimum curvature.

A second implementation, independent of the program's, which the program's numbers are compared with. Python's floats
are the doubles of the calculation; f32() narrows to single precision where the calculation does.
"""
import random
import struct
from math import acos, asin, atan, cos, pi, sin, sqrt, tan
from pathlib import Path


def f32(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def radians(degrees):
    return f32(degrees / 180.0) * pi


def dogleg(i1, i2, a1, a2):
    return 2 * asin(sqrt(sin((i2 - i1) / 2) ** 2 + sin(i1) * sin(i2) * sin((a2 - a1) / 2) ** 2))


def course(dmd, beta):
    return dmd * 0.5 if beta == 0 else dmd * tan(beta / 2) / beta


def direction(ns, ew):
    if ns == 0:
        return 2 * pi if ew < 0 else 0.0
    if ns > 0:
        return atan(ew / ns) + (2 * pi if ew < 0 else 0)
    return atan(ew / ns) + pi


def trajectory(stations, tie_in):
    stations = sorted(stations)
    tvd, ns, ew = tie_in
    items = [[*stations[0], f32(tvd), f32(ns), f32(ew), 0.0, 0.0]]
    for (md1, i1, a1), (md2, i2, a2) in zip(stations, stations[1:]):
        r1, r2, t1, t2 = (f32(radians(x)) for x in (i1, i2, a1, a2))
        beta = dogleg(r1, r2, t1, t2)
        factor = course(md2 - md1, beta)
        tvd += (cos(r1) + cos(r2)) * factor
        ew += (sin(r1) * sin(t1) + sin(r2) * sin(t2)) * factor
        ns += (sin(r1) * cos(t1) + sin(r2) * cos(t2)) * factor
        dls = (beta / pi) * 180 * 30 / (md2 - md1)
        items.append([md2, i2, a2, f32(tvd), f32(ns), f32(ew), f32(dls), 0.0])
    closure = direction(items[-1][4], items[-1][5])
    for item in items:
        ns, ew = item[4], item[5]
        item[7] = f32(sqrt(ns * ns + ew * ew) * cos(closure - direction(ns, ew)))
    return items


def clamp(x):
    return max(-1.0, min(1.0, x))


def interpolate(items, md):
    if md == items[-1][0]:
        upper = len(items) - 1
    else:
        upper = next(i for i, item in enumerate(items) if item[0] > md)
    md1, i1, a1, tvd, ns, ew = items[upper - 1][:6]
    md2, i2, a2 = items[upper][:3]
    i1, i2, a1, a2 = (radians(x) for x in (i1, i2, a1, a2))
    beta = dogleg(i1, i2, a1, a2)
    d = md - md1
    b = beta / (md2 - md1) * d
    incl = i1
    if beta != 0 and i1 != i2:
        incl = acos(clamp(cos(i1) * cos(b) + (cos(i2) - cos(beta) * cos(i1)) / sin(beta) * sin(b)))
    azi = a1
    if a1 != a2:
        c = 0.0
        if incl != 0:
            east_free = cos(b) * sin(i1) * cos(a1)
            turned = (sin(i2) * cos(a2) - cos(beta) * sin(i1) * cos(a1)) * sin(b) / sin(beta)
            c = acos(clamp((east_free + turned) / sin(incl)))
        azi = c if min(a1, a2) - 1e-9 <= c <= max(a1, a2) + 1e-9 else 2 * pi - c
    factor = course(d, beta)
    return [md, f32(incl / pi * 180), f32(azi / pi * 180), f32(tvd + (cos(i1) + cos(i2)) * factor),
            f32(ns + (sin(i1) * cos(a1) + sin(i2) * cos(a2)) * factor),
            f32(ew + (sin(i1) * sin(a1) + sin(i2) * sin(a2)) * factor),
            f32((beta / pi) * 180 * 30 / (md2 - md1)), 0.0]


def random_well(rng, kind):
    md, incl, azi = rng.uniform(-20, 200), 0.0, rng.uniform(0, 360)
    stations = []
    for i in range(40):
        stations.append((f32(round(md, 2)), f32(round(incl, 2)), f32(round(azi, 2))))
        md += rng.uniform(8, 45)
        if kind == "vertical":
            azi = rng.uniform(0, 360)
        elif kind == "build" and i > 8:
            incl = min(92.0, incl + rng.uniform(0, 4))
            azi = (azi + rng.uniform(-6, 3)) % 360
        elif kind == "wild":
            incl = abs(incl + rng.uniform(-9, 10))
            azi = (azi + rng.uniform(-30, 30)) % 360
        elif kind == "slant":
            incl = 25.0
            azi = (azi + rng.choice([0, 0, 2.5, -4])) % 360
    rng.shuffle(stations)
    return stations


def line(word, numbers):
    return word + " " + " ".join("%.9g" % x for x in numbers)


def main():
    rng = random.Random(20240611)
    out = ["# well tvd ns ew; station md incl azi; item/at md incl azi tvd ns ew dls vs. Written by trajectory.py"]
    for kind in ("vertical", "build", "build", "wild", "wild", "slant"):
        tie_in = [round(rng.uniform(-100, 100), 3) for _ in range(3)]
        stations = random_well(rng, kind)
        items = trajectory(stations, tie_in)
        out.append(line("well", tie_in))
        out += [line("station", s) for s in stations]
        out += [line("item", i) for i in items]
        depths = [items[0][0], items[-1][0], items[17][0]]
        depths += [f32(rng.uniform(items[0][0], items[-1][0])) for _ in range(40)]
        out += [line("at", interpolate(items, md)) for md in depths]
    path = Path(__file__).resolve().parents[2] / "data/well/trajectories.txt"
    path.write_text("\n".join(out) + "\n")


main()
