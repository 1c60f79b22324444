#!/usr/bin/env bash
# Fuzzes the reader of picture data with clang's fuzzer, one piece after the other: skripte/fuzz.sh FIRST
# LAST [INPUTS] runs the seeds FIRST to LAST with INPUTS inputs each (default 50000). Inputs worth
# keeping gather in build/fuzzlauf/eingaben, where the next piece goes on. Stops at the first fault; its
# input lies in build/fuzzlauf then, and build/fuzz/werkzeug/wirbelwerk_fuzz FILE repeats it. The sum of
# all pieces of the commit and the lines of src/files and src/model that no input reached come last.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh

erste=$1 letzte=$2 eingaben=${3:-50000}
pakete_sichern "${pakete_bau[@]}" "${pakete_fuzz[@]}"
mkdir -p build/fuzzlauf/eingaben
bauen fuzz
programm=build/fuzz/werkzeug/wirbelwerk_fuzz
export ASAN_OPTIONS=strict_string_checks=1:quarantine_size_mb=16:malloc_context_size=2
export UBSAN_OPTIONS=print_stacktrace=1
export LLVM_PROFILE_FILE=build/fuzzlauf/zeilen-%m.profraw # %m: the pieces add up
TIMEFORMAT='processor time %U s'

stand=$(git rev-parse --short HEAD)
ergebnis=0
for ((saat = erste; saat <= letzte; ++saat)); do
    ausgabe=build/fuzzlauf/$stand-$saat-$eingaben
    grep -qs '^Done ' "$ausgabe" && continue
    { time "$programm" -runs="$eingaben" -seed="$saat" -max_len=232 -len_control=0 -timeout=60 \
        -rss_limit_mb=4096 -print_final_stats=1 -dict=werkzeug/fuzz.dict \
        -artifact_prefix=build/fuzzlauf/ build/fuzzlauf/eingaben werkzeug/fuzzsaat; } >"$ausgabe" 2>&1 ||
        { tail -n 60 "$ausgabe" >&2; echo "seed $saat: FAULT, see $ausgabe" >&2; ergebnis=1; break; }
done

llvm-profdata merge -o build/fuzzlauf/zeilen build/fuzzlauf/zeilen-*.profraw
echo "== lines that no input reached"
llvm-cov show "$programm" -instr-profile=build/fuzzlauf/zeilen -show-instantiations=false src/files src/model |
    awk -F'|' '
        function zeigen() { if (von) printf " %d-%d", von, bis; von = 0 }
        /^\// { zeigen(); sub(/.*\/src/, "src"); printf "\n%s", $0; next }
        $2 ~ /^ *0$/ { if (von && $1 + 0 == bis + 1) bis++; else { zeigen(); von = bis = $1 + 0 } }
        END { zeigen(); print "" }' | grep ':.* '
cat build/fuzzlauf/"$stand"-* | awk '
    /^Done / { summe += $2 }
    /^processor time/ { dauer += $3 }
    END { printf "%d inputs, %d s of processor time\n", summe, dauer }'
exit "$ergebnis"
