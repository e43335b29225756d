# Functions that build the libraries, the program and the checks of this source tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g")
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)

add_library(orvane_sanitizers INTERFACE)
if(ORVANE_SANITIZE)
  set(flags -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(orvane_sanitizers INTERFACE ${flags})
  target_link_options(orvane_sanitizers INTERFACE ${flags})
endif()

# orvane_library(FOLDER [LINKS lib...]): the static library of a folder; the library of platform/qt is named
# platform_qt. A library that links Qt6::Widgets also gets Qt's code generators.
function(orvane_library folder)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.cpp" "${CMAKE_SOURCE_DIR}/${folder}/*.h"
       "${CMAKE_SOURCE_DIR}/${folder}/*.qrc")
  file(GLOB windows CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.ui")
  list(REMOVE_ITEM sources "${CMAKE_SOURCE_DIR}/forms/main.cpp")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${arg_LINKS} orvane_sanitizers PRIVATE orvane_warnings)
  if("Qt6::Widgets" IN_LIST arg_LINKS)
    # Resource format 1: later formats store the time of each file, and the program would have different bytes
    # in each build.
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON AUTORCC_OPTIONS "--format-version;1")
    # Not AUTOUIC: with it, a changed window takes effect only at the second build.
    qt6_wrap_ui(headers ${windows})
    target_sources(${name} PRIVATE ${headers})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS)
  endif()
endfunction()

# The program, with the files that it needs in its folder, in the folder app of the build.
function(orvane_program)
  set(app "${CMAKE_BINARY_DIR}/app")
  add_executable(orvane "${CMAKE_SOURCE_DIR}/forms/main.cpp")
  # The place of the libraries in the archive. RPATH, not RUNPATH: RPATH also applies to the libraries and plugins
  # that the program loads, which are packed unchanged.
  set_target_properties(orvane PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${app}" INSTALL_RPATH "$ORIGIN/lib"
                                          BUILD_WITH_INSTALL_RPATH ON)
  target_link_options(orvane PRIVATE -Wl,--disable-new-dtags)
  target_link_libraries(orvane PRIVATE forms platform_qt platform_linux orvane_warnings)
  add_custom_target(beside ALL
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${CMAKE_SOURCE_DIR}/assets -DAPP=${app} -DFOLDER=${app}
            -DVERSION=${PROJECT_VERSION} -P ${CMAKE_SOURCE_DIR}/cmake/beside.cmake
    COMMENT "Files beside the program")
  add_dependencies(orvane beside)
endfunction()

function(orvane_check_arrows)
  add_custom_target(arrows ALL
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${CMAKE_SOURCE_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/arrows.cmake
    COMMENT "Arrows between the folders")
  add_dependencies(orvane arrows)
endfunction()

# The last version in docs/changes.md must be the version of project().
function(orvane_check_changes)
  set(file "${CMAKE_SOURCE_DIR}/docs/changes.md")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  file(STRINGS "${file}" headings REGEX "^## .*[0-9]+\\.[0-9]+\\.[0-9]+$")
  list(GET headings -1 last)
  string(REGEX MATCH "[0-9.]+$" version "${last}")
  if(NOT version STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "docs/changes.md ends with version \"${version}\", the project is ${PROJECT_VERSION}")
  endif()
endfunction()
