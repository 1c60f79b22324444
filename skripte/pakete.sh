# shellcheck shell=bash
# The one list of Debian packages that the project needs, and the step that installs what is
# missing of them. Sourced by run, check, .ci/run and docs/bilder.sh.
# shellcheck disable=SC2034 # the lists are read by the scripts that source this file

# To build the program and its tests.
pakete_bau=(
    g++ cmake ninja-build
    qt6-base-dev libgl-dev
    fontconfig fonts-dejavu-core # without a font no caption can be measured
    qt6-translations-l10n        # the tests hold Qt's own texts against the language
)
# To show the program where there is no display, and to photograph it.
pakete_anzeige=(xvfb xauth xdotool x11-utils imagemagick)
# To check formatting, warnings, scripts, benchmarks and the package.
pakete_ci=(
    clang clang-format clang-tidy shellcheck git libbenchmark-dev
    dpkg-dev file desktop-file-utils appstream lintian man-db librsvg2-bin
)
# For skripte/gleichheit.sh, and what it unpacks for 64-bit ARM.
pakete_gleichheit=(clang g++-aarch64-linux-gnu qemu-user-static)
pakete_arm64=(qt6-base-dev libgl-dev libc6-dev)
# To fuzz the reader of picture data.
pakete_fuzz=(clang llvm)
if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
    pakete_bau+=(qt6-wayland)
fi

# pakete_sichern PACKAGE...: installs the packages that are missing. Asks dpkg first, so that
# nothing needs the network or root once everything is there.
pakete_sichern() {
    local paket fehlend=() als_root=()
    for paket in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null) == installed ]] ||
            fehlend+=("$paket")
    done
    ((${#fehlend[@]})) || return 0
    if ! command -v apt-get >/dev/null; then
        echo "Please install by hand (no apt-get here): ${fehlend[*]}" >&2
        return 1
    fi
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "Neither root nor sudo; please have installed: ${fehlend[*]}" >&2
            return 1
        fi
        als_root=(sudo)
    fi
    als_root+=(env DEBIAN_FRONTEND=noninteractive)
    echo "Installing missing packages: ${fehlend[*]}"
    "${als_root[@]}" apt-get -qq update </dev/null
    "${als_root[@]}" apt-get -qq install -y --no-install-recommends "${fehlend[@]}" </dev/null
}

# bauen PRESET [TARGET]: configures and builds; quick when nothing changed.
bauen() {
    cmake --preset "$1" >build/"$1".log 2>&1 || { cat build/"$1".log; return 1; }
    cmake --build --preset "$1" --parallel "$(nproc)" ${2:+--target "$2"}
}
