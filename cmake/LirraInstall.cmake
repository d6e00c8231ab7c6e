# What `cmake --install` puts where, and the Debian package that CPack makes of it.

include(GNUInstallDirs)

set(lirra_id com.harrowfield.lirra)
set(lirra_packaging ${CMAKE_SOURCE_DIR}/packaging)

install(TARGETS lirra lirra-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${lirra_packaging}/${lirra_id}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${lirra_packaging}/${lirra_id}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/lirra.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME ${lirra_id}.svg)
install(FILES ${lirra_packaging}/man/lirra.1 ${lirra_packaging}/man/lirra-cli.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${lirra_packaging}/completions/lirra-cli
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)

set(CPACK_PACKAGE_NAME lirra)
set(CPACK_PACKAGE_VENDOR Harrowfield)
set(CPACK_PACKAGE_CONTACT Harrowfield)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Edits the tags of audio files")
set(CPACK_PACKAGE_DESCRIPTION
    "Shows long lists of audio files with their tags, artwork and audio properties, and edits them
one by one or many at a time, in windows (lirra) and on the command line (lirra-cli).")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plugins of Qt, which no program is linked with, and Qt's own texts.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "qt6-image-formats-plugins, qt6-wayland, qt6-translations-l10n")
include(CPack)
