#!/usr/bin/env bash
# The program on a virtual screen, used as by somebody who does not see it: screen_reader.sh PROGRAM.
# Screen, session bus and accessibility bus are the test's own, and end with it.
set -euo pipefail
program=$1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
folder=$(mktemp -d)
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
screen=$!
trap 'kill "$screen" 2>/dev/null || true; rm -rf "$folder"' EXIT
read -r -t 30 -u 3 number

export DISPLAY=:$number QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
export HOME=$folder XDG_RUNTIME_DIR=$folder/runtime GSETTINGS_BACKEND=memory
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
mkdir -m 700 "$XDG_RUNTIME_DIR"
dbus-run-session -- /usr/bin/python3 -B "$here/screen_reader.py" "$program" >"$folder/said" 2>&1 || {
  cat "$folder/said"
  exit 1
}
