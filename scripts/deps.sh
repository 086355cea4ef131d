# Installs the Debian packages that building, running and testing need, when any is missing.
# Sourced by start.sh, test.sh, package.sh and check-package.sh.
ROSTERA_PACKAGES="build-essential cmake qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools
 qt6-l10n-tools qt6-translations-l10n libqt6sql6-sqlite libgl-dev fonts-liberation fonts-noto-cjk
 poppler-utils python3-icalendar"
# Making the Debian package also renders the icons and reads the program's library dependencies.
ROSTERA_PACKAGING_PACKAGES="dpkg-dev file librsvg2-bin"
# Checking the package validates the menu entry and the metainfo.
ROSTERA_CHECK_PACKAGES="desktop-file-utils appstream"

# Installs the packages named, or with no arguments those for building, running and testing.
rostera_install_missing() {
    local missing=""
    for p in ${*:-$ROSTERA_PACKAGES}; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
    done
    [ -z "$missing" ] && return 0
    echo "Installing:$missing"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq && DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing
}
