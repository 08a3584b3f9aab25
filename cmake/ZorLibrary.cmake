# The libraries that adopters link: layers put together, static or shared as BUILD_SHARED_LIBS says.

# Accessors are inline, so a program is built for one minor version (docs/compatibility.md).
set(ZOR_ABI ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# zor_public_headers(OUT HEADER...): these headers and all of the library's that they include, as <zor/...>.
function(zor_public_headers out)
  set(found)
  set(open ${ARGN})
  while(open)
    list(POP_FRONT open header)
    list(APPEND found ${header})
    zor_where(file ${header})
    if(NOT EXISTS ${file})
      continue() # generated
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(STRINGS ${file} includes REGEX "^#include <zor/")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^#include <zor/([^>]*)>.*" "\\1" included "${include}")
      if(NOT included IN_LIST found AND NOT included IN_LIST open)
        list(APPEND open ${included})
      endif()
    endforeach()
  endwhile()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# A shared library shows what lies in the library's namespace, and nothing that it got from a header of the standard
# library or of Qt. The version keeps two of them in one process apart.
function(zor_export_namespace target)
  if(NOT BUILD_SHARED_LIBS OR APPLE OR WIN32)
    return()
  endif()
  set(script ${PROJECT_BINARY_DIR}/generated/exports.map)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/exports.map.in ${script} @ONLY)
  target_link_options(${target} PRIVATE LINKER:--version-script=${script} LINKER:--no-undefined)
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${script})
endfunction()

# zor_library(NAME COMPONENT component PART part SUMMARY text LAYERS layers HEADERS headers [NEEDS components]
#             [PUBLIC targets] [PRIVATE targets] [PACKAGES "arguments of find_dependency"...] [PKGCONFIG modules]
#             [STATIC_PACKAGES ...] [STATIC_PKGCONFIG ...]):
# target ZorSmartControls::COMPONENT, inside this tree also zor_NAME and zor_LAYER.
#   PART      the package that its shared library goes into
#   HEADERS   what adopters include; what these include is public with them
#   PACKAGES  what a program that links it has to find first; PKGCONFIG: the same for pkg-config; STATIC_...: what only
#             a program that links the static library needs
function(zor_library name)
  cmake_parse_arguments(L "" "COMPONENT;PART;SUMMARY"
    "LAYERS;HEADERS;NEEDS;PUBLIC;PRIVATE;PACKAGES;PKGCONFIG;STATIC_PACKAGES;STATIC_PKGCONFIG" ${ARGN})
  set(target zor_${name})
  list(TRANSFORM L_LAYERS REPLACE "(.+)" "$<TARGET_OBJECTS:zor_layer_\\1>" OUTPUT_VARIABLE objects)
  add_library(${target} ${objects})
  add_library(ZorSmartControls::${L_COMPONENT} ALIAS ${target})
  foreach(layer IN LISTS L_LAYERS)
    if(NOT TARGET zor_${layer})
      add_library(zor_${layer} ALIAS ${target})
    endif()
  endforeach()

  zor_public_headers(headers ${L_HEADERS})
  zor_view(public/${name} ${headers})
  # Not $<IF:...>, which would end at a comma in a path.
  set(sees "$<STREQUAL:$<TARGET_PROPERTY:ZOR_SEES>,tree>")
  target_include_directories(${target} INTERFACE
    "$<BUILD_INTERFACE:$<${sees}:${ZOR_TOP_INCLUDES}>>"
    "$<BUILD_INTERFACE:$<$<NOT:${sees}>:${PROJECT_BINARY_DIR}/views/public/${name}>>")
  target_compile_features(${target} PUBLIC cxx_std_20)
  list(TRANSFORM L_NEEDS PREPEND ZorSmartControls:: OUTPUT_VARIABLE needs)
  target_link_libraries(${target} PUBLIC ${needs} ${L_PUBLIC} PRIVATE ${L_PRIVATE})

  set(suffix -${name})
  if(name STREQUAL "controls")
    set(suffix)
  endif()
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME zorsmartcontrols${suffix} EXPORT_NAME ${L_COMPONENT} LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION} SOVERSION ${ZOR_ABI})
  zor_export_namespace(${target})
  if(NOT BUILD_SHARED_LIBS)
    list(APPEND L_PACKAGES ${L_STATIC_PACKAGES})
    list(APPEND L_PKGCONFIG ${L_STATIC_PKGCONFIG})
  endif()
  if(ZOR_INSTALL)
    zor_install_library(${target} ${L_COMPONENT} zorsmartcontrols${suffix} HEADERS ${headers} NEEDS ${L_NEEDS}
                        PACKAGES ${L_PACKAGES} PKGCONFIG ${L_PKGCONFIG} PART ${L_PART} SUMMARY ${L_SUMMARY})
  endif()
endfunction()
