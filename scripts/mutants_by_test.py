#!/usr/bin/env python3
"""Mutation run that records, for each mutant, every test function that fails, not only whether
one did: which tests catch what, and which catch nothing that others do not.

Uses the mutant generator of ../shared/tools/mutants.py (same seed, same mutants), so run it as
that one is run: in a copy of the tree, built with the tests in build/, from the copy's root.
    scripts/mutants_by_test.py run SEED COUNT OUT.json   # test_crashsafety skipped (ROSTERA_SKIP)
    scripts/mutants_by_test.py sum OUT.json...           # kills per function, and those only it makes
    scripts/mutants_by_test.py lost OUT.json... -- REGEX...  # kills lost if the matching tests went
A run can be stopped and started again; mutants already in OUT.json are not run twice.
"""
import collections
import glob
import json
import os
import random
import re
import runpy
import sys
import types

HERE = os.path.dirname(os.path.abspath(__file__))


def generator():
    path = os.path.join(HERE, "..", "..", "shared", "tools", "mutants.py")
    return types.SimpleNamespace(**runpy.run_path(os.path.normpath(path)))


def failing_tests(mu, programs, env):
    fails = []
    for program in programs:
        name = os.path.basename(program)
        rc, log = mu.run([os.path.abspath(program), "-maxwarnings", "0"], 120, env)
        got = re.findall(r"^FAIL!  : \w+::(\w+)\(([^)]*)\)", log, re.M)
        fails += ["%s::%s(%s)" % (name, function, tag) for function, tag in got]
        if rc != 0 and not got:
            fails.append("%s::<crash or timeout>" % name)
    return sorted(set(fails))


def run(seed, count, out):
    mu = generator()
    files = sorted(glob.glob("src/*/*.cpp") + glob.glob("src/*.cpp"))
    pool = [m for f in files for m in mu.candidates(f)]
    chosen = sorted(random.Random(seed).sample(pool, min(count, len(pool))),
                    key=lambda m: (m["file"], m["line"], m["start"]))
    skip = set(os.environ.get("ROSTERA_SKIP", "test_crashsafety").split(","))
    programs = sorted(p for p in glob.glob("build/tests/test_*")
                      if os.path.isfile(p) and os.access(p, os.X_OK) and os.path.basename(p) not in skip)
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    build = ["cmake", "--build", "build"]
    done = json.load(open(out)) if os.path.exists(out) else []
    seen = {(m["file"], m["line"], m["start"], m["new"]) for m in done}
    if mu.run(build, 3600)[0] != 0:
        sys.exit("the unchanged project does not build")
    failing = failing_tests(mu, programs, env)
    if failing:
        sys.exit("the unchanged suite fails: " + ", ".join(failing))
    for i, m in enumerate(chosen, 1):
        if (m["file"], m["line"], m["start"], m["new"]) in seen:
            continue
        original = mu.apply(m)
        try:
            rc, _ = mu.run(build, 1800)
            m["fails"] = None if rc != 0 else failing_tests(mu, programs, env)
        finally:
            with open(m["file"], "w", encoding="utf-8", errors="surrogateescape") as f:
                f.write(original)
        done.append(m)
        json.dump(done, open(out, "w"), indent=0)
        print("%3d/%d %s:%d %s -> %s: %s" % (i, len(chosen), m["file"], m["line"], m["old"], m["new"],
              "invalid" if m["fails"] is None else ", ".join(m["fails"]) or "SURVIVED"), flush=True)
    mu.run(build, 1800)


def killed(paths):
    return [m for p in paths for m in json.load(open(p)) if m.get("fails")]


def summary(paths):
    ms = killed(paths)
    by = collections.defaultdict(set)
    for i, m in enumerate(ms):
        for test in m["fails"]:
            by[re.sub(r"\(.*\)$", "", test)].add(i)
    print("%d mutants killed" % len(ms))
    for function in sorted(by):
        alone = by[function] - set().union(*(v for g, v in by.items() if g != function))
        print("%-50s kills %3d  only it %3d" % (function, len(by[function]), len(alone)))


def lost(paths, patterns):
    regexes = [re.compile(p) for p in patterns]
    ms = killed(paths)
    gone = [m for m in ms if all(any(r.search(t) for r in regexes) for t in m["fails"])]
    for m in gone:
        print("lost %s:%d %s -> %s" % (m["file"], m["line"], m["old"], m["new"]))
    print("%d of %d kills lost" % (len(gone), len(ms)))


if __name__ == "__main__":
    args = sys.argv[1:]
    if args[:1] == ["run"] and len(args) == 4:
        run(int(args[1]), int(args[2]), args[3])
    elif args[:1] == ["sum"]:
        summary(args[1:])
    elif args[:1] == ["lost"] and "--" in args:
        lost(args[1:args.index("--")], args[args.index("--") + 1:])
    else:
        sys.exit(__doc__)
