# CPack reads this once for each kind of package.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(component portable)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
else()
  set(component installed)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_GLONKS_BUILD};Glonks;${component};/")
set(CPACK_PRE_BUILD_SCRIPTS "${CPACK_GLONKS_SOURCE}/packaging/stage.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${CPACK_GLONKS_SOURCE}/packaging/repack.cmake")

# The same sources make the same package at any time.
execute_process(COMMAND date -u -d "${CPACK_GLONKS_DATE}" +%s
  OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(ENV{SOURCE_DATE_EPOCH} ${epoch})
