# Brings the files about to be packed into the form that Debian wants: games in a folder of their own, a changelog,
# and what is long compressed.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
file(RENAME ${root}/bin ${root}/games)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/changelog DESTINATION ${root}/share/doc/orvanbeg NO_SOURCE_PERMISSIONS)
file(GLOB_RECURSE pages ${root}/share/man/*.6)
execute_process(COMMAND gzip -9n ${root}/share/doc/orvanbeg/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
