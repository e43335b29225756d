# Checks which folder includes which. Fails and names each file and line with an include that is not allowed.
#
#   forms > lists, options, settings > engine > platform (interfaces)
#   lists, options and settings do not include each other
#   only forms/main.cpp includes platform/qt and platform/linux; these include the interfaces only
#   tools includes nothing of the program, and validation only tools/driving

cmake_minimum_required(VERSION 3.25)

set(engine platform)
set(lists engine platform)
set(options engine platform)
set(settings engine platform)
set(forms lists options settings engine platform)

set(everywhere "platform/linux" "platform/qt" platform engine lists options settings forms)
set(faults "")

# check(FOLDER FILE SEES...): every quoted include of FILE must be in FOLDER itself or in one of SEES.
function(check folder file)
  file(STRINGS "${file}" lines REGEX "^#include ")
  foreach(line IN LISTS lines)
    if(line MATCHES "^#include \"(.*)/[^/]*\"")
      set(target "${CMAKE_MATCH_1}")
      if(NOT target STREQUAL folder AND NOT target IN_LIST ARGN)
        set(faults ${faults} "${file}: ${line}" PARENT_SCOPE)
        return()
      endif()
    elseif(line MATCHES "^#include <(Q[A-Za-z]+|qt[^>]*|Qt[^>]*)>" AND NOT folder MATCHES "^(forms|platform/qt)$")
      set(faults ${faults} "${file}: ${line}" PARENT_SCOPE)
    elseif(line MATCHES "^#include <[a-z0-9_/]+\\.h>" AND NOT folder MATCHES "^platform/linux$")
      set(faults ${faults} "${file}: ${line}" PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

foreach(folder IN LISTS everywhere)
  string(REPLACE "/" "_" key ${folder})
  set(sees ${${key}})
  if(folder MATCHES "^platform/")
    set(sees platform)
  endif()
  file(GLOB files "${SOURCE}/${folder}/*.cpp" "${SOURCE}/${folder}/*.h")
  foreach(file IN LISTS files)
    if(file MATCHES "forms/main.cpp$")
      check(${folder} "${file}" ${sees} platform/qt platform/linux)
    else()
      check(${folder} "${file}" ${sees})
    endif()
  endforeach()
endforeach()

# What drives or examines the program must not share code with it.
foreach(folder tools validation)
  file(GLOB_RECURSE files "${SOURCE}/${folder}/*.cpp" "${SOURCE}/${folder}/*.h")
  foreach(file IN LISTS files)
    file(STRINGS "${file}" lines REGEX "^#include \"")
    foreach(line IN LISTS lines)
      if(NOT line MATCHES "^#include \"(${folder}|tools/driving)/")
        list(APPEND faults "${file}: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()

if(faults)
  list(JOIN faults "\n  " text)
  message(FATAL_ERROR "Includes against the arrows of docs/architecture.md:\n  ${text}")
endif()
