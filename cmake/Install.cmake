# What lies where once it is installed (XDG desktop entries, icon theme, AppStream), and the Debian package.
include(GNUInstallDirs)

if(VIDORA_SANITIZE)
    return() # nothing to give away
endif()

install(TARGETS vidora vidora-window vidora-sample-region vidora-inspect RUNTIME)
install(FILES resources/Data.plist resources/endpoints.json DESTINATION ${CMAKE_INSTALL_DATADIR}/vidora)
install(DIRECTORY resources/icons DESTINATION ${CMAKE_INSTALL_DATADIR}/vidora)

set(id tv.ostrel.vidora)
install(FILES resources/desktop/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/desktop/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/desktop/${id}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 32 48 64 128 256)
    install(FILES resources/desktop/icons/${size}.png RENAME ${id}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

install(FILES ${PROJECT_BINARY_DIR}/manual/vidora.1 resources/man/vidora-inspect.1 resources/man/vidora-sample-region.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_BINARY_DIR}/manual/vidora.bash RENAME vidora
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${PROJECT_BINARY_DIR}/manual/vidora.zsh RENAME _vidora
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${PROJECT_BINARY_DIR}/manual/vidora.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

install(FILES LICENSE RENAME copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vidora)
set(CPACK_PACKAGE_VENDOR Vidora)
set(CPACK_PACKAGE_CONTACT "Vidora <vidora@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "A personal TV guide")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded at run time: no linker knows of it.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
    ca-certificates tzdata libqt6sql6-sqlite libqt6svg6 qt6-image-formats-plugins
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-controls
    qml6-module-qtquick-layouts qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtmultimedia
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-bad gstreamer1.0-libav)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n")
include(CPack)
