# Writes to OUTPUT which of the libraries that MODULES load stay the desktop's own: C and C++, graphics, X, fonts,
# GLib and GTK, and what these need in turn. A desktop brings drivers, modules and themes of its own into the same
# process, which were made for its versions of them. No desktop that can run the program at all has older ones than
# the machine with glibc 2.36 on which the archive is made.

cmake_minimum_required(VERSION 3.25)

file(GET_RUNTIME_DEPENDENCIES MODULES ${MODULES} RESOLVED_DEPENDENCIES_VAR all)
set(roots ${all})
list(FILTER roots INCLUDE REGEX
     "/(ld-linux|lib(c|m|stdc\\+\\+|gcc_s|GL|GLX|EGL|OpenGL|drm|gbm|X11|X11-xcb|xcb|fontconfig|freetype|gio-2.0|gtk-3)\\.so)")
file(GET_RUNTIME_DEPENDENCIES LIBRARIES ${roots} RESOLVED_DEPENDENCIES_VAR theirs)
list(APPEND theirs ${roots})
# The keyboard library has a second half for X, which not every desktop has and which must be of the same version.
list(FILTER theirs EXCLUDE REGEX "/libxkbcommon\\.")
list(JOIN theirs "\n" lines)
file(WRITE "${OUTPUT}" "${lines}\n")
