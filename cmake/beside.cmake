# Copies the files that must be in the program's folder into APP: those of version VERSION. FOLDER is the folder
# written into the desktop entry. An existing saved.stg belongs to the user and is not replaced.
file(MAKE_DIRECTORY "${APP}")
configure_file("${SOURCE}/orvane.svg" "${APP}/orvane.svg" COPYONLY)
configure_file("${SOURCE}/randomization.htm" "${APP}/randomization.htm" @ONLY)
configure_file("${SOURCE}/orvane.desktop" "${APP}/orvane.desktop" @ONLY)
if(NOT EXISTS "${APP}/saved.stg")
  file(COPY "${SOURCE}/saved.stg" DESTINATION "${APP}")
endif()
