#!/usr/bin/env bash
# real_window.sh PROGRAM runs the program on a virtual screen, with the screen's own pointer and keys.
set -euo pipefail
program=$1
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
screen=$!
trap 'kill "$screen" 2>/dev/null || true' EXIT
read -r -t 30 -u 3 number
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

fail() { echo "real window: $1"; exit 1; }
pixel() {  # colour of a pixel of the window
  import -window "$window" -silent png:- | convert png:- -format "%[hex:p{$1,$2}]" info:
}
expect_pixel() {  # x y colour, within three seconds
  for _ in $(seq 30); do
    [ "$(pixel "$1" "$2" | cut -c1-6)" = "$3" ] && return 0
    sleep 0.1
  done
  fail "pixel $1,$2 is $(pixel "$1" "$2"), not $3: $4"
}

"$program" &
child=$!
trap 'kill "$child" "$screen" 2>/dev/null || true' EXIT
# The way in: splash, overview, desk. Enter goes to the next.
for title in '^Orvane$' "^What's new in OVN$"; do
  window=$(timeout 30 xdotool search --sync --onlyvisible --name "$title" | head -1)
  [ -n "$window" ] || fail "no window $title came up"
  xdotool windowfocus --sync "$window" key Return
done
window=$(timeout 30 xdotool search --sync --onlyvisible --name '^Orvane \(OVN\) V3\.0$' | head -1)
[ -n "$window" ] || fail "no window came up"
eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
[ "$WIDTH $HEIGHT" = "567 485" ] || fail "the window is $WIDTH x $HEIGHT"
expect_pixel 232 200 000000 "the picture is black"
expect_pixel 200 3 FFFFFF "the strip is white"

# When the pointer is over a button, its edge has the accent colour.
xdotool mousemove --window "$window" 46 32
expect_pixel 4 32 0B6E7F "the button under the pointer has the accent's edge"

# A click chooses an axis: X is pressed, Y is not.
xdotool mousemove --window "$window" 13 53 click 1
sleep 0.2
xdotool mousemove --window "$window" 300 200
expect_pixel 4 53 0B6E7F "the axis X is pressed"
expect_pixel 4 73 A3B0BA "the axis Y is let go"

# Leaving by the menu ends the process.
xdotool mousemove --window "$window" 27 10 click 1
sleep 0.5
xdotool key e
for _ in $(seq 50); do
  kill -0 "$child" 2>/dev/null || { wait "$child" && exit 0 || fail "the program ended with $?"; }
  sleep 0.1
done
fail "the program goes on after Exit"
