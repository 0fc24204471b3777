# The artwork that the forms hold: each SVG is recorded as drawing steps and compiled in under its path below resources/.
if(CMAKE_CROSSCOMPILING)
  if(NOT ORVANBEG_RECORD_ARTWORK)
    message(FATAL_ERROR "A build for another system needs -DORVANBEG_RECORD_ARTWORK=PATH, a tool of a build for this one: "
      "cmake --preset release, then cmake --build --preset release --target record_artwork.")
  endif()
  add_executable(record_artwork IMPORTED)
  set_target_properties(record_artwork PROPERTIES IMPORTED_LOCATION ${ORVANBEG_RECORD_ARTWORK})
else()
  add_executable(record_artwork platform/qt/tools/record_artwork.cpp)
  target_link_libraries(record_artwork PRIVATE orvanbeg_warnings Qt6::Svg)
endif()

file(GLOB ORVANBEG_ARTWORK RELATIVE ${PROJECT_SOURCE_DIR}/resources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/resources/*.svg ${PROJECT_SOURCE_DIR}/resources/iml*/*.svg)
set(ORVANBEG_RECORDED ${PROJECT_BINARY_DIR}/artwork)
set(ORVANBEG_QRC "<RCC>\n<qresource prefix=\"/\">\n")
foreach(picture IN LISTS ORVANBEG_ARTWORK)
  string(APPEND ORVANBEG_QRC "<file alias=\"${picture}\">${ORVANBEG_RECORDED}/${picture}.pic</file>\n")
endforeach()
string(APPEND ORVANBEG_QRC "</qresource>\n</RCC>\n")
file(CONFIGURE OUTPUT artwork.qrc CONTENT "${ORVANBEG_QRC}")

list(TRANSFORM ORVANBEG_ARTWORK PREPEND ${PROJECT_SOURCE_DIR}/resources/ OUTPUT_VARIABLE drawings)
list(TRANSFORM ORVANBEG_ARTWORK REPLACE "(.+)" "${ORVANBEG_RECORDED}/\\1.pic" OUTPUT_VARIABLE recorded)
add_custom_command(OUTPUT ${recorded} DEPENDS record_artwork ${drawings} COMMENT "Recording the artwork" VERBATIM
  COMMAND record_artwork ${PROJECT_SOURCE_DIR}/resources ${ORVANBEG_RECORDED} ${ORVANBEG_ARTWORK})
# In their first format the resources do not name the time of each file, so that two builds are the same.
qt_add_resources(ORVANBEG_ARTWORK_SOURCE ${PROJECT_BINARY_DIR}/artwork.qrc OPTIONS --format-version 1)
add_library(orvanbeg_artwork OBJECT ${ORVANBEG_ARTWORK_SOURCE})
