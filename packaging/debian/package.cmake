# The Debian package, made from what is installed (scripts/package).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/complete.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Orvan Begleiter developers <hi@orvan-begleiter.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "companion for evenings of a board game about settling an island")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Orvan Begleiter stands on a computer beside the board and takes the place of
paper and pencil for two to six players. It takes the result of each throw of
the dice, or throws them itself, and charts how they have fallen against what
theory expects.

It keeps settlements, cities, titles and victory points, runs the clocks,
calls the barbarians, ranks the players and knows the winner. Games can be
saved, loaded and printed. It speaks ten languages.")

# The libraries are found in the executable. What it looks for by name only: the type in which its windows are measured.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, fonts-liberation")
# Buttons of message boxes in the user's language; windows of their own on Wayland desktops.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")

include(CPack)
