# Packs the staged folder: names sorted, owner and time fixed, the time from SOURCE_DATE_EPOCH.

cmake_minimum_required(VERSION 3.25)

cmake_path(GET CPACK_TEMPORARY_DIRECTORY PARENT_PATH parent)
set(archive "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.gz")
execute_process(
  COMMAND tar --create --sort=name --owner=root:0 --group=root:0 "--mtime=@$ENV{SOURCE_DATE_EPOCH}"
          --mode=u+w,go=u-w --format=gnu --directory "${parent}" "${CPACK_PACKAGE_FILE_NAME}"
  COMMAND gzip --no-name --best
  OUTPUT_FILE "${archive}"
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${archive}")
