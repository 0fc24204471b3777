# Warnings, sanitizers and the counting of lines for every target of the project.
add_library(orvanbeg_warnings INTERFACE)
target_compile_options(orvanbeg_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(orvanbeg_warnings INTERFACE -Wno-restrict)   # false alarms on joined strings
endif()
if(ORVANBEG_WERROR)
  target_compile_options(orvanbeg_warnings INTERFACE -Werror)
endif()
if(ORVANBEG_COVERAGE)  # not by CMAKE_CXX_FLAGS, which reach CMake's own trials of the compiler as well
  target_compile_options(orvanbeg_warnings INTERFACE --coverage)
  target_link_options(orvanbeg_warnings INTERFACE --coverage)
endif()
if(ORVANBEG_SANITIZE)
  target_compile_options(orvanbeg_warnings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  target_link_options(orvanbeg_warnings INTERFACE -fsanitize=address,undefined)
endif()
