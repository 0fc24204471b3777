# Flags of the compiler and the linker that leave less room to an attack, for builds that optimise; distributions ask for
# them. One that brings its own level of _FORTIFY_SOURCE keeps it. The sanitizers watch over the same with means that do
# not go together with these.
if(NOT ORVANBEG_SANITIZE AND CMAKE_BUILD_TYPE MATCHES "^(Rel|MinSize)")
  include(CheckPIESupported)
  check_pie_supported()
  add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security)
  if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  endif()
  if(WIN32)
    add_link_options(-fstack-protector-strong)  # the protector is a library there
  else()
    add_link_options(LINKER:-z,relro LINKER:-z,now)
  endif()
endif()
