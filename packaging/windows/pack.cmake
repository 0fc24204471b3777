# Makes both packages of a built program and puts them beside its folder: an installer, and a zip that runs from any
# folder, with everything beside the program. The build calls it: cmake --build FOLDER --target packages
set(installed ${BUILD}/installed)
set(beside ${BUILD}/orvanbeg-${VERSION})
cmake_path(GET BUILD PARENT_PATH packages)
file(REMOVE_RECURSE ${installed} ${beside})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${installed} --strip
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB libraries ${installed}/bin/lib*.dll)  # those of the compiler come with what debuggers want
execute_process(COMMAND ${STRIP} --strip-unneeded ${libraries} COMMAND_ERROR_IS_FATAL ANY)

# What takes away again what was installed, folders last, and the size of it.
file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE ${installed} ${installed}/*)
list(REVERSE entries)
set(bytes 0)
foreach(entry IN LISTS entries)
  string(REPLACE "/" "\\" name ${entry})
  if(IS_DIRECTORY ${installed}/${entry})
    string(APPEND removal "RMDir \"$INSTDIR\\${name}\"\n")
  else()
    file(SIZE ${installed}/${entry} size)
    math(EXPR bytes "${bytes} + ${size}")
    string(APPEND removal "Delete \"$INSTDIR\\${name}\"\n")
  endif()
endforeach()
file(WRITE ${BUILD}/removal.nsh "${removal}")
math(EXPR kibibytes "${bytes} / 1024")
execute_process(COMMAND makensis -V2 -WX -DVERSION=${VERSION} -DCOPYRIGHT=${COPYRIGHT} -DHOMEPAGE=${HOMEPAGE}
  -DFILES=${installed} -DSIZE=${kibibytes} -DREMOVAL=${BUILD}/removal.nsh
  -DOUTPUT=${packages}/orvanbeg-${VERSION}-setup.exe ${CMAKE_CURRENT_LIST_DIR}/setup.nsi COMMAND_ERROR_IS_FATAL ANY)

file(COPY ${installed}/bin/ ${installed}/share/orvanbeg/ DESTINATION ${beside})
file(COPY ${installed}/share/doc/orvanbeg/ DESTINATION ${beside}/doc)
execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${packages}/orvanbeg-${VERSION}.zip --format=zip orvanbeg-${VERSION}
  WORKING_DIRECTORY ${BUILD} COMMAND_ERROR_IS_FATAL ANY)
