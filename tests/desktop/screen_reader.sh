#!/usr/bin/env bash
# screen_reader.sh PROGRAM TESTS uses the program on a virtual screen as someone would who cannot see
# it, and checks what its windows say.
# Screen, session bus and accessibility bus belong to the test and end with it.
set -euo pipefail
program=$1
tests=$2
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
# The accessibility bus starts when someone asks for its address.
export ORVANE_TEST_PLATFORM=xcb
# shellcheck disable=SC2016 # the inner shell expands it
dbus-run-session -- bash -c '
  dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress
  exec "$0" --gtest_filter="ScreenReader.*:AListeningReader.*"' "$tests" \
  >"$folder/told" 2>&1 && grep -q 'OK.*AListeningReader' "$folder/told" &&
  ! grep -q SKIPPED "$folder/told" || {
  cat "$folder/told"
  exit 1
}
