# Runs when CPack has installed the files of a package, before it packs them.
execute_process(
  COMMAND "${CPACK_GLONKS_SOURCE}/packaging/stage" "${CPACK_TEMPORARY_DIRECTORY}"
    "${CPACK_GLONKS_STRIP}" "${CPACK_PACKAGE_CONTACT}"
  COMMAND_ERROR_IS_FATAL ANY)
