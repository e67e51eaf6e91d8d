#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Quorrel authors
# SPDX-License-Identifier: MIT
"""Writes tests/data/well/pipes.txt: random wells, the flow paths through their pipes, and volumes.

A second implementation, independent of the program's, which the program's results are compared with.
"""
import random
import struct
from math import inf, log10, pi
from pathlib import Path

NULL = -999.25
SQUARE_METRES = struct.unpack("f", struct.pack("f", 0.00064516))[0]


def f32(x):
    return struct.unpack("f", struct.pack("f", x))[0]


class Joint:
    def __init__(self, od, inner, length, name):
        self.od, self.id, self.length, self.name = f32(od), f32(inner), length, name

    def copy(self):
        joint = Joint(self.od, self.id, self.length, self.name)
        joint.nid, joint.nod, joint.top, joint.bottom = self.nid, self.nod, self.top, self.bottom
        return joint

    def cut(self, top=None, bottom=None):
        joint = self.copy()
        joint.top = self.top if top is None else top
        joint.bottom = self.bottom if bottom is None else bottom
        joint.length = joint.bottom - joint.top
        return joint

    def inner(self):
        return self.nid if self.id == NULL else self.id

    def outer(self):
        return self.nod if self.od == NULL else self.od

    def barrels(self, diameter, length):
        return f32(f32(diameter * diameter) * 0.25) * pi * f32(length) * SQUARE_METRES * 6.28981077

    def volume(self, length):
        return self.barrels(self.inner(), length)

    def displacement(self, length):
        return self.barrels(self.outer(), length)


class String:
    def __init__(self, name, set_depth, tubing, joints):
        self.name, self.set_depth, self.tubing, self.joints = name, set_depth, tubing, joints
        self.nid = self.longest(lambda joint: joint.id)
        self.nod = self.longest(lambda joint: joint.od)
        if self.nid == NULL and self.nod != NULL:
            self.nid = self.nod - log10(self.nod)
        elif self.nod == NULL and self.nid != NULL:
            self.nod = self.nid + log10(self.nid)
        run, bottom = 0.0, set_depth
        for joint in reversed(joints):
            run += joint.length
            joint.top, joint.bottom = set_depth - run, bottom
            joint.nid, joint.nod = f32(self.nid), f32(self.nod)
            bottom = joint.top
        self.top, self.bottom = joints[0].top, joints[-1].bottom
        self.max_od = max(joint.outer() for joint in joints)
        self.max_id = max(joint.inner() for joint in joints)

    def longest(self, diameter):
        known = [joint for joint in self.joints if diameter(joint) != NULL]
        return diameter(max(known, key=lambda joint: joint.length)) if known else NULL

    def has(self, depth):
        return self.top <= depth <= self.bottom

    def index(self, depth):
        return next((i for i, joint in enumerate(self.joints) if joint.top <= depth <= joint.bottom), None)


class Well:
    def __init__(self, strings):
        self.strings = sorted(strings, key=lambda s: (not s.tubing, s.nid))

    def outside(self, string, depth):
        i = string.index(depth)
        if i is None:
            return None
        inner, found = string.joints[i], []
        for s in self.strings:
            k = s.index(depth)
            if s.has(depth) and s.max_od > inner.od and k is not None and s.joints[k].outer() > inner.outer():
                found.append((s.joints[k].inner(), s))
        return min(found, key=lambda pair: pair[0])[1] if found else None

    def liner(self, string, depth):
        found = [s for s in self.strings if not s.tubing and depth < s.bottom and string.has(s.top)
                 and string.max_id > s.max_id and self.outside(s, s.top) is string]
        return min(found, key=lambda s: s.top) if found else None

    def trace(self, string, depth):
        liner = self.liner(string, depth)
        hung = liner is not None and liner.top > depth
        end = liner.top if hung else string.bottom
        i = string.index(depth)
        if i is None:
            return []
        path = [string.joints[i].cut(top=depth)]
        for joint in string.joints[i + 1:]:
            if not joint.top < end:
                break
            path.append(joint.copy())
        path[-1] = path[-1].cut(bottom=end)
        below = liner if hung else self.outside(string, end)
        return path + (self.trace(below, end) if below else [])

    def tubing(self):
        return next((s for s in self.strings if s.tubing), None)

    def casing_at(self, depth):
        return next((s for s in self.strings if not s.tubing and s.has(depth)), None)

    def upper_casing(self):
        return min((s for s in self.strings if not s.tubing), key=lambda s: s.top, default=None)

    def annulus(self):
        tubing = self.tubing()
        casing = (self.casing_at(tubing.top) or self.upper_casing()) if tubing else None
        return self.trace(casing, max(casing.top, tubing.top)) if casing else []

    def from_top(self):
        string = self.tubing() or self.upper_casing()
        return self.trace(string, string.top)

    def production(self, depth):
        casing = self.casing_at(depth)
        return self.trace(casing, depth) if casing else []

    def largest_at(self, depth):
        return next((s for s in reversed(self.strings) if s.has(depth)), None)

    def outer(self, start, end):
        path, depth, pipe = [], start, self.largest_at(start)
        while pipe:
            i = pipe.index(depth)
            if i is None:
                break
            joint = pipe.joints[i]
            path.append(joint.cut(top=depth))
            if joint.bottom > end:
                path[-1] = path[-1].cut(top=end)
                return path
            for joint in pipe.joints[i + 1:]:
                path.append(joint.copy())
                if joint.bottom > end:
                    path[-1] = path[-1].cut(bottom=end)
                    return path
            depth = path[-1].bottom
            pipe = self.largest_at(depth + 0.01)
        return path

    def accessible(self):
        tubing, path = self.tubing(), []
        if tubing:
            liner = self.liner(tubing, tubing.top)
            limit = liner.top if liner else tubing.bottom
            for joint in tubing.joints:
                if joint.bottom > limit:
                    return path + [joint.cut(bottom=limit)]
                path.append(joint.copy())
        return path


def total(path, start, end, barrels):
    result = 0.0
    for joint in path:
        if not joint.bottom > start:
            continue
        if joint.top >= start:
            if joint.bottom > end:
                return result + barrels(joint, end - joint.top)
            result += barrels(joint, joint.length)
        else:
            result += barrels(joint, joint.bottom - start)
    return result


def below(path, depth):
    result, limit = 0.0, inf
    for joint in reversed(path):
        if joint.bottom <= depth:
            break
        upper = min(f32(joint.bottom), limit)
        if joint.top < depth:
            return result + joint.volume(upper - depth)
        result += joint.volume(upper - joint.top)
        limit = f32(joint.top)
    return result


def random_string(rng, name, top, bottom, od, wall, tubing=False):
    joints, run = [], 0.0
    unknown = rng.choice(["", "", "od", "id", "some"])
    while run < bottom - top:
        length = round(rng.uniform(20, 160), rng.choice([0, 1, 2]))
        outer = od + rng.choice([0, 0, 0, 0.3])
        inner = outer - wall
        if unknown == "od" or (unknown == "some" and joints and rng.random() < 0.3):
            outer = NULL
        if unknown == "id" or (unknown == "some" and joints and rng.random() < 0.3):
            inner = NULL
        joints.append(Joint(outer, inner, length, "%s-%d" % (name, len(joints))))
        run += length
    return String(name, bottom, tubing, joints)


def random_well(rng, kind):
    strings, depth, top = [], 0.0, 0.0
    for name, od, wall in (("conductor", 20, 1), ("surface", 13.375, 0.9), ("casing", 9.625, 0.8),
                           ("liner", 7, 0.7), ("slim", 4.5, 0.5)):
        depth += round(rng.uniform(250, 900), 1)
        if kind == "wild":
            od, top = od + rng.uniform(-3, 3), round(rng.uniform(0, 1500), 1)
            depth = top + round(rng.uniform(200, 1500), 1)
        strings.append(random_string(rng, name, top, depth, od, wall))
        top = depth - rng.uniform(20, 120) if name in ("casing", "liner") else 0.0
    if kind != "open":
        bottom = round(rng.uniform(900, depth), 1)
        strings.append(random_string(rng, "tubing", rng.choice([0.0, 4.5]), bottom, 2.875, 0.4, True))
    rng.shuffle(strings)
    return Well(strings)


def main():
    rng = random.Random(77)
    out = ["# written by pipes.py"]

    def say(word, *values, digits=12):
        out.append(" ".join([word] + [v if isinstance(v, str) else "%.*g" % (digits, v) for v in values]))

    for kind in ("full", "full", "full", "open", "wild", "wild", "wild", "wild"):
        well = random_well(rng, kind)
        say("well")
        for s in rng.sample(well.strings, len(well.strings)):
            say("string", s.name, s.set_depth, float(s.tubing), digits=17)
            for joint in s.joints:
                say("joint", joint.name, joint.od, joint.id, joint.length, digits=17)
        say("order", *(s.name for s in well.strings))
        for s in well.strings:
            say("nominal", s.name, s.nid, s.nod, s.top)
        start, end = sorted(rng.uniform(0, 3000) for _ in range(2))
        paths = [("annulus", start, well.annulus()), ("top", start, well.from_top()),
                 ("accessible", start, well.accessible()), ("production", start, well.production(start)),
                 ("outer", start, well.outer(start, end))]
        for s in well.strings:
            depth = rng.uniform(s.top, s.bottom)
            paths.append((s.name, depth, well.trace(s, depth)))
        for name, top, path in paths:
            say("path", name, top, end, digits=17)
            for joint in path:
                say("part", joint.name, joint.top, joint.bottom)
            say("volumes", *(f32(v) for v in (
                total(path, top, end, Joint.volume), total(path, top, end, Joint.displacement), below(path, top),
                sum(joint.volume(joint.length) for joint in path))), digits=6)
    path = Path(__file__).resolve().parents[2] / "data/well/pipes.txt"
    path.write_text("\n".join(out) + "\n")


main()
