#!/usr/bin/env bash
# Makes the pictures of the documentation and the catalogue page anew: windows and gallery from the
# live window under a virtual X server, in the steps of guide and gallery; the catalogue without one.
# A step that does not hold ends it, and the old pictures stay.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh
# shellcheck source=skripte/anzeige.sh
source skripte/anzeige.sh

pakete_sichern "${pakete_bau[@]}" "${pakete_anzeige[@]}"
ablage=build/bilder
rm -rf "$ablage"
mkdir -p "$ablage/bilder/katalog"
bauen release wirbelwerk_fenster
bauen release wirbelwerk_bilder

trap anzeige_ende EXIT
trap 'exit 130' INT TERM
anzeige_start build
build/release/werkzeug/wirbelwerk_fenster pictures "$ablage/bilder" docs/guide.md werkzeug/galerie.md
QT_QPA_PLATFORM=offscreen build/release/werkzeug/wirbelwerk_bilder page "$ablage/katalog.md"

# 256 colours are enough on a page and halve the files, except for sixteen palettes at once. No times
# inside, so that an unchanged picture gives an unchanged file.
find "$ablage" -name '*.png' ! -name tour-matrix.png -print0 | xargs -0 mogrify +dither -colors 256 \
    -strip -define png:exclude-chunks=date,time -define png:compression-level=9
rm -rf docs/bilder
cp -r "$ablage/." docs/
echo "Pictures in docs/bilder: $(find docs/bilder -name '*.png' | wc -l), $(du -sh docs/bilder | cut -f 1)"
