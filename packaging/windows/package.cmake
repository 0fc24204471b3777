# The program for Windows: what its file holds besides code, what lies beside it, and both packages of it.
set(here ${CMAKE_CURRENT_LIST_DIR})

configure_file(${here}/orvanbeg.rc.in ${ORVANBEG_FILLED_IN}/orvanbeg.rc @ONLY)
set_source_files_properties(${ORVANBEG_FILLED_IN}/orvanbeg.rc PROPERTIES
  OBJECT_DEPENDS "${here}/orvanbeg.ico;${here}/orvanbeg.manifest")
target_sources(orvanbeg PRIVATE ${ORVANBEG_FILLED_IN}/orvanbeg.rc)
set_target_properties(orvanbeg PROPERTIES WIN32_EXECUTABLE ON)  # no console window

# The libraries that the linker knows of, those of the compiler, and what Qt loads by itself.
set(libraries $<TARGET_RUNTIME_DLLS:orvanbeg>)
foreach(name libgcc_s_seh-1 libstdc++-6 libwinpthread-1 libssp-0)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll OUTPUT_VARIABLE library
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND libraries ${library})
endforeach()
install(FILES ${libraries} ${here}/qt.conf DESTINATION ${CMAKE_INSTALL_BINDIR})
foreach(plugin QWindowsIntegrationPlugin QJpegPlugin)
  get_target_property(type Qt6::${plugin} QT_PLUGIN_TYPE)
  install(FILES $<TARGET_FILE:Qt6::${plugin}> DESTINATION ${CMAKE_INSTALL_BINDIR}/${type})
endforeach()

# Qt's own words from this machine's Qt of the same version, in those languages of the program that it has.
foreach(language da de es fi fr it nl pt_BR)
  install(FILES /usr/share/qt6/translations/qtbase_${language}.qm DESTINATION ${CMAKE_INSTALL_BINDIR}/translations)
endforeach()

# The licences of all that is in the packages.
execute_process(COMMAND dpkg-query -W -f "\${source:Version}" qt6-base-dev OUTPUT_VARIABLE ORVANBEG_QT_SOURCE
  COMMAND_ERROR_IS_FATAL ANY)
configure_file(${here}/licences.txt.in ${ORVANBEG_FILLED_IN}/readme.txt @ONLY)
set(licences ${CMAKE_INSTALL_DOCDIR}/licences)
install(FILES LICENSE DESTINATION ${licences} RENAME orvanbeg.txt)
install(FILES ${ORVANBEG_FILLED_IN}/readme.txt DESTINATION ${licences})
foreach(licence doc/qt6-base-dev/copyright=qt doc/gcc-mingw-w64-x86-64-posix-runtime/copyright=gcc
    doc/mingw-w64-x86-64-dev/copyright=mingw-w64 common-licenses/LGPL-3=lgpl-3 common-licenses/GPL-3=gpl-3)
  string(REPLACE "=" ";" licence ${licence})
  list(GET licence 0 file)
  list(GET licence 1 name)
  install(FILES /usr/share/${file} DESTINATION ${licences} RENAME ${name}.txt)
endforeach()

add_custom_target(packages DEPENDS orvanbeg VERBATIM COMMAND ${CMAKE_COMMAND}
  -DBUILD=${PROJECT_BINARY_DIR} -DSTRIP=${CMAKE_STRIP} -DVERSION=${PROJECT_VERSION} -DHOMEPAGE=${PROJECT_HOMEPAGE_URL}
  -DCOPYRIGHT=${ORVANBEG_COPYRIGHT} -P ${here}/pack.cmake)
