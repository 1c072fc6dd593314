# shellcheck shell=sh
# Sourced by the commands, in the project's folder: their arguments, and the Debian packages that they need.
#   accept_arguments <most>|any "$@"
# --help prints the comment at the head of the command. Options that this comment does not name, and more than <most>
# other arguments, are refused with exit status 2. Call it before anything is installed.
#   require_packages <package>...
# Installs missing packages with apt as root or by sudo without a password; otherwise prints the command to run and
# exits with 1. The output of apt is in build/packages.log.

# The comment below the first line of the command, without its marks.
head_of_command() {
    for folder in scripts scripts/check bench reference/site bindings/wireshark; do
        [ ! -f "$folder/${0##*/}" ] || sed -n '1d; /^#/!q; s/^# \{0,1\}//p' "$folder/${0##*/}"
    done
}

refuse_argument() {
    echo "${0##*/}: unknown argument '$1'; --help says which there are" >&2
    exit 2
}

accept_arguments() {
    most=$1
    shift
    found=0
    for argument in "$@"; do
        case $argument in
        --help | -h) head_of_command && exit 0 ;;
        -*) head_of_command | grep -qwFe "${argument%%=*}" || refuse_argument "$argument" ;;
        *) found=$((found + 1)) && { [ "$most" = any ] || [ "$found" -le "$most" ] || refuse_argument "$argument"; } ;;
        esac
    done
}

# A program need not come from the package: look for the program, if the package has one.
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
    mkdir -p build
    # An unreachable source may not be the one with these packages: continue. Both lists are words to be split.
    # shellcheck disable=SC2086
    if ! { $as_root apt-get update -q || true
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
    } >build/packages.log 2>&1; then
        echo "apt could not install$missing: without a network, install them first (build/packages.log)" >&2
        exit 1
    fi
}
