# Runs when CPack has written a package: a .tar.gz has the files in whatever order the folder lists
# them, so it is written again in the order of their names.
if(CPACK_GENERATOR STREQUAL "TGZ")
  execute_process(
    COMMAND tar -c --sort=name --owner=0 --group=0 --numeric-owner
      -C "${CPACK_TEMPORARY_DIRECTORY}" Glonks
    COMMAND gzip -9n
    OUTPUT_FILE "${CPACK_PACKAGE_FILES}" COMMAND_ERROR_IS_FATAL ANY)
endif()
