# Sourced by the commands of the top folder: installs Debian packages that are missing, and lets the user of
# sudo own what is built.

# need PACKAGE...: installs those of the packages that are not there. Quick when all are.
need() {
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing; please install them as root: ${missing[*]}" >&2
            exit 1
        }
        root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get -q update
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"
}

# go_on_as_owner ARGUMENT...: when sudo made the owner of this tree root, hands over what root has built here
# and starts the command with its arguments again as the owner, who can then do without sudo the next time.
go_on_as_owner() {
    local owner
    owner=$(stat -c %u .)
    [ "$(id -u)" -eq 0 ] && [ "$owner" -ne 0 ] && [ "$owner" = "${SUDO_UID:-}" ] || return 0
    [ ! -e build ] || chown -R "$owner" build
    exec sudo -u "#$owner" "$PWD/${0##*/}" "$@"
}

# To build the program, to run it, to test it, and to drive it on a display of its own.
build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev libglib2.0-dev)
# The theme brings the file prompts of desktops that are built on GTK.
run_packages=(shared-mime-info fonts-dejavu-core qt6-gtk-platformtheme)
wayland_packages=(qt6-wayland)
test_packages=(libgtest-dev locales tidy)
display_packages=(xvfb xauth openbox xdotool xclip imagemagick dbus-daemon at-spi2-core libatspi2.0-dev chromium)
# To make the archive, with the plugins of Qt that go into it.
package_packages=(libqt6svg6 qt6-gtk-platformtheme qt6-xdgdesktopportal-platformtheme qt6-wayland)
check_packages=(bubblewrap)
# To check the program and to write the record of it.
validation_packages=(libboost-math-dev nlohmann-json3-dev git)
