# What `cmake --install` puts where a desktop looks, and the Debian package CPack makes of it.
include(GNUInstallDirs)

set(NUMBROOK_WEBSITE "https://numbrook.org" CACHE STRING
    "Web address of the program's home page (screenshots are under /screenshots/)")
set(NB_DESKTOP ${PROJECT_SOURCE_DIR}/resources/desktop)
set(NB_APP_ID org.numbrook.numbrook)
set(NB_ICON_SIZES 16 22 24 32 48 64 128 256)

install(TARGETS numbrook numbrook-class RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS numbrook_chime LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/numbrook)
install(FILES ${NB_DESKTOP}/${NB_APP_ID}.desktop ${NB_DESKTOP}/${NB_APP_ID}_class.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

configure_file(${NB_DESKTOP}/${NB_APP_ID}.metainfo.xml.in
               ${PROJECT_BINARY_DIR}/desktop/${NB_APP_ID}.metainfo.xml @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/desktop/${NB_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

install(FILES ${NB_DESKTOP}/${NB_APP_ID}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# The PNG sizes are rendered from the SVG by a small helper built here.
add_executable(numbrook-render-icon ${PROJECT_SOURCE_DIR}/app/render-icon.cpp)
target_link_libraries(numbrook-render-icon PRIVATE Qt6::Svg Qt6::Gui)
nb_warnings(numbrook-render-icon)
set(NB_ICON_PNGS)
foreach(size ${NB_ICON_SIZES})
  list(APPEND NB_ICON_PNGS ${PROJECT_BINARY_DIR}/icons/${size}/${NB_APP_ID}.png)
endforeach()
add_custom_command(
  OUTPUT ${NB_ICON_PNGS}
  COMMAND numbrook-render-icon ${NB_DESKTOP}/${NB_APP_ID}.svg ${PROJECT_BINARY_DIR}/icons
          ${NB_ICON_SIZES}
  DEPENDS numbrook-render-icon ${NB_DESKTOP}/${NB_APP_ID}.svg
  COMMENT "Rendering the icon at ${NB_ICON_SIZES} pixels")
add_custom_target(numbrook_icons ALL DEPENDS ${NB_ICON_PNGS})
foreach(size ${NB_ICON_SIZES})
  install(FILES ${PROJECT_BINARY_DIR}/icons/${size}/${NB_APP_ID}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

foreach(page numbrook.1 numbrook-class.1)
  configure_file(${PROJECT_SOURCE_DIR}/resources/man/${page} ${PROJECT_BINARY_DIR}/man/${page}
                 @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

# The Debian package: numbrook_<version>_amd64.deb, library dependencies found by dpkg-shlibdeps,
# plus the rounded font the screens are designed for and the window-system plugins (which Qt's
# GUI library only recommends).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME numbrook)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "NUMBROOK developers <schools@numbrook.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "arithmetic practice for primary-school children")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "A pupil types a name or loads a record, picks a topic and works through short\ntimed activities: mental drills, guided written column methods, a factor race\nand games for two. Best times are saved in the pupil's record file.\nnumbrook-class shows a whole class's best times in one table for teachers.")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${NUMBROOK_WEBSITE})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-comic-neue, qt6-qpa-plugins")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
include(CPack)
