# Writes to OUTPUT which of the libraries that MODULES load are not packed: C and C++, graphics, X, fonts, GLib and
# GTK, and the libraries that these need. The desktop loads its own drivers, modules and themes into the same
# process, and these need the desktop's versions of the libraries. The archive is made on a machine with glibc
# 2.36; desktops that can run the program have the same or later versions.

cmake_minimum_required(VERSION 3.25)

file(GET_RUNTIME_DEPENDENCIES MODULES ${MODULES} RESOLVED_DEPENDENCIES_VAR all)
set(roots ${all})
list(FILTER roots INCLUDE REGEX
     "/(ld-linux|lib(c|m|stdc\\+\\+|gcc_s|GL|GLX|EGL|OpenGL|drm|gbm|X11|X11-xcb|xcb|fontconfig|freetype|gio-2.0|gtk-3)\\.so)")
file(GET_RUNTIME_DEPENDENCIES LIBRARIES ${roots} RESOLVED_DEPENDENCIES_VAR theirs)
list(APPEND theirs ${roots})
# libxkbcommon is packed: its part for X (libxkbcommon-x11) is missing on some desktops and must have the same
# version.
list(FILTER theirs EXCLUDE REGEX "/libxkbcommon\\.")
list(JOIN theirs "\n" lines)
file(WRITE "${OUTPUT}" "${lines}\n")
