#!/usr/bin/env python3
"""Writes tests/replay/plans.txt: small random plans, one per seed, for the engine's replay test.

Each plan is one line of fields split by " || ":
  start date, calendar days, work week, flags ("keep", "lock"), view ("0", "1G", "1", "2H"),
  the draws of chance, the plan in the fixture's writePlan text, the standing rows, and the
  schedule records written over the generated ones before the check.
Standing rows are group/shift/demand/designated; a demand "w:<list>" is the weekly rule form,
"d:<from>:<to>:<weeks>:<days>" the specified-date rule form, anything else the plain list.
Run again only to change the plans; then record the answers anew with the old engine.
"""
import datetime
import random
import sys

COUNT = 300


def plan(seed):
    r = random.Random(seed)
    groups = ["G", "H", "K"][: r.randint(1, 3)]
    shifts = ["S", "T", "U"][: r.randint(1, 3)]
    ids = r.sample(["A", "B", "C", "D", "E", "F", "1", "11", "21"], r.randint(1, 9))
    staff = {i: r.choice(groups + ["", "X"] if r.random() < 0.2 else groups) for i in ids}
    start = datetime.date(2026, 3, 2) + datetime.timedelta(days=r.randint(-40, 40))
    days = r.randint(1, 21)
    dates = [start + datetime.timedelta(days=d) for d in range(-3, days + 3)]
    day = lambda: r.choice(dates).isoformat()
    pick = lambda: r.choice(ids + ["Z"]) if r.random() < 0.9 else ";".join(r.sample(ids, min(2, len(ids))))

    def demand():
        k = r.random()
        nums = lambda: ";".join(str(r.choice([0, 1, 1, 1, 2, 2, 3])) for _ in range(r.choice([7, 7, 7, 3, 8])))
        if k < 0.45:
            return nums()
        if k < 0.65:
            return "w:" + nums()
        if k < 0.85:
            first = start + datetime.timedelta(days=r.randint(-10, 10))
            last = first + datetime.timedelta(days=r.randint(0, 30))
            weeks = ";".join(sorted(r.sample("12345", r.randint(1, 5))))
            wdays = ";".join(sorted(r.sample("1234567", r.randint(1, 7))))
            return "d:%s:%s:%s:%s" % (first, last, weeks, wdays)
        return r.choice(["", "2", "x;-1;2", ";;1"])

    rows = []
    for g in groups + ([""] if r.random() < 0.3 else []):
        for s in r.sample(shifts, r.randint(1, len(shifts))):
            designated = r.choice(ids + ["Z"]) if r.random() < 0.25 else ""
            rows.append("%s/%s/%s/%s" % (g, s, demand(), designated))
    if r.random() < 0.3:  # rows of one group apart
        r.shuffle(rows)

    # One record per key, as the tables' keys require.
    unique = lambda items, key: list({key(i): i for i in items}.values())
    holidays = ["%s/%d/%d/%d" % (day() if r.random() < 0.7 else day().replace("2026", "2025"), r.randint(1, 3),
                                 r.randint(0, 1), int(r.random() < 0.85)) for _ in range(r.randint(0, 2))]
    holidays = unique(holidays, lambda h: h.split("/")[0])
    vacations = ["%s/%s/%d/%d" % (pick(), day(), r.randint(1, 4), int(r.random() < 0.85)) for _ in range(r.randint(0, 3))]
    vacations = unique(vacations, lambda v: tuple(v.split("/")[:2]))
    locks = ["%s/%s/%d" % (pick(), day(), int(r.random() < 0.85)) for _ in range(r.randint(0, 4))]
    locks = unique(locks, lambda v: tuple(v.split("/")[:2]))
    cells = lambda n: ["%s/%s/%s/%s" % (day(), r.choice(groups + [""]), r.choice(shifts),
                                        ";".join(r.choice(ids + ["Z", ""]) for _ in range(r.randint(0, 3))))
                       for _ in range(n)]
    text = "group %s | shift %s | staff %s" % (" ".join(groups), " ".join(shifts),
                                                " ".join("%s/%s" % (i, g) for i, g in staff.items()))
    for kind, items in (("holiday", holidays), ("vacation", vacations), ("lock", locks), ("schedule", unique(cells(r.randint(0, 4)), lambda c: tuple(c.split("/")[:3])))):
        if items:
            text += " | %s %s" % (kind, " ".join(items))
    week = "1,2,3,4,5,6,7" if r.random() < 0.7 else ",".join(sorted(r.sample("1234567", r.randint(1, 6))))
    flags = " ".join(f for f, p in (("keep", 0.5), ("lock", 0.35)) if r.random() < p) or "-"
    view = r.choice(["0"] * 6 + ["1" + groups[0], "1", "2" + groups[-1]])
    draws = " ".join(str(r.randint(0, 99)) for _ in range(30))
    return " || ".join([start.isoformat(), str(days), week, flags, view, draws, text, " ".join(rows),
                        " ".join(cells(r.randint(0, 5)))])


if __name__ == "__main__":
    out = sys.argv[1] if len(sys.argv) > 1 else "tests/replay/plans.txt"
    with open(out, "w") as f:
        for seed in range(COUNT):
            f.write(plan(seed) + "\n")
