# Shared by scripts/run and scripts/test: install what is missing, then configure and build.
# Sourced, not executed.

MORVANE_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
MORVANE_BUILD="${MORVANE_BUILD:-$MORVANE_ROOT/build}"

# Debian packages the build, the tests and the application need. One name per line so that a
# later change shows up as one line in a diff.
MORVANE_PACKAGES=(
    build-essential
    cmake
    ninja-build
    ccache
    pkg-config
    qt6-base-dev
    qt6-tools-dev
    qt6-l10n-tools
    qt6-tools-dev-tools
    qcoro-qt6-dev
    qtkeychain-qt6-dev
    qt6-translations-l10n
    qt6-httpserver-dev
    qt6-websockets-dev
    libpq-dev
    postgresql
    postgresql-contrib
    clang
    libclang-rt-14-dev
    dbus-daemon
    libsimdjson-dev
    qt6-webengine-dev
    qt6-pdf-dev
    poppler-utils
    fonts-inter
    fonts-ebgaramond
    fonts-jetbrains-mono
    fonts-league-spartan
    fonts-urw-base35
    qt6-declarative-dev
    qml6-module-qtqml
    qml6-module-qtqml-workerscript
    qml6-module-qtquick
    qml6-module-qtquick-controls
    qml6-module-qtquick-layouts
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
    qml6-module-qtquick-dialogs
    qml6-module-qt-labs-platform
    qml6-module-qt-labs-settings
    qml6-module-qtquick-pdf
    qml6-module-qttest
    fonts-noto-cjk
    libqt6svg6
    libxss-dev
    libxcb1-dev
    libical-dev
    radicale
)

morvane_missing_packages() {
    local pkg status
    for pkg in "${MORVANE_PACKAGES[@]}"; do
        status=$(dpkg-query -W -f='${db:Status-Status}' "$pkg" 2>/dev/null || true)
        [ "$status" = "installed" ] || echo "$pkg"
    done
}

morvane_install_packages() {
    local missing
    mapfile -t missing < <(morvane_missing_packages)
    [ ${#missing[@]} -eq 0 ] && return 0

    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "morvane: missing packages (${missing[*]}) and no sudo to install them as root" >&2
            return 1
        fi
        sudo=(sudo)
    fi
    echo "morvane: installing ${missing[*]}"
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q || return 1
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" || return 1
}

morvane_build() {
    local type="${MORVANE_BUILD_TYPE:-RelWithDebInfo}"
    if [ ! -f "$MORVANE_BUILD/build.ninja" ]; then
        cmake -S "$MORVANE_ROOT" -B "$MORVANE_BUILD" -G Ninja -DCMAKE_BUILD_TYPE="$type" || return 1
    fi
    cmake --build "$MORVANE_BUILD" --parallel "$(nproc)" || return 1
}

# The official JavaScript client that tst_jsclients drives, installed exactly as package-lock.json
# pins it. Skipped while node_modules is newer than the lock file, so only a changed lock file
# reaches the registry.
morvane_install_js_packages() {
    local dir="$MORVANE_ROOT/tests/js"
    [ -f "$dir/package-lock.json" ] || return 0
    if [ -d "$dir/node_modules" ] && [ ! "$dir/package-lock.json" -nt "$dir/node_modules" ]; then
        return 0
    fi
    if ! command -v npm >/dev/null 2>&1; then
        echo "morvane: npm is missing; the tests in tests/js need Node.js 20 or later with npm" >&2
        return 1
    fi
    echo "morvane: installing the JavaScript test packages in tests/js"
    (cd "$dir" && npm ci --no-audit --no-fund) || return 1
    # The folder's time marks the install as current, whatever npm did to the folder itself.
    touch "$dir/node_modules"
}
