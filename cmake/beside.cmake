# Puts what must lie beside the program of version VERSION into APP. FOLDER is the folder that the desktop entry
# names. The set-up of the last run, once there, is the user's own.
file(MAKE_DIRECTORY "${APP}")
configure_file("${SOURCE}/orvane.svg" "${APP}/orvane.svg" COPYONLY)
configure_file("${SOURCE}/randomization.htm" "${APP}/randomization.htm" @ONLY)
configure_file("${SOURCE}/orvane.desktop" "${APP}/orvane.desktop" @ONLY)
if(NOT EXISTS "${APP}/saved.stg")
  file(COPY "${SOURCE}/saved.stg" DESTINATION "${APP}")
endif()
