#!/usr/bin/env bash
# Builds the libFuzzer targets in build-fuzz/ (clang, address and undefined-behaviour checks) and
# runs each, or those named after the seconds (csv, staffnum, xml, opendb), for the given seconds
# (default 60) on a corpus seeded from the project's templates and test data, printing its
# executions, coverage and crashes. Inputs that crash are left in build-fuzz/crashes/<target>/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
targets="${*:2}"
. scripts/deps.sh
rostera_install_missing
rostera_install_missing clang libclang-rt-dev
CC=clang CXX=clang++ cmake -S . -B build-fuzz -DROSTERA_FUZZ=ON -DBUILD_TESTING=OFF -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build-fuzz -j"$(nproc)" --target fuzz_csv fuzz_staffnum fuzz_xml fuzz_opendb

# Seeds: the CSV templates with each line end, demand values and rules, report titles, plans.
seeds=build-fuzz/seeds
rm -rf "$seeds" && mkdir -p "$seeds"/{csv,staffnum,xml,opendb}
for f in src/resources/datas/*.csv; do
    name=$(basename "$f" .csv)
    tr -d '\r' < "$f" > "$seeds/csv/$name-lf"
    sed 's/$/\r/' "$seeds/csv/$name-lf" > "$seeds/csv/$name-crlf"
    tr '\n' '\r' < "$seeds/csv/$name-lf" > "$seeds/csv/$name-cr"
    iconv -f UTF-8 -t LATIN1//TRANSLIT "$seeds/csv/$name-lf" > "$seeds/csv/$name-latin1" 2>/dev/null || true
done
i=0
for value in "1;2;0;1;1;1;1" ";;3" "<dt t='0' stn='2;2;2;2;2;1;0'/>" "<dt t='1' sdt='2026-03-01' edt='2026-03-31' week='1;5' dayweek='1;2'/>" ""; do
    printf '\x02\x10%s' "$value" > "$seeds/staffnum/$i"; printf '%s' "$value" > "$seeds/xml/$i"; i=$((i + 1))
done
printf '<report><type0 title="Monthly &amp; more" printDetail="1"/></report>' > "$seeds/xml/report"
: > "$seeds/opendb/empty"
# A plan file with the program's own tables (their statements read from the source) and a few rows.
python3 - "$seeds/opendb/plan.db" <<'PY'
import re, sqlite3, sys
db = sqlite3.connect(sys.argv[1])
for sql in re.findall(r'"(CREATE TABLE \[t_\w+\][^"]*)"', open("src/persistence/databasefunc.cpp").read()):
    db.execute(sql)
db.execute("insert into t_version values ('2.08.03')")
db.execute("insert into t_staffinfo (id, groupname) values ('E1', 'G')")
db.execute("insert into t_schedule values ('2026-03-02', 'G', 'S', 'E1;E2')")
db.commit()
PY

export LSAN_OPTIONS="suppressions=$PWD/fuzz/lsan.supp"
status=0
for target in ${targets:-csv staffnum xml opendb}; do
    rm -rf "build-fuzz/crashes/$target"
    mkdir -p "build-fuzz/corpus/$target" "build-fuzz/crashes/$target"
    echo "== fuzz_$target for $seconds s"
    build-fuzz/fuzz/fuzz_$target -max_total_time="$seconds" -print_final_stats=1 -rss_limit_mb=4096 \
        -artifact_prefix="build-fuzz/crashes/$target/" "build-fuzz/corpus/$target" "$seeds/$target" 2>&1 |
        grep -E "^#[0-9]+ +DONE|stat::number_of_executed_units|cov:|ERROR|SUMMARY" | tail -4 || true
    # Inputs that merely ran long (slow-unit-*, as on a busy machine) are kept but are no crash.
    crashes=$(ls "build-fuzz/crashes/$target" | grep -vc '^slow-unit' || true)
    echo "fuzz_$target: crashes $crashes, slow inputs $(ls "build-fuzz/crashes/$target" | grep -c '^slow-unit' || true)"
    [ "$crashes" -eq 0 ] || status=1
done
exit $status
