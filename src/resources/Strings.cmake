# The string table travels with the programs: it is copied to
# ${CMAKE_BINARY_DIR}/resources, and tamsic_deploy_strings(<target>) copies it
# into resources/ beside that target's executable, where StringTable::locate()
# looks first.
set(TAMSIC_STRINGS_FILE ${CMAKE_CURRENT_LIST_DIR}/strings.txt)

add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/resources/strings.txt
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${TAMSIC_STRINGS_FILE}
          ${CMAKE_BINARY_DIR}/resources/strings.txt
  DEPENDS ${TAMSIC_STRINGS_FILE}
  COMMENT "Copying the string table")
add_custom_target(tamsic_strings ALL DEPENDS ${CMAKE_BINARY_DIR}/resources/strings.txt)

function(tamsic_deploy_strings target)
  set(table ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/strings.txt)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory $<TARGET_FILE_DIR:${target}>/resources
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${table}
            $<TARGET_FILE_DIR:${target}>/resources/strings.txt)
  # Relinking on a change of the table is what re-runs the copy.
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${table})
endfunction()
