# The sources in a folder. What a system does in its own way stands in files whose names end in _posix or _win (tests in
# _posix_test or _win_test), and the other system's are left out.
function(orvanbeg_sources variable folder)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  if(WIN32)
    set(other posix)
  else()
    set(other win)
  endif()
  list(FILTER sources EXCLUDE REGEX "_${other}(_test)?\\.cpp$")
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()
