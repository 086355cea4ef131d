#!/usr/bin/env bash
# Builds the Debian package in build-package/ (scripts/package.sh), unpacks it into a scratch root and checks
# what it holds: the program, its templates and user guide in /opt/rostera, the launcher, the menu entry and
# metainfo (both validated), the icons; then starts the unpacked program in a fresh home and waits for it to
# copy the templates. Exits non-zero when anything is wrong.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
rostera_install_missing $ROSTERA_PACKAGES $ROSTERA_PACKAGING_PACKAGES $ROSTERA_CHECK_PACKAGES
dir=build-package
scripts/package.sh "$dir"

failures=0
fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}
check_file() {
    [ -f "$root/$1" ] || fail "missing /$1"
}

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
deb=$(ls "$dir"/rostera_*.deb)
dpkg -x "$deb" "$root"
echo "Checking $deb"

app=opt/rostera
[ -x "$root/$app/bin/rostera" ] || fail "/$app/bin/rostera missing or not executable"
for template in src/resources/datas/*.csv; do
    check_file "$app/SharedSupport/datas/$(basename "$template")"
done
# The user guide that Help opens, with every picture it shows.
check_file "$app/SharedSupport/help/index.html"
for image in $(grep -o 'images/[^"]*\.png' src/resources/help/index.html | sort -u); do
    check_file "$app/SharedSupport/help/$image"
done

# The launcher starts the program by its full path, from which the program finds SharedSupport.
[ -x "$root/usr/bin/rostera" ] || fail "/usr/bin/rostera missing or not executable"
grep -q "^exec \"/$app/bin/rostera\" \"\$@\"$" "$root/usr/bin/rostera" \
    || fail "/usr/bin/rostera does not start /$app/bin/rostera"

desktop=$(ls "$root"/usr/share/applications/*.desktop 2>/dev/null || true)
metainfo=$(ls "$root"/usr/share/metainfo/*.metainfo.xml 2>/dev/null || true)
if [ -z "$desktop" ] || [ -z "$metainfo" ]; then
    fail "menu entry or metainfo missing"
else
    desktop-file-validate "$desktop" || fail "desktop-file-validate: $(basename "$desktop")"
    appstreamcli validate --no-net "$metainfo" || fail "appstreamcli validate: $(basename "$metainfo")"
    # The metainfo names the menu entry by its file name.
    grep -q "<launchable type=\"desktop-id\">$(basename "$desktop")</launchable>" "$metainfo" \
        || fail "metainfo does not launch $(basename "$desktop")"
    grep -qx "Exec=rostera" "$desktop" || fail "menu entry does not run the launcher"
    grep -qx "Icon=rostera" "$desktop" || fail "menu entry does not name the icon"
fi

icons=usr/share/icons/hicolor
check_file "$icons/scalable/apps/rostera.svg"
for size in 16 32 48 64 128 256; do
    png="$root/$icons/${size}x${size}/apps/rostera.png"
    file -b "$png" 2>/dev/null | grep -q "^PNG image data, $size x $size," || fail "no $size px PNG icon"
done

# The program as unpacked, started by its full path in a fresh home: at first start it copies the templates
# from its SharedSupport into SettingDatas, so their arrival shows it found its support folder.
home="$root/home"
mkdir -p "$home"
status=0
HOME="$home" XDG_DATA_HOME="$home/.local/share" XDG_CONFIG_HOME="$home/.config" QT_QPA_PLATFORM=offscreen \
    timeout 10 "$root/$app/bin/rostera" >/dev/null 2>&1 || status=$?
[ "$status" -eq 124 ] || fail "the program ended by itself (status $status) instead of running"
settings="$home/.local/share/TavrelinSoftware/Rostera/SettingDatas"
for template in src/resources/datas/*.csv; do
    [ -f "$settings/$(basename "$template")" ] || fail "first start did not copy $(basename "$template")"
done

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed" >&2
    exit 1
fi
echo "Package checks passed"
