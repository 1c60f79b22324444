#!/usr/bin/env bash
# Takes the pictures of the documentation anew, from the live window under a virtual X server.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
# shellcheck source=skripte/pakete.sh
source skripte/pakete.sh
# shellcheck source=skripte/anzeige.sh
source skripte/anzeige.sh

pakete_sichern "${pakete_bau[@]}" "${pakete_anzeige[@]}"
mkdir -p build docs/bilder
bauen release wirbelwerk_fenster

trap anzeige_ende EXIT
trap 'exit 130' INT TERM
anzeige_start build
build/release/werkzeug/wirbelwerk_fenster docs/bilder
echo "Pictures in docs/bilder:"
ls docs/bilder
