# Flags of the compiler and the linker that leave less room to an attack; distributions ask for them. Where they bring
# their own for a matter, theirs hold. The sanitizers watch over the same with means that do not go together with these.
if(NOT ORVANBEG_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  include(CheckPIESupported)
  check_pie_supported()
  add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security)
  if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  endif()
  add_link_options(LINKER:-z,relro LINKER:-z,now)
endif()
