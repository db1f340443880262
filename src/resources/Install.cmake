# Installation and the Debian package (`cpack` in the build folder). The
# programs, the engine library, the string table, the example projects and the
# manual live together in lib/.../tamsic, where each finds the others beside itself;
# bin/ holds links to the two programs. That folder is not the user's to
# write, so the engine's work files go to the user's own temporary folder.
# The desktop entry, the icon and the project file type make a project open
# from the file manager.
include(GNUInstallDirs)
set(TAMSIC_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/tamsic)

install(TARGETS tamsic_app tamsic-cli RUNTIME DESTINATION ${TAMSIC_INSTALL_DIR})
install(TARGETS tamsic LIBRARY DESTINATION ${TAMSIC_INSTALL_DIR} NAMELINK_SKIP)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/strings.txt DESTINATION ${TAMSIC_INSTALL_DIR}/resources)
file(GLOB TAMSIC_INSTALLED_EXAMPLES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/*.tpj)
install(FILES ${TAMSIC_INSTALLED_EXAMPLES} DESTINATION ${TAMSIC_INSTALL_DIR}/examples)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/manual/ DESTINATION ${TAMSIC_INSTALL_DIR}/manual)

file(RELATIVE_PATH TAMSIC_FROM_BIN /usr/${CMAKE_INSTALL_BINDIR} /usr/${TAMSIC_INSTALL_DIR})
foreach(program tamsic tamsic-cli)
  install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(MAKE_DIRECTORY \"\${bin}\")
    file(CREATE_LINK \"${TAMSIC_FROM_BIN}/${program}\" \"\${bin}/${program}\" SYMBOLIC)")
endforeach()

install(FILES ${CMAKE_CURRENT_LIST_DIR}/tamsic.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/tamsic-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME tamsic.xml)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/tamsic.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/tamsic.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes
        RENAME application-x-tamsic-project.svg)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tamsic)
set(CPACK_PACKAGE_VENDOR "Tamsic")
set(CPACK_PACKAGE_CONTACT "Tamsic developers <tamsic@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Population viability analysis: individual-based simulation of extinction risk")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
include(CPack)
