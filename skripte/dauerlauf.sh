#!/usr/bin/env bash
# The robustness run in the sanitizer build, one piece after the other: skripte/dauerlauf.sh FIRST LAST
# [STEPS] runs the seeds FIRST to LAST with STEPS steps each (default 5000). What a piece printed and
# wrote stays in build/dauerlauf/COMMIT/SEED-STEPS; pieces that are done are not repeated, so a long
# run can be broken off and taken up again. Stops at the first fault. The sum of all pieces of the
# commit comes last.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh

erste=$1 letzte=$2 schritte=${3:-5000}
pakete_sichern "${pakete_bau[@]}"
lauf=build/dauerlauf/$(git rev-parse --short HEAD)
mkdir -p "$lauf"
bauen asan wirbelwerk_dauerlauf
programm=$PWD/build/asan/werkzeug/wirbelwerk_dauerlauf
export QT_QPA_PLATFORM=offscreen:configfile=$PWD/tests/bildschirm.json
export ASAN_OPTIONS=strict_string_checks=1:quarantine_size_mb=16:malloc_context_size=1
export UBSAN_OPTIONS=print_stacktrace=1

ergebnis=0
for ((saat = erste; saat <= letzte; ++saat)); do
    ordner=$lauf/$saat-$schritte
    grep -qs '^no fault' "$ordner/ausgabe" && continue
    rm -rf -- "$ordner"
    mkdir -- "$ordner"
    # The limit is for a step that never ends; a piece takes a minute or two.
    (cd -- "$ordner" && ulimit -S -t 3600 && exec "$programm" "$schritte" "$saat") >"$ordner/ausgabe" 2>"$ordner/meldungen" ||
        { tail -n 60 "$ordner/meldungen" >&2; echo "seed $saat: FAULT, see $ordner" >&2; ergebnis=1; break; }
done
cat "$lauf"/*/ausgabe | awk '
    / steps with seed / { schritte = $1 }
    /^processor time / { zeit = $3 }
    /^no fault/ { summe += schritte; dauer += zeit }
    END { printf "%d steps without a fault, %d s of processor time\n", summe, dauer }'
exit "$ergebnis"
