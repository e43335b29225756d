# Writes the licence of each library and plugin in FOLDER into FOLDER/licenses: the copyright file of the Debian
# package that contains it, and the common licences that this file names. packages.txt lists the version of each
# package and of its source package.

cmake_minimum_required(VERSION 3.25)

# ask(RESULT COMMAND...): the output of the command, without line ends at its end.
function(ask result)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${output}" PARENT_SCOPE)
endfunction()

set(licenses "${FOLDER}/licenses")
file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/lib/*" "${FOLDER}/plugins/*")
set(places "")
foreach(file IN LISTS files)
  if(NOT IS_SYMLINK "${FOLDER}/${file}")
    string(REGEX REPLACE "^lib/" "*/${LIBRARY_FOLDER}/" place "${file}")
    string(REGEX REPLACE "^plugins/" "*/plugins/" place "${place}")
    list(APPEND places "${place}")
  endif()
endforeach()
ask(owners dpkg-query -S ${places})
string(REGEX MATCHALL "(^|\n)[^:\n]+" packages "${owners}")
string(REPLACE "\n" "" packages "${packages}")
list(REMOVE_DUPLICATES packages)
list(SORT packages)

set(list "Package, version, source package, its version\n")
foreach(package IN LISTS packages)
  file(REAL_PATH "/usr/share/doc/${package}/copyright" terms)
  configure_file("${terms}" "${licenses}/${package}.txt" COPYONLY)
  file(STRINGS "${terms}" lines REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9.+-]*[A-Za-z0-9]" named "${lines}")
  foreach(common IN LISTS named)
    cmake_path(GET common FILENAME name)
    file(REAL_PATH "${common}" text)
    configure_file("${text}" "${licenses}/common-licenses/${name}.txt" COPYONLY)
  endforeach()
  ask(line dpkg-query -W -f "\${Package} \${Version} \${source:Package} \${source:Version}\\n" ${package})
  string(APPEND list "${line}\n")
endforeach()
file(WRITE "${licenses}/packages.txt" "${list}")
