#!/usr/bin/env python3
"""The station table of a whole LandXML profile as CSV, in plain Python.

The yardstick for gradewise-cli's table over a profile: the same rows, computed in
the same order of operations and written in the same number format, with nothing
but the standard library. Usage: profile_table.py PROFILE.xml INTERVAL
"""
import math
import sys
import xml.etree.ElementTree as ET
from decimal import ROUND_HALF_UP, Decimal

FOUR_DECIMALS = Decimal("0.0001")


def format_number(value):
    """The number format: 15 significant digits, then half away from zero at four decimals."""
    if value == 0:
        return "0.0"
    text = format(Decimal("%.14e" % value).quantize(FOUR_DECIMALS, rounding=ROUND_HALF_UP), "f")
    whole, decimals = text.split(".")
    decimals = decimals.rstrip("0") or "0"
    if whole == "-0" and decimals == "0":
        whole = "0"
    return whole + "." + decimals


def station_text(value, metric):
    if value < 0:
        return "-" + station_text(-value, metric)
    k = 1000.0 if metric else 100.0
    whole = math.trunc(value / k)
    plus = format_number(value - whole * k)
    width = 3 if metric else 2
    digits = plus.index(".")
    return "%d+%s%s" % (whole, "0" * max(0, width - digits), plus)


class Parabola:
    """A piece of the profile: a tangent when its grades are equal."""

    def __init__(self, pvc, elevation, length, g1, g2):
        self.pvc, self.elevation, self.length, self.g1, self.g2 = pvc, elevation, length, g1, g2

    def end(self):
        return self.pvc + self.length

    def elevation_at(self, x):
        f1 = self.g1 / 100
        a = (self.g2 / 100 - f1) / self.length / 2
        return self.elevation + f1 * x + a * (x * x)

    def grade_at(self, x):
        return self.g1 + (self.g2 - self.g1) * x / self.length

    def turning_point(self):
        g1, g2 = self.g1, self.g2
        if (g1 > 0 and g2 > 0) or (g1 < 0 and g2 < 0) or g1 == g2 or not self.length > 0:
            return None
        return self.pvc - g1 * self.length / (g2 - g1)


def read_profile(path):
    root = ET.parse(path).getroot()
    ns = {"lx": "http://www.landxml.org/schema/LandXML-1.2"}
    metric = root.find("lx:Units/lx:Metric", ns) is not None
    pvis = []
    for element in root.find(".//lx:ProfAlign", ns):
        kind = element.tag.split("}")[1]
        station, elevation = (float(word) for word in element.text.split())
        halves = None
        if kind == "ParaCurve" and float(element.get("length")) > 0:
            halves = (float(element.get("length")) / 2, float(element.get("length")) / 2, True)
        elif kind == "UnsymParaCurve":
            halves = (float(element.get("lengthIn")), float(element.get("lengthOut")), False)
        pvis.append((station, elevation, halves))
    return metric, pvis


def pieces_and_points(pvis):
    grades = [(pvis[i + 1][1] - pvis[i][1]) / (pvis[i + 1][0] - pvis[i][0]) * 100 for i in range(len(pvis) - 1)]
    curves = [None] * len(pvis)
    points = []
    for i, (station, elevation, halves) in enumerate(pvis):
        n = " %d" % (i + 1)
        if halves is None:
            points.append((station, "PVI" + n))
            continue
        l1, l2, symmetric = halves
        g1, g2 = grades[i - 1], grades[i]
        pvc = station - l1
        pvc_elevation = elevation - g1 / 100 * l1
        if symmetric:
            parts = [Parabola(pvc, pvc_elevation, l1 + l2, g1, g2)]
        else:
            common = (g1 * l1 + g2 * l2) / (l1 + l2)
            first = Parabola(pvc, pvc_elevation, l1, g1, common)
            parts = [first, Parabola(station, first.elevation_at(l1), l2, common, g2)]
        curves[i] = parts
        points += [(pvc, "PVC" + n), (station, "PVI" + n), (station + l2, "PVT" + n)]
        for part in parts:
            tp = part.turning_point()
            if tp is not None:
                points.append((tp, ("High point" if g1 > g2 else "Low point") + n))
                break
    pieces = []
    for j in range(len(pvis) - 1):
        start = curves[j][-1].end() if curves[j] else pvis[j][0]
        stop = curves[j + 1][0].pvc if curves[j + 1] else pvis[j + 1][0]
        if stop > start:
            g = grades[j]
            pieces.append(Parabola(start, pvis[j][1] + g / 100 * (start - pvis[j][0]), stop - start, g, g))
        if curves[j + 1]:
            pieces += curves[j + 1]
    return pieces, points


def main():
    metric, pvis = read_profile(sys.argv[1])
    interval = float(sys.argv[2])
    pieces, points = pieces_and_points(pvis)
    begin, end = pvis[0][0], pvis[-1][0]
    eps = max(1e-9, 1e-14 * max(abs(begin), abs(end)))
    points.sort(key=lambda p: p[0])
    named = []
    for station, name in points:
        if named and station - named[-1][0] <= eps:
            named[-1][1] += "/" + name
        else:
            named.append([station, name])

    out = ["Station,Elevation (%s),Grade (%%),Point" % ("m" if metric else "ft")]
    index = 0
    last = None

    def row(station, name):
        nonlocal index, last
        while index + 1 < len(pieces) and station >= pieces[index].end():
            index += 1
        piece = pieces[index]
        x = station - piece.pvc
        out.append("%s,%s,%s,%s" % (station_text(station, metric), format_number(piece.elevation_at(x)),
                                    format_number(piece.grade_at(x)), name))
        last = station

    first = math.ceil(begin / interval)
    count = int(math.floor(end / interval) - first + 1)
    nxt = 0
    for i in range(count + 1):
        station = (first + i) * interval if i < count else math.inf
        while nxt < len(named) and named[nxt][0] <= station + eps:
            row(named[nxt][0], named[nxt][1])
            nxt += 1
        if i == count:
            break
        if last is not None and station - last <= eps:
            continue
        row(station, "")
    sys.stdout.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main()
