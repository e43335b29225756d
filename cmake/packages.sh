# Sourced by the commands of the top folder: installs missing Debian packages, and keeps the build files in
# the ownership of the user who called sudo.

# need PACKAGE...: installs those of the packages that are missing. Quick if none is.
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

# go_on_as_owner ARGUMENT...: does something only if sudo made the owner of this source tree root. Then it
# gives the files in build to the owner and restarts the command with its arguments as the owner, who needs
# no sudo the next time.
go_on_as_owner() {
    local owner
    owner=$(stat -c %u .)
    [ "$(id -u)" -eq 0 ] && [ "$owner" -ne 0 ] && [ "$owner" = "${SUDO_UID:-}" ] || return 0
    [ ! -e build ] || chown -R "$owner" build
    exec sudo -u "#$owner" "$PWD/${0##*/}" "$@"
}

# The packages for building the program, running it, testing it, and driving it on a separate display.
build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev libglib2.0-dev)
# The theme provides the file prompts of GTK desktops.
run_packages=(shared-mime-info fonts-dejavu-core qt6-gtk-platformtheme)
wayland_packages=(qt6-wayland)
test_packages=(libgtest-dev locales tidy)
display_packages=(xvfb xauth openbox xdotool xclip imagemagick dbus-daemon at-spi2-core libatspi2.0-dev libxdo-dev)
# The tour takes pictures of web pages in a browser.
tour_packages=(chromium)
# For the archive, which contains these plugins of Qt.
package_packages=(libqt6svg6 qt6-gtk-platformtheme qt6-xdgdesktopportal-platformtheme qt6-wayland)
check_packages=(bubblewrap)
# For ./validate.
validation_packages=(libboost-math-dev git)
