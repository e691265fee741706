# What the scripts share; sourced, not run.

step() { printf '\n== %s\n' "$*"; }

# require PACKAGE...: installs the Debian packages that are missing, or says which they are and ends.
require() {
    if ! command -v dpkg-query > /dev/null; then
        echo "Not a Debian system; what these packages hold must be there: $*"
        return 0
    fi
    missing=
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2> /dev/null | grep -qx installed || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    step "Installing$missing"
    if ! command -v apt-get > /dev/null; then
        echo "These packages are needed, and there is no apt-get to install them:$missing" >&2
        exit 1
    fi
    sudo=
    if [ "$(id -u)" -ne 0 ]; then
        sudo=sudo
        command -v sudo > /dev/null || { echo "Run this as root, or install first:$missing" >&2; exit 1; }
    fi
    # shellcheck disable=SC2086
    if ! { $sudo apt-get update -qq && DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing; } > /dev/null; then
        echo "Could not be installed; these packages are needed:$missing" >&2
        exit 1
    fi
}

build_packages="g++ cmake ninja-build libpng-dev nlohmann-json3-dev libcli11-dev"
picture_packages="librsvg2-bin fonts-dejavu-core"
test_packages="$build_packages $picture_packages pkg-config libgtest-dev libxml2-dev libxml2-utils binutils gdb"

# build PRESET: configures and builds it, quietly unless it fails.
build() {
    cmake --preset "$1" -Wno-dev > "build-$1.log" 2>&1 || { cat "build-$1.log" >&2; exit 1; }
    rm -f "build-$1.log"
    cmake --build --preset "$1"
}
