# The archive of the program: one folder with the program and its files, lib and plugins with the libraries that it
# loads, licenses with their licence texts.

# The Qt plugins for the windows and prompts: displays, themes, input methods, icons.
set(kinds platforms/*qxcb platforms/*qwayland-generic platforms/*qoffscreen platformthemes/*qgtk3
  platformthemes/*qxdgdesktopportal platforminputcontexts/*compose* platforminputcontexts/*ibus* iconengines/*qsvg*
  imageformats/*qsvg* wayland-shell-integration/*xdg-shell* wayland-decoration-client/*bradient)
set(qt_plugins "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}")
set(plugins "")
foreach(kind IN LISTS kinds)
  file(GLOB found "${qt_plugins}/${kind}.so")
  if(NOT found)
    message(FATAL_ERROR "There is no plugin ${kind} in ${qt_plugins}")
  endif()
  list(APPEND plugins ${found})
endforeach()

# The libraries that are not packed, because the desktop provides them.
execute_process(
  COMMAND ${CMAKE_COMMAND} "-DMODULES=${plugins}" "-DOUTPUT=${CMAKE_BINARY_DIR}/desktop_libraries.txt"
          -P "${CMAKE_SOURCE_DIR}/cmake/packaging_desktop.cmake"
  COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${CMAKE_BINARY_DIR}/desktop_libraries.txt" desktop_libraries)

set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
install(TARGETS orvane RUNTIME_DEPENDENCY_SET needed RUNTIME DESTINATION .)
foreach(plugin IN LISTS plugins)
  cmake_path(GET plugin STEM name)
  cmake_path(RELATIVE_PATH plugin BASE_DIRECTORY "${qt_plugins}" OUTPUT_VARIABLE place)
  cmake_path(GET place PARENT_PATH kind)
  add_library(plugin_${name} MODULE IMPORTED)
  set_target_properties(plugin_${name} PROPERTIES IMPORTED_LOCATION "${plugin}")
  install(IMPORTED_RUNTIME_ARTIFACTS plugin_${name} RUNTIME_DEPENDENCY_SET needed LIBRARY DESTINATION plugins/${kind})
endforeach()
install(RUNTIME_DEPENDENCY_SET needed POST_EXCLUDE_FILES ${desktop_libraries} DESTINATION lib)

set(folder "\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}")
install(CODE "execute_process(COMMAND ${CMAKE_COMMAND} \"-DSOURCE=${CMAKE_SOURCE_DIR}/assets\" \"-DAPP=${folder}\"
  -DFOLDER=@FOLDER@ -DVERSION=${PROJECT_VERSION} -P \"${CMAKE_SOURCE_DIR}/cmake/beside.cmake\"
  COMMAND_ERROR_IS_FATAL ANY)")
configure_file(packaging/README.txt "${CMAKE_BINARY_DIR}/packaging/README.txt" @ONLY)
install(FILES packaging/qt.conf "${CMAKE_BINARY_DIR}/packaging/README.txt" DESTINATION .)
install(PROGRAMS packaging/install-menu-entry packaging/remove-menu-entry DESTINATION .)
install(CODE "set(FOLDER \"${folder}\")\nset(LIBRARY_FOLDER \"${CMAKE_LIBRARY_ARCHITECTURE}\")")
install(SCRIPT cmake/packaging_licenses.cmake)

# CPack's own archives contain the owner and time of every file. This archive has the same bytes whoever makes it
# and whenever.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${CMAKE_SOURCE_DIR}/cmake/packaging_archive.cmake")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PACKAGE_FILE_NAME "orvane-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_SOURCE_DIR}/build/package")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
