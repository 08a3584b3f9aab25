# zor_pictures(OUT FILE): writes a source that holds the pictures of core/pictures, in the order of their file names.
function(zor_pictures out source)
  file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/pictures/*.svg)
  list(LENGTH pictures count)
  if(NOT count EQUAL 8)
    message(FATAL_ERROR "core/pictures must hold eight pictures, it holds ${count}")
  endif()
  set(body)
  foreach(picture IN LISTS pictures)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${picture})
    file(READ ${picture} svg)
    string(APPEND body "    R\"svg(${svg})svg\",\n")
  endforeach()
  file(CONFIGURE OUTPUT ${source} CONTENT
"#include <zor/core/frm_Container.h>

namespace zor::core {

const std::array<std::string_view, 8> pictureData{
@body@};

} // namespace zor::core
" @ONLY)
  set(${out} ${source} PARENT_SCOPE)
endfunction()
