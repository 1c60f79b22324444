#!/usr/bin/env bash
# Makes the Debian package of the release build and checks it: contents, dependencies, menu entry,
# metainfo, lintian, and that the unpacked program shows a picture when started as its menu entry
# says. The package is left in build/paket.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh
# shellcheck source=skripte/anzeige.sh
source skripte/anzeige.sh

fehler() { echo "package: $*" >&2; exit 1; }

pakete_sichern "${pakete_bau[@]}" "${pakete_anzeige[@]}" "${pakete_ci[@]}"
rm -rf build/paket
mkdir -p build/paket
bauen release
cpack --config build/release/CPackConfig.cmake -B build/paket >build/paket/cpack.log ||
    fehler "cpack failed, see build/paket/cpack.log"
paket=$(echo build/paket/wirbelwerk_*.deb)
[[ -f $paket ]] || fehler "cpack made no package"

inhalt=$(dpkg-deb --fsys-tarfile "$paket" | tar -t | grep -v '/$' | LC_ALL=C sort)
erwartet=$(LC_ALL=C sort <<ENDE
./usr/bin/wirbelwerk
./usr/share/applications/wirbelwerk.desktop
./usr/share/doc/wirbelwerk/changelog.gz
./usr/share/doc/wirbelwerk/copyright
./usr/share/man/man1/wirbelwerk.1.gz
./usr/share/metainfo/example.wirbelwerk.Wirbelwerk.metainfo.xml
$(printf './usr/share/icons/hicolor/%sx%s/apps/wirbelwerk.png\n' \
    16 16 24 24 32 32 48 48 64 64 128 128 256 256 512 512)
ENDE
)
diff <(echo "$erwartet") <(echo "$inhalt") || fehler "not the files expected (> is in the package)"
abhaengig=$(dpkg-deb --field "$paket" Depends)
[[ $abhaengig == *"libqt6widgets6 (>= 6."* ]] || fehler "no dependency on Qt 6: $abhaengig"

wurzel=build/paket/wurzel
dpkg-deb --extract "$paket" "$wurzel"
for bild in "$wurzel"/usr/share/icons/hicolor/*/apps/wirbelwerk.png; do
    ordner=$(basename "$(dirname "$(dirname "$bild")")")
    [[ $(identify -format '%wx%h' "$bild") == "$ordner" ]] || fehler "$bild has not its folder's size"
done
desktop-file-validate "$wurzel/usr/share/applications/wirbelwerk.desktop"
appstreamcli validate --no-net "$wurzel"/usr/share/metainfo/*.xml
lintian --fail-on error,warning --allow-root "$paket"

trap anzeige_ende EXIT
trap 'exit 130' INT TERM
befehl=$(sed -n 's/^Exec=//p' "$wurzel/usr/share/applications/wirbelwerk.desktop")
anzeige_start build/paket
anzeige_programm build/paket/programm.log "$wurzel/usr/bin/$befehl"
anzeige_warten build/paket/fenster.png || { cat build/paket/programm.log >&2; exit 1; }
echo "package: passed, $paket ($(stat -c %s "$paket") bytes)"
