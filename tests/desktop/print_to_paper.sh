#!/usr/bin/env bash
# print_to_paper.sh TESTS prints pages through the test's own print server on a PDF printer, and checks
# them as pixels. Only root can run that printer; for any other user the test skips (77).
set -euo pipefail
tests=$1
[ "$(id -u)" = 0 ] || { echo "only root can run the PDF printer"; exit 77; }
fail() { echo "print to paper: $1"; exit 1; }

place=$(mktemp -d)
server=
finish() {
  if [ -n "$server" ]; then kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; fi
  rm -rf "$place"
}
trap finish EXIT
chmod 755 "$place"
mkdir -p "$place"/{etc/ppd,spool/tmp,cache,log,out,run}

port=$((20000 + $$ % 20000))
cat > "$place/etc/cupsd.conf" <<END
Listen 127.0.0.1:$port
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow from 127.0.0.1
  </Limit>
</Policy>
END
cat > "$place/etc/cups-files.conf" <<END
ServerRoot $place/etc
RequestRoot $place/spool
TempDir $place/spool/tmp
CacheDir $place/cache
StateDir $place/run
AccessLog $place/log/access
ErrorLog $place/log/error
PageLog $place/log/page
END
cat > "$place/etc/cups-pdf.conf" <<END
Out $place/out
AnonDirName $place/out
Spool $place/spool
Log $place/log
END
# The PDF printer looks for its settings in one place only; only this server sees ours there.
unshare -m true 2>/dev/null || { echo "no file system of its own for the server here"; exit 77; }
unshare -m sh -c 'mount --bind "$0/etc/cups-pdf.conf" /etc/cups/cups-pdf.conf &&
  exec cupsd -f -c "$0/etc/cupsd.conf" -s "$0/etc/cups-files.conf"' "$place" &
server=$!
export CUPS_SERVER=127.0.0.1:$port
for _ in $(seq 50); do
  lpstat -r 2>/dev/null | grep -q 'is running' && break
  sleep 0.1
done
lpstat -r | grep -q 'is running' || fail "the print server does not start"
lpadmin -p OrvaneTest -v cups-pdf:/ -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd -E 2>/dev/null
lpadmin -d OrvaneTest

ORVANE_TEST_PRINTER=OrvaneTest "$tests" --gtest_filter='OnPaper.*' || fail "not printed"
for _ in $(seq 150); do
  [ -z "$(lpstat -o)" ] && break
  sleep 0.2
done
mapfile -t pages < <(find "$place/out" -name '*.pdf' | sort)
[ "${#pages[@]}" = 3 ] || fail "${#pages[@]} pages came out, not 3"
number=0
for page in "${pages[@]}"; do
  number=$((number + 1))
  pdfinfo "$page" | grep -q '^Pages: *1$' || fail "job $number is not one page"
  pdftoppm -q -r 100 -png -singlefile "$page" "$place/$number"
  if [ -n "${ORVANE_KEEP_PAGES:-}" ]; then cp "$place/$number.png" "$page" "$ORVANE_KEEP_PAGES"; fi
done

# Where black begins and ends on a page: WIDTH HEIGHT LEFT TOP; then the page's own width.
black_box() {
  convert "$1" -alpha off -fill white +opaque black -bordercolor white -border 1 -trim \
    -format '%w %h %X %Y\n' info: | tr -d +
}
# Where the ink on the first rows of a page is: WIDTH LEFT.
ink_above() {
  convert "$1" -crop "x$2+0+0" +repage -alpha off -bordercolor white -border 1 -trim \
    -format '%w %X\n' info: | tr -d +
}
paper=$(identify -format %w "$place/1.png")

# The surface: a square of 5400 twips on a page of 6600, centred from side to side.
read -r width height left top < <(black_box "$place/1.png")
[ $((width - height)) -le 3 ] && [ $((height - width)) -le 3 ] || fail "the picture is $width x $height"
middle=$((2 * left - 2 + width - paper))
[ "$middle" -le 8 ] && [ "$middle" -ge -8 ] || fail "the picture is not in the middle: $middle"
[ $((width * 100 / paper)) -ge 70 ] || fail "the page is not as wide as the paper: $width of $paper"
[ $((width * 6600)) -le $((paper * 5400 + 6600)) ] || fail "the page is wider than the paper"
# Its name begins above its left edge, in letters and not in pixels.
read -r long begin < <(ink_above "$place/1.png" $((top - 2)))
[ $((begin - left)) -ge -2 ] && [ $((begin - left)) -le 4 ] || fail "the name begins at $begin"
[ $((long * 100 / width)) -ge 50 ] || fail "the name is $long wide"
[ "$(pdffonts "${pages[0]}" 2>/dev/null | wc -l)" -ge 3 ] || fail "the name is no text"

# The pair: from 120 to 6495 twips, 3135 high.
read -r width height left top < <(black_box "$place/2.png")
ratio=$((width * 1000 / height))
[ "$ratio" -ge 2018 ] && [ "$ratio" -le 2049 ] || fail "the pair is $width x $height"
read -r long begin < <(ink_above "$place/2.png" $((top - 2)))
middle=$((2 * begin + long - paper))
[ "$long" -ge 50 ] && [ $((middle * 6600 / paper)) -ge -300 ] && [ $((middle * 6600 / paper)) -le 300 ] ||
  fail "the pair's heading is $long wide, at $begin"

# The plot's three areas take up most of the paper's width: look for the pink of the largest.
pink=$(convert "$place/3.png" -alpha off -fuzz 3% -fill white +opaque 'rgb(255,206,206)' \
  -bordercolor white -border 1 -trim -format %w info:)
[ $((pink * 100 / paper)) -ge 40 ] || fail "the plot is $pink wide on $paper"
