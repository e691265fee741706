# What the scripts share; sourced, not run.

step() { printf '\n== %s\n' "$*"; }

# skip TEXT: notes what could not be done here, for the last lines of the script.
skips=${VEKPRT_SKIPS:-$(mktemp)}
skip() { printf '%s\n' "$*" >> "$skips"; }

# finish TEXT: the last lines of a script: what was skipped, and TEXT.
finish() {
    echo
    [ -n "${VEKPRT_SKIPS:-}" ] || { sed 's/^/Skipped: /' "$skips"; rm -f "$skips"; }
    echo "Done: $*"
}

# apt ARGUMENT...: apt-get, which waits while another process holds its locks.
apt() {
    sudo=
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    for _ in $(seq 120); do
        output=$(DEBIAN_FRONTEND=noninteractive $sudo apt-get -qq "$@" 2>&1) && return
        case $output in
        *"Could not get lock"* | *"Unable to lock"*) sleep 5 ;;
        *) break ;;
        esac
    done
    echo "$output" >&2
    return 1
}

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
    if ! command -v apt-get > /dev/null || { [ "$(id -u)" -ne 0 ] && ! command -v sudo > /dev/null; }; then
        echo "These packages are needed; install them first, or run this as root on a Debian system:$missing" >&2
        exit 1
    fi
    step "Installing with apt-get, and what they depend on:$missing"
    # shellcheck disable=SC2086
    if ! { apt update && apt install -y --no-install-recommends $missing; }; then
        echo "Could not be installed; these packages are needed:$missing" >&2
        exit 1
    fi
}

build_packages="g++ cmake ninja-build pkg-config libpng-dev libcairo2-dev libpango1.0-dev nlohmann-json3-dev libcli11-dev"
picture_packages="librsvg2-bin fonts-dejavu-core"
test_packages="$build_packages $picture_packages librsvg2-dev libgtest-dev libxml2-utils binutils gdb"

# quietly LOG COMMAND...: shows what a command prints only if it fails.
quietly() {
    log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" > "$log" 2>&1 || { cat "$log" >&2; exit 1; }
}
# configure PRESET DIRECTORY [OPTION...]: configures build/DIRECTORY by a preset and further options.
configure() {
    preset=$1 directory=$2
    shift 2
    quietly "build/$directory.log" cmake --preset "$preset" -B "build/$directory" -Wno-dev "$@"
}
