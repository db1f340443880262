# The user manual travels with the program like the string table: the build
# copies docs/manual into manual/ beside the programs, where the help window
# looks first. Any change to a page copies the folder again.
set(TAMSIC_MANUAL_DIR ${PROJECT_SOURCE_DIR}/docs/manual)
file(GLOB_RECURSE TAMSIC_MANUAL_FILES CONFIGURE_DEPENDS ${TAMSIC_MANUAL_DIR}/*)
set(TAMSIC_MANUAL_STAMP ${CMAKE_BINARY_DIR}/manual.stamp)
add_custom_command(
  OUTPUT ${TAMSIC_MANUAL_STAMP}
  COMMAND ${CMAKE_COMMAND} -E remove_directory ${TAMSIC_PROGRAM_DIR}/manual
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${TAMSIC_MANUAL_DIR} ${TAMSIC_PROGRAM_DIR}/manual
  COMMAND ${CMAKE_COMMAND} -E touch ${TAMSIC_MANUAL_STAMP}
  DEPENDS ${TAMSIC_MANUAL_FILES}
  COMMENT "Copying the manual")
add_custom_target(tamsic_manual ALL DEPENDS ${TAMSIC_MANUAL_STAMP})
