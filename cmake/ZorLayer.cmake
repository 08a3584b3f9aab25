# A layer is a static library of the sources in one folder. Its include path holds a view of the source tree with
# its own headers and those of the layers below it, and nothing else: an include that points upwards does not
# compile.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(zor_warnings INTERFACE)
target_compile_options(zor_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in std::string::insert and operator+ that are none (its bug 105651).
  target_compile_options(zor_warnings INTERFACE -Wno-restrict)
endif()

if(ZOR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(ZOR_SANITIZE)
  # With the sanitizers the compiler takes much for uninitialised that is not.
  target_compile_options(zor_warnings INTERFACE -Wno-maybe-uninitialized)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# What programs on top of the layers see: every source as <zor/...>, the umbrella headers, and what is generated.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/views/top ${PROJECT_BINARY_DIR}/generated)
file(CREATE_LINK ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/views/top/zor SYMBOLIC)
set(ZOR_TOP_INCLUDES ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/views/top ${PROJECT_BINARY_DIR}/generated)

# zor_view(NAME HEADER...): a folder in the build tree that shows these headers, as <zor/...>, and nothing else.
function(zor_view name)
  set(view ${PROJECT_BINARY_DIR}/views/${name})
  file(REMOVE_RECURSE ${view})
  foreach(header IN LISTS ARGN)
    get_filename_component(folder ${header} DIRECTORY)
    file(MAKE_DIRECTORY ${view}/zor/${folder})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${header} ${view}/zor/${header} SYMBOLIC)
  endforeach()
endfunction()

# zor_layer(NAME DIR folder [RECURSE] [BELOW layer]): target zor_NAME.
function(zor_layer name)
  cmake_parse_arguments(L "RECURSE" "DIR;BELOW" "" ${ARGN})
  set(glob GLOB)
  if(L_RECURSE)
    set(glob GLOB_RECURSE)
  endif()
  file(${glob} sources CONFIGURE_DEPENDS ${L_DIR}/*.cpp)
  file(${glob} headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${L_DIR}/*.h)
  if(NOT sources OR NOT headers)
    message(FATAL_ERROR "layer ${name}: no sources in ${L_DIR}")
  endif()
  add_library(zor_${name} STATIC ${sources} ${headers})
  target_link_libraries(zor_${name} PRIVATE zor_warnings)
  target_compile_features(zor_${name} PUBLIC cxx_std_20)
  if(L_BELOW)
    target_link_libraries(zor_${name} PUBLIC zor_${L_BELOW})
    get_target_property(lower zor_${L_BELOW} ZOR_HEADERS)
    list(APPEND headers ${lower})
  endif()
  set_target_properties(zor_${name} PROPERTIES ZOR_LAYER TRUE ZOR_HEADERS "${headers}")
  zor_view(${name} ${headers})
  # The views serve compilation of the layers themselves; programs on top see everything.
  target_include_directories(zor_${name} PRIVATE ${PROJECT_BINARY_DIR}/views/${name}
    INTERFACE "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZOR_LAYER>>>:${ZOR_TOP_INCLUDES}>")
  set_property(GLOBAL APPEND PROPERTY ZOR_LAYERS ${name})
endfunction()

# One test a layer: the compiler finds the layer's own headers, and none of a layer above it.
function(zor_layer_tests)
  get_property(layers GLOBAL PROPERTY ZOR_LAYERS)
  set(all)
  foreach(layer IN LISTS layers)
    get_target_property(headers zor_${layer} ZOR_HEADERS)
    list(APPEND all ${headers})
  endforeach()
  list(REMOVE_DUPLICATES all)
  foreach(layer IN LISTS layers)
    get_target_property(headers zor_${layer} ZOR_HEADERS)
    set(above ${all})
    list(REMOVE_ITEM above ${headers})
    add_test(NAME layers.${layer}.SeesNothingAbove
             COMMAND ${CMAKE_COMMAND} -DCOMPILER=${CMAKE_CXX_COMPILER} "-DINCLUDES=$<TARGET_PROPERTY:zor_${layer},INCLUDE_DIRECTORIES>"
                     "-DOWN=${headers}" "-DABOVE=${above}" -P ${PROJECT_SOURCE_DIR}/cmake/CheckLayer.cmake)
  endforeach()
endfunction()
