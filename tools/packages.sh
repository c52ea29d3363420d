# The Debian packages of the project, in one place for ./run and ./test. To be sourced by bash.

packages_build="g++ cmake ninja-build libcli11-dev nlohmann-json3-dev qt6-base-dev qt6-svg-dev libpng-dev libqpdf-dev libminizip-dev zlib1g-dev nettle-dev libxlsxwriter-dev libboost-math-dev librandom123-dev fonts-liberation qt6-translations-l10n qt6-wayland"
packages_python="python3-dev pybind11-dev python3-numpy python3-pandas"  # the module for Python
packages_test="ccache libgtest-dev mandoc desktop-file-utils appstream libxml2-utils file clang-format clang-tidy clang xvfb xauth xdotool openbox at-spi2-core dbus-daemon python3-pyatspi $packages_python python3-pytest python3-matplotlib"
packages_bench="libbenchmark-dev libopenblas-dev liblapacke-dev libeigen3-dev"
packages_package="pandoc lintian dpkg-dev file"  # ./package and its checks
packages_fuzz="clang"
packages_external="librecad libreoffice-draw-nogui libreoffice-calc-nogui poppler-utils imagemagick"
packages_printing="cups printer-driver-cups-pdf poppler-utils imagemagick" # a real print queue
packages_bare="mmdebstrap xvfb xauth xdotool openbox"  # tests/external/bare_root
packages_campaigns="gcovr strace valgrind xvfb xauth xdotool openbox"  # tests/campaigns
packages_cluster="slurm-wlm munge python3-distributed"  # tests/external/slurm and dask
packages_verification="python3-numpy"  # tests/oracle/verification
packages_documents="libreoffice-writer-nogui poppler-utils"  # to look at what outdoc writes

# install_packages NAME...: installs those that are missing, as root or through sudo. Asks dpkg first,
# so that a machine that has them all is not kept waiting and needs no network.
install_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -qx installed ||
            missing+=("$name")
    done
    if [ ${#missing[@]} -eq 0 ]; then return 0; fi

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These Debian packages are missing: ${missing[*]}" >&2
            echo "Install them as root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing Debian packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}"
}
