#!/usr/bin/env bash
# Makes the Debian package as the README says and checks it: contents, dependencies, hardening, menu
# entry, icons, manual page, documentation, metainfo, lintian; and that the unpacked program, started
# as its menu entry says, shows a picture under the name and with the icons that tie it to the menu
# entry, and ends when its window is closed. The package is left in build/paket.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh
# shellcheck source=skripte/anzeige.sh
source skripte/anzeige.sh

fehler() { echo "package: $*" >&2; exit 1; }

# enthaelt TEXT PATTERN...: every pattern must be found in the text.
enthaelt() {
    local text=$1 muster
    shift
    for muster in "$@"; do
        grep -Eq -- "$muster" <<<"$text" || fehler "no '$muster' in: $text"
    done
}

seiten=(guide.md anleitung.md katalog.md)
groessen=(16 22 24 32 48 64 128 256 512)

pakete_sichern "${pakete_bau[@]}" "${pakete_anzeige[@]}" "${pakete_ci[@]}"
mkdir -p build/paket
rm -rf build/paket/*.deb build/paket/wurzel
bauen paket
cpack --preset paket >build/paket/cpack.log || fehler "cpack failed, see build/paket/cpack.log"
paket=$(echo build/paket/wirbelwerk_*.deb)
[[ -f $paket ]] || fehler "cpack made no package"
[[ ! -e build/paket/tests ]] || fehler "the recipe builds the tests too"

wurzel=build/paket/wurzel
teilen=$wurzel/usr/share
inhalt=$(dpkg-deb --fsys-tarfile "$paket" | tar -t | grep -v '/$' | LC_ALL=C sort)
for seite in "${seiten[@]}"; do
    [[ -f docs/$seite ]] || fehler "docs/$seite is missing"
done
mapfile -t bilder < <(cd docs && grep -Eoh 'bilder/[A-Za-z0-9_/.-]+\.png' "${seiten[@]}" | sort -u)
erwartet=$(LC_ALL=C sort <<ENDE
./usr/bin/wirbelwerk
./usr/share/applications/wirbelwerk.desktop
./usr/share/doc/wirbelwerk/changelog.gz
./usr/share/doc/wirbelwerk/copyright
$(printf './usr/share/doc/wirbelwerk/%s\n' "${seiten[@]}" "${bilder[@]}")
./usr/share/man/man1/wirbelwerk.1.gz
./usr/share/metainfo/example.wirbelwerk.Wirbelwerk.metainfo.xml
./usr/share/icons/hicolor/scalable/apps/wirbelwerk.svg
$(for n in "${groessen[@]}"; do echo "./usr/share/icons/hicolor/${n}x$n/apps/wirbelwerk.png"; done)
ENDE
)
diff <(echo "$erwartet") <(echo "$inhalt") || fehler "not the files expected (> is in the package)"
enthaelt "$(dpkg-deb --field "$paket" Depends)" 'libqt6widgets6 \(>= 6\.'
enthaelt "$(dpkg-deb --field "$paket" Recommends)" '\<qt6-translations-l10n\>' '\<qt6-wayland\>'

dpkg-deb --extract "$paket" "$wurzel"
for n in "${groessen[@]}"; do
    [[ $(identify -format '%wx%h' "$teilen/icons/hicolor/${n}x$n/apps/wirbelwerk.png") == "${n}x$n" ]] ||
        fehler "the icon of $n pixels has not its folder's size"
done
# The drawing shows what the pixels show.
rsvg-convert -w 64 -o build/paket/zeichnung.png "$teilen/icons/hicolor/scalable/apps/wirbelwerk.svg"
abstand=$(compare -metric RMSE build/paket/zeichnung.png \
    "$teilen/icons/hicolor/64x64/apps/wirbelwerk.png" null: 2>&1) || true
abstand=${abstand#*(0.} # thousandths of the whole range
((10#${abstand:0:3} < 150)) || fehler "the SVG icon differs from the others: 0.$abstand"

programm=$wurzel/usr/bin/wirbelwerk
enthaelt "$(readelf -dlW "$programm")" 'BIND_NOW' 'Flags: NOW PIE' 'GNU_RELRO'
enthaelt "$(readelf -W --dyn-syms "$programm")" '__stack_chk_fail\>'
# The program calls nothing that has a fortified form today, so the symbols would not tell.
grep '"command"' build/paket/compile_commands.json | grep -Ev -- '-D_FORTIFY_SOURCE=2 .*-O3' &&
    fehler "compiled without _FORTIFY_SOURCE (above)"

eintrag=$teilen/applications/wirbelwerk.desktop
desktop-file-validate "$eintrag"
enthaelt "$(cat "$eintrag")" '^StartupNotify=true$' '^Icon=wirbelwerk$' '^Exec=wirbelwerk$'
handbuch=$(MANWIDTH=100 man --warnings -l "$teilen/man/man1/wirbelwerk.1.gz" 2>&1)
enthaelt "$handbuch" '^NAME' '^FILES' '^SEE ALSO' '\.fraktal' '\.png' '\.htm' \
    "${seiten[@]/#//usr/share/doc/wirbelwerk/}"
[[ $handbuch != *warning* ]] || fehler "the manual page has faults: $handbuch"
appstreamcli validate --no-net "$teilen"/metainfo/*.xml
lintian --fail-on error,warning --allow-root "$paket"

trap anzeige_ende EXIT
trap 'exit 130' INT TERM
anzeige_start build/paket
anzeige_programm build/paket/programm.log "$wurzel/usr/bin/$(sed -n 's/^Exec=//p' "$eintrag")"
anzeige_warten build/paket/fenster.png || { cat build/paket/programm.log >&2; exit 1; }
merkmale=$(xprop -id "$fenster_id")
enthaelt "$merkmale" "^WM_CLASS.*\"$(sed -n 's/^StartupWMClass=//p' "$eintrag")\"\$"
for n in 16 22 24 32 48 64 128; do # larger ones the X server gets no more
    enthaelt "$merkmale" "Icon \($n x $n\)"
done
anzeige_schliessen
echo "package: passed, $paket ($(stat -c %s "$paket") bytes)"
