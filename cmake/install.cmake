# Where the files go when the program is installed, and how it finds them there.
include(GNUInstallDirs)
set(ORVANBEG_DATA ${CMAKE_INSTALL_DATADIR}/orvanbeg)

# Counted from the executable, so that what was installed can be moved as a whole.
file(RELATIVE_PATH ORVANBEG_INSTALLED_FILES ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/orvanbeg)
set_source_files_properties(storage/places.cpp PROPERTIES
  COMPILE_DEFINITIONS ORVANBEG_INSTALLED_FILES="${ORVANBEG_INSTALLED_FILES}")

if(NOT TARGET orvanbeg)
  return()
endif()

set(ORVANBEG_PACKAGING ${PROJECT_SOURCE_DIR}/packaging)
set(ORVANBEG_FILLED_IN ${PROJECT_BINARY_DIR}/packaging)

# Years and holders of the copyright, and the licence as a block of the form that Debian wants, both from LICENSE.
file(READ LICENSE ORVANBEG_LICENCE)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]+)\n\n(.+)\n" all "${ORVANBEG_LICENCE}")
set(ORVANBEG_COPYRIGHT "${CMAKE_MATCH_1}")
string(REPLACE "\n" "\n " ORVANBEG_LICENCE " ${CMAKE_MATCH_2}")
string(REPLACE "\n \n" "\n .\n" ORVANBEG_LICENCE "${ORVANBEG_LICENCE}")
install(TARGETS orvanbeg)
install(DIRECTORY run/ DESTINATION ${ORVANBEG_DATA})
install(FILES CHANGELOG.md docs/game-file.md docs/language-file.md docs/settings-file.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(WIN32)
  include(${ORVANBEG_PACKAGING}/windows/package.cmake)
  return()
endif()

configure_file(${ORVANBEG_PACKAGING}/copyright.in ${ORVANBEG_FILLED_IN}/copyright @ONLY)
configure_file(${ORVANBEG_PACKAGING}/orvanbeg.6.in ${ORVANBEG_FILLED_IN}/orvanbeg.6 @ONLY)
configure_file(${ORVANBEG_PACKAGING}/orvanbeg.de.6.in ${ORVANBEG_FILLED_IN}/orvanbeg.de.6 @ONLY)

install(FILES ${ORVANBEG_FILLED_IN}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${ORVANBEG_FILLED_IN}/orvanbeg.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${ORVANBEG_FILLED_IN}/orvanbeg.de.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man6 RENAME orvanbeg.6)

# What desktops look for. Its places count from the data folder, by the standards of the desktops.
install(FILES ${ORVANBEG_PACKAGING}/orvanbeg.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${ORVANBEG_PACKAGING}/example.orvan_begleiter.orvanbeg.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/orvanbeg.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 48)
  install(FILES ${ORVANBEG_PACKAGING}/orvanbeg-${size}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME orvanbeg.png)
endforeach()

include(${ORVANBEG_PACKAGING}/debian/package.cmake)
