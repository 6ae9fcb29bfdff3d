# Sourced by run.sh: shows a program on a virtual display that can be seen over VNC, from this machine only.

# run_on_virtual_display PROGRAM PICTURE: starts PROGRAM in the current folder, saves a picture of its window, explains how
# to see it, and waits until it ends. Everything started here ends with it.
run_on_virtual_display() {
    local program=$1 picture=$2
    session=$(mktemp -d "${TMPDIR:-/tmp}/tallyhoop-display.XXXXXX")
    helpers=()
    trap end_virtual_display EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP

    start_virtual_display
    share_over_vnc
    "$program" &
    local program_pid=$!
    helpers+=("$program_pid")

    if ! picture_when_painted "$program_pid" "$picture"; then
        echo "The program's window did not appear on display $DISPLAY." >&2
        return 1
    fi
    say_how_to_connect "$picture"
    local outcome=0
    wait "$program_pid" || outcome=$?
    return "$outcome"
}

end_virtual_display() {
    local pid
    for pid in "${helpers[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$session"
}

# Xvfb picks a free display number itself and reports it when it is ready.
start_virtual_display() {
    local cookie number
    cookie=$(mcookie)
    export XAUTHORITY="$session/Xauthority"
    (umask 077 && : >"$XAUTHORITY")
    xauth -q add :0 . "$cookie" # any number will do: the server checks the cookie only
    mkfifo "$session/number"
    # Without -noreset the server resets itself when its last client leaves, and disconnects new ones.
    Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset -auth "$XAUTHORITY" \
        3>"$session/number" >"$session/xvfb.log" 2>&1 &
    helpers+=($!)
    read -r -t 30 number <"$session/number" || {
        echo "The virtual display did not start:" >&2
        cat "$session/xvfb.log" >&2
        return 1
    }
    export DISPLAY=":$number"
    unset WAYLAND_DISPLAY
    xauth -q add "$DISPLAY" . "$cookie"
    # Without a window manager no window ever gets the keyboard, nor does one that is opened before it.
    openbox --sm-disable >"$session/openbox.log" 2>&1 &
    helpers+=($!)
    local tries
    for ((tries = 0; tries < 300; tries++)); do
        xdotool get_desktop >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    echo "The window manager did not start:" >&2
    cat "$session/openbox.log" >&2
    return 1
}

# A new password for each run: VNC uses eight characters only, so all of them are random.
share_over_vnc() {
    local letters
    letters=$(head -c 512 /dev/urandom | LC_ALL=C tr -dc 'a-km-zA-HJ-NP-Z2-9')
    (umask 077 && printf '%s\n' "${letters:0:8}" >"$session/vnc-password")
    x11vnc -display "$DISPLAY" -auth "$XAUTHORITY" -localhost -autoport 5900 -passwdfile "$session/vnc-password" \
        -forever -shared -noshm -noxdamage -quiet -flag "$session/vnc-port" >"$session/x11vnc.log" 2>&1 &
    helpers+=($!)
    local tries
    for ((tries = 0; tries < 300; tries++)); do
        vnc_port=$(sed -n 's/^PORT=//p' "$session/vnc-port" 2>/dev/null || true)
        [ -n "$vnc_port" ] && return 0
        sleep 0.1
    done
    echo "The display could not be shared over VNC:" >&2
    cat "$session/x11vnc.log" >&2
    return 1
}

# Waits for a visible window of the program, and until it shows more than a plain background.
picture_when_painted() {
    local pid=$1 picture=$2 tries window
    for ((tries = 0; tries < 240; tries++)); do
        kill -0 "$pid" 2>/dev/null || return 1
        window=$(xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -n 1 || true)
        if [ -n "$window" ] && import -silent -window "$window" "$picture" 2>/dev/null &&
            [ "$(identify -format '%k' "$picture")" -gt 32 ]; then
            import -silent -window root "$picture"
            return 0
        fi
        sleep 0.25
    done
    return 1
}

say_how_to_connect() {
    cat <<MESSAGE

Tallyhoop is running on the virtual display $DISPLAY. A picture of it: $1

To see and use it, forward its port from your own machine, and point a VNC viewer there:

    ssh -L $vnc_port:127.0.0.1:$vnc_port ${USER:-$(id -un)}@$(hostname)
    vncviewer 127.0.0.1:$vnc_port

    password: $(cat "$session/vnc-password")    (kept in $session/vnc-password)

It listens on this machine's loopback address only. It ends with the program, or with Ctrl+C here.
MESSAGE
}
