# The window system's side and the program. Only this part needs Qt.
orvanbeg_sources(ORVANBEG_QT_SOURCES ${PROJECT_SOURCE_DIR}/platform/qt)
add_library(orvanbeg_platform_qt STATIC ${ORVANBEG_QT_SOURCES})
list(TRANSFORM ORVANBEG_QT_PARTS PREPEND Qt6:: OUTPUT_VARIABLE ORVANBEG_QT_LIBRARIES)
target_link_libraries(orvanbeg_platform_qt PUBLIC orvanbeg_platform ${ORVANBEG_QT_LIBRARIES})

include(cmake/artwork.cmake)

add_executable(orvanbeg main.cpp)
target_link_libraries(orvanbeg PRIVATE orvanbeg_mainwindow orvanbeg_platform_qt orvanbeg_artwork)
target_compile_definitions(orvanbeg PRIVATE
  ORVANBEG_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} ORVANBEG_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  ORVANBEG_VERSION_REVISION=${PROJECT_VERSION_PATCH})

# What stands beside the executable is copied whenever it changes.
file(GLOB_RECURSE ORVANBEG_RUN_FILES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/run/*)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/run-files.stamp
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/run ${PROJECT_BINARY_DIR}
  COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/run-files.stamp
  DEPENDS ${ORVANBEG_RUN_FILES})
add_custom_target(run_files ALL DEPENDS ${PROJECT_BINARY_DIR}/run-files.stamp)
add_dependencies(orvanbeg run_files)
