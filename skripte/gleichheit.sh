#!/usr/bin/env bash
# The same picture everywhere: builds the tests of the kernels and the golden pictures in several
# ways, one after the other, and runs them.
#
#     skripte/gleichheit.sh [WAY...]
#
# Ways are g++-O1, g++-O2, g++-O3, g++-O3-native, clang++ and arm64; without any it takes all. For
# arm64 a cross compiler builds against Debian's packages for 64-bit ARM, unpacked below build/,
# and user-mode emulation runs the tests. Installs what is missing. No part of ./check, since all
# ways together take about half an hour of processor time.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh

tests=(test_kerne test_quotient test_zeilenkern test_goldbilder test_aufwand)
wege=(g++-O1 g++-O2 g++-O3 g++-O3-native clang++ arm64)
arm_wurzel=build/gleichheit/arm64-wurzel

# arm_wurzel_anlegen: unpacks what a program for 64-bit ARM is built against and runs with. apt gets
# a state of its own, so that this machine's packages stay as they are.
arm_wurzel_anlegen() {
    local wurzel=$arm_wurzel stand=$PWD/$arm_wurzel.apt paket verweis
    [[ ! -e $wurzel/fertig ]] || return 0
    rm -rf "$wurzel" "$stand"
    mkdir -p "$wurzel" "$stand"/{lists,archives}/partial
    : >"$stand/status"
    local apt=(apt-get -qq -y -o APT::Architecture=arm64 -o APT::Architectures=arm64
        -o APT::Sandbox::User=root -o "Dir::State=$stand" -o "Dir::State::status=$stand/status"
        -o "Dir::Cache=$stand")
    "${apt[@]}" update
    "${apt[@]}" install --no-install-recommends --download-only "${pakete_arm64[@]}"
    for paket in "$stand"/archives/*.deb; do
        dpkg -x "$paket" "$wurzel"
    done
    # Absolute links would lead out of the folder.
    find "$wurzel" -type l -lname '/*' -print0 | while IFS= read -r -d '' verweis; do
        ln -sfnr "$wurzel$(readlink "$verweis")" "$verweis"
    done
    rm -r "$stand"
    : >"$wurzel/fertig"
}

# weg_bauen WAY FOLDER: configures and builds the tests. Without a build type the flags given here
# are the only ones, also for the lanes.
weg_bauen() {
    local angaben=()
    case $1 in
    g++-O3-native) angaben=(-DCMAKE_BUILD_TYPE= -DCMAKE_CXX_COMPILER=g++
            "-DCMAKE_CXX_FLAGS=-O3 -march=native") ;;
    g++-O[123]) angaben=(-DCMAKE_BUILD_TYPE= -DCMAKE_CXX_COMPILER=g++ "-DCMAKE_CXX_FLAGS=${1#g++}") ;;
    clang++) angaben=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=clang++) ;;
    arm64)
        angaben=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=skripte/arm64.cmake
            "-DWIRBELWERK_WURZEL=$PWD/$arm_wurzel"
            "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(g++ -print-multiarch)/cmake")
        ;;
    *)
        echo "No such way: $1 (there are ${wege[*]})" >&2
        return 2
        ;;
    esac
    cmake -S . -B "$2" -G Ninja "${angaben[@]}" && cmake --build "$2" --target "${tests[@]}"
}

(($#)) || set -- "${wege[@]}"
pakete_sichern "${pakete_bau[@]}" "${pakete_gleichheit[@]}"
mkdir -p build/gleichheit
muster=$(IFS='|' && echo "^(${tests[*]})\$")
TIMEFORMAT='processor time: %U s'
ergebnis=0
for weg; do
    ordner=build/gleichheit/$weg
    if [[ $weg == arm64 ]]; then
        arm_wurzel_anlegen
    fi
    echo "== $weg: building"
    if ! time weg_bauen "$weg" "$ordner" >"$ordner.log" 2>&1; then
        tail -n 40 "$ordner.log"
    elif echo "== $weg: running" &&
        time ctest --test-dir "$ordner" --output-on-failure --no-tests=error -R "$muster" \
            --timeout 36000; then
        grep -hE '^(QINFO|Totals)' "$ordner/Testing/Temporary/LastTest.log"
        echo "$weg: passed"
        continue
    fi
    echo "$weg: FAILED"
    ergebnis=1
done
exit "$ergebnis"
