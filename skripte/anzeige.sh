# shellcheck shell=bash
# A virtual display for the window, and the step that waits for a picture. Sourced by run and
# docs/bilder.sh. Everything started here is ended by anzeige_ende, by its process id.

anzeige_prozesse=()

# anzeige_vorhanden: true when a window can be shown on this machine.
anzeige_vorhanden() {
    [[ -n ${WAYLAND_DISPLAY:-} ]] && return 0
    [[ -n ${DISPLAY:-} ]] && timeout 10 xdotool getdisplaygeometry >/dev/null 2>&1
}

# anzeige_start FOLDER: starts a virtual X server on a free display number, sets DISPLAY, and keeps
# the server's messages in FOLDER.
anzeige_start() {
    local ordner=$1 nummer=""
    : >"$ordner/xvfb.nummer"
    Xvfb -displayfd 3 -screen 0 1600x1300x24 -nolisten tcp \
        3>"$ordner/xvfb.nummer" >"$ordner/xvfb.log" 2>&1 &
    anzeige_prozesse+=($!)
    for _ in {1..100}; do
        nummer=$(<"$ordner/xvfb.nummer")
        [[ -n $nummer ]] && break
        sleep 0.1
    done
    if [[ -z $nummer ]]; then
        echo "The virtual X server did not start:" >&2
        cat "$ordner/xvfb.log" >&2
        return 1
    fi
    unset WAYLAND_DISPLAY
    export DISPLAY=":$nummer" QT_QPA_PLATFORM=xcb
}

# anzeige_programm LOG COMMAND...: starts a program on the display; its id is in programm_id.
anzeige_programm() {
    local protokoll=$1
    shift
    "$@" >"$protokoll" 2>&1 </dev/null &
    programm_id=$!
    anzeige_prozesse+=("$programm_id")
}

# anzeige_foto FILE: keeps what the program's window shows.
anzeige_foto() { import -window "$fenster_id" "png:$1"; }

# anzeige_warten FILE [SECONDS]: waits until the program's window shows a picture, and keeps it in
# FILE. There is a picture when the upper left of the window shows many colours and two looks at
# it, one after the other, are equal. Leaves the window in fenster_id. Fails when the program ends
# before, or when the time is up.
anzeige_warten() {
    local datei=$1 frist=$((SECONDS + ${2:-120})) vorher="" jetzt
    while ((SECONDS < frist)); do
        if ! kill -0 "$programm_id" 2>/dev/null; then
            echo "The program ended before it showed a picture." >&2
            return 1
        fi
        sleep 0.3
        fenster_id=$(xdotool search --onlyvisible --all --pid "$programm_id" --name . \
            2>/dev/null | head -n 1) || true
        [[ -n $fenster_id ]] || continue
        anzeige_foto "$datei" 2>/dev/null || continue
        jetzt=$(identify -format '%k %#' "${datei}[400x400+10+40]") # colours and checksum
        if ((${jetzt% *} >= 32)) && [[ $jetzt == "$vorher" ]]; then
            return 0
        fi
        vorher=$jetzt
    done
    echo "No picture within the time allowed." >&2
    return 1
}

# anzeige_schliessen: closes the program's window with the keys for it and waits for the program,
# which must end in time and with 0.
anzeige_schliessen() {
    local frist=$((SECONDS + 20))
    # The window may be gone before the keys are released, which xdotool counts as a failure.
    xdotool windowfocus --sync "$fenster_id" key --window "$fenster_id" ctrl+q 2>/dev/null || true
    while ((SECONDS < frist)) && kill -0 "$programm_id" 2>/dev/null; do
        sleep 0.2
    done
    if kill -0 "$programm_id" 2>/dev/null; then
        echo "The program goes on without its window." >&2
        return 1
    fi
    wait "$programm_id" || { echo "The program ended with $?." >&2; return 1; }
}

# anzeige_ende: ends the programs started here, the last one first.
anzeige_ende() {
    local i
    for ((i = ${#anzeige_prozesse[@]} - 1; i >= 0; i--)); do
        kill "${anzeige_prozesse[i]}" 2>/dev/null || true
        wait "${anzeige_prozesse[i]}" 2>/dev/null || true
    done
    anzeige_prozesse=()
}
