# Sourced by the scripts beside it: sees that Debian packages are installed.
#   require_packages <package>...
# Installs what is missing through apt where that is allowed (as root, or by sudo without a password); otherwise prints
# the command to run and exits with 1.

# A program from elsewhere is as good as the one from the package: ask for the program where there is one.
program_of_package() {
    case $1 in
    cmake) echo cmake ;;
    g++) echo g++ ;;
    clang) echo clang++ ;;
    ninja-build) echo ninja ;;
    pkg-config) echo pkg-config ;;
    protobuf-compiler) echo protoc ;;
    protobuf-c-compiler) echo protoc-gen-c ;;
    python3) echo python3 ;;
    esac
}

package_is_there() {
    program=$(program_of_package "$1")
    if [ -n "$program" ]; then
        command -v "$program" >/dev/null 2>&1
    else
        dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
    fi
}

require_packages() {
    missing=
    for package in "$@"; do
        package_is_there "$package" || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0

    if ! command -v apt-get >/dev/null 2>&1; then
        echo "Not found here, by the names that Debian gives them:$missing" >&2
        exit 1
    fi
    if [ "$(id -u)" -eq 0 ]; then
        as_root=
    elif sudo -n true 2>/dev/null; then
        as_root=sudo
    else
        echo "Some packages are missing and only root may install them. Run this, then try again:" >&2
        echo "    sudo apt-get update && sudo apt-get install -y --no-install-recommends$missing" >&2
        exit 1
    fi
    echo "Installing:$missing"
    # One source of packages that does not answer need not be the one with these.
    $as_root apt-get update -q || echo "apt-get update failed; going on with the lists that are here" >&2
    # Both lists are words to be split.
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing || exit 1
}
