#!/usr/bin/env bash
# The view of a projector: projector.sh PROGRAM [WIDTHxHEIGHT [DENSITY [PICTURE]]] runs the program on
# a virtual screen with a window manager, and enlarges and restores it by its title bar, as a teacher
# does. PICTURE is a file for what the screen shows while the desk is large.
set -euo pipefail
program=$1
size=${2:-1920x1080}
export QT_SCALE_FACTOR=${3:-1}
exec 3< <(exec Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp 2>/dev/null)
screen=$!
children=("$screen")
trap 'kill "${children[@]}" 2>/dev/null || true' EXIT
read -r -t 30 -u 3 number
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
openbox >/dev/null 2>&1 &
children+=($!)

fail() { echo "projector: $1"; exit 1; }
until_true() {  # why command...: within ten seconds
  local why=$1
  shift
  for _ in $(seq 100); do
    if "$@"; then return 0; fi
    sleep 0.1
  done
  fail "$why"
}
until_true "no window manager" xdotool get_num_desktops >/dev/null 2>&1

"$program" &
children+=($!)
# xdotool ends if a window disappears during the search, so search again.
find_window() {
  window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1) && [ -n "$window" ]
}
for title in '^Orvane$' "^What's new in OVN$"; do
  until_true "no window $title came up" find_window "$title"
  xdotool windowfocus --sync "$window" key Return
done
until_true "no window came up" find_window '^Orvane \(OVN\) V3\.0$'

WIDTH=0 HEIGHT=0
measure() { eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"; }
# The plan at that density, or smaller in the same proportions if the screen is too small for it.
is_normal() {
  measure && echo "$WIDTH $HEIGHT $QT_SCALE_FACTOR ${size%x*} ${size#*x}" | awk '{
    whole = $1 >= int(567 * $3) && $1 <= 567 * $3 + 1 && $2 >= int(485 * $3) && $2 <= 485 * $3 + 1
    fits = 567 * $3 <= $4 && 485 * $3 <= $5
    smaller = $1 < $4 && $2 < $5 && $2 > $5 / 2 && ($1 / $2 - 567 / 485) ^ 2 < 0.0001
    exit !(fits ? whole : smaller) }'
}
is_large() { measure && [ "$WIDTH" = "${size%x*}" ] && [ "$HEIGHT" -gt $((${size#*x} * 9 / 10)) ]; }
# From the plan of 567 by 485 to the window: as large as the window allows, and centred in it.
on_screen() {  # x y ...
  echo "$@" | awk -v w="$WIDTH" -v h="$HEIGHT" '{
    f = w / 567 < h / 485 ? w / 567 : h / 485
    for (i = 1; i < NF; i += 2) printf "%d %d ", (w - 567 * f) / 2 + $i * f, (h - 485 * f) / 2 + $(i + 1) * f }'
}
point() { xdotool mousemove --window "$window" $(on_screen "$1" "$2"); }
turn_large() { xdotool mousemove --window "$window" $((WIDTH / 2)) -8 click --repeat 2 --delay 80 1; }
shot() { import -window "$window" -silent "$1:-"; }
pixel() { shot png | convert png:- -format "%[hex:p{$(on_screen "$1" "$2" | awk '{ print $1 "," $2 }')}]" info: | cut -c1-6; }
is_pixel() { [ "$(pixel "$1" "$2")" = "$3" ]; }
# The middle of the one ball of nitrogen, in the plan.
nitrogen() {
  shot png | convert png:- -fill black +opaque '#3C3CF0' txt:- |
    awk -v w="$WIDTH" -v h="$HEIGHT" -F '[,:]' '/#3C3CF0/ { x += $1; y += $2; n++ } END {
      if (n == 0) exit 1
      f = w / 567 < h / 485 ? w / 567 : h / 485
      printf "%.2f %.2f", (x / n + 0.5 - (w - 567 * f) / 2) / f, (y / n + 0.5 - (h - 485 * f) / 2) / f }'
}
see_nitrogen() { ball=$(nitrogen); }
plus() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a + b }'; }
# White pixels in the tag of an atom at x y, which begins there.
white_at() {
  shot png | convert png:- -crop "$(on_screen "$1" "$2" "$(plus "$1" 40)" "$(plus "$2" 14)" |
    awk '{ printf "%dx%d+%d+%d", $3 - $1, $4 - $2, $1, $2 }')" +repage \
    -fill black +opaque white -format '%[fx:round(mean*w*h)]' info:
}
has_tag() { [ "$(white_at $ball)" -gt "$before" ]; }
picture() {  # its square, 48 to 417 by 44 to 413, as one number
  shot png | convert png:- -crop "$(on_screen 52 48 413 409 |
    awk '{ printf "%dx%d+%d+%d", $3 - $1, $4 - $2, $1, $2 }')" +repage rgb:- | cksum
}
has_another_picture() { [ "$(picture)" != "$was" ]; }

until_true "the window has not the size of the plan" is_normal
fixed="$WIDTH $HEIGHT"
is_back() { measure && [ "$WIDTH $HEIGHT" = "$fixed" ]; }
until_true "the picture is not black" is_pixel 232 200 000000
point 480 79 && xdotool click 1  # glycine, the second row of the first list
point 130 32 && xdotool click 1  # as balls
until_true "no ball of nitrogen" see_nitrogen
small_ball=$ball

# Made large, the desk fills the height, and the ball is where it was on the desk.
turn_large
until_true "the title bar does not make it large" is_large
until_true "the desk is not in the middle" is_pixel 200 3 FFFFFF
until_true "no ball of nitrogen in the large picture" see_nitrogen
echo "$ball $small_ball" | awk '{ exit !(($1 - $3) ^ 2 + ($2 - $4) ^ 2 < 1) }' ||
  fail "the ball is at $ball, and was at $small_ball"

# A press six surface pixels beside the ball picks nothing, since the reach is three. A press on it
# prints its name there.
before=$(white_at $ball)
point "$(plus "${ball% *}" -6)" "${ball#* }" && xdotool click 1
sleep 0.5
has_tag && fail "a press beside the ball picks it"
point $ball && xdotool click 1
until_true "a press on the ball picks nothing" has_tag

# A drag over the picture turns it.
was=$(picture)
point 280 330 && xdotool mousedown 3
for x in 290 300 310 320; do point "$x" 330; done
xdotool mouseup 3
until_true "a drag turns nothing" has_another_picture

# Restored, the window has its fixed size, and a press still picks what is under it.
[ -z "${4:-}" ] || import -window root "$4"
turn_large
until_true "it does not come back to its fixed size" is_back
until_true "no ball of nitrogen behind it" see_nitrogen
before=$(white_at $ball)
point $ball && xdotool click 1
until_true "a press on the ball picks nothing any more" has_tag
