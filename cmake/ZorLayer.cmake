# A layer is the objects of the sources in one folder. Its include path holds a view of the source tree with its own
# headers and those of the layers below it, and nothing else: an include that points upwards does not compile.
# Layers become libraries in ZorLibrary.cmake.

# Who sees which headers: a layer those of its view, what is built in this tree ("tree") every one, and strangers,
# the programs of examples/ among them, the public ones.
define_property(TARGET PROPERTY ZOR_SEES INITIALIZE_FROM_VARIABLE DEFAULT_ZOR_SEES)
set(DEFAULT_ZOR_SEES tree)

# What is built in this tree sees: every source as <zor/...>, the umbrella headers, and what is generated.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/views/top ${PROJECT_BINARY_DIR}/generated)
file(CREATE_LINK ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/views/top/zor SYMBOLIC)
set(ZOR_TOP_INCLUDES ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/views/top ${PROJECT_BINARY_DIR}/generated)

# zor_where(OUT HEADER): the file behind <zor/HEADER>.
function(zor_where out header)
  set(${out} ${PROJECT_BINARY_DIR}/generated/zor/${header} PARENT_SCOPE)
  foreach(file ${PROJECT_SOURCE_DIR}/include/zor/${header} ${PROJECT_SOURCE_DIR}/${header})
    if(EXISTS ${file})
      set(${out} ${file} PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

# zor_view(NAME HEADER...): a folder in the build tree that shows these headers, as <zor/...>, and nothing else.
function(zor_view name)
  set(view ${PROJECT_BINARY_DIR}/views/${name})
  file(REMOVE_RECURSE ${view})
  foreach(header IN LISTS ARGN)
    get_filename_component(folder ${header} DIRECTORY)
    file(MAKE_DIRECTORY ${view}/zor/${folder})
    zor_where(file ${header})
    file(CREATE_LINK ${file} ${view}/zor/${header} SYMBOLIC)
  endforeach()
endfunction()

# zor_layer(NAME DIR folder [RECURSE] [BELOW layers] [LINK targets] [GENERATED sources] [ALONE regex]):
# target zor_layer_NAME. ALONE: sources that CMAKE_UNITY_BUILD must not put together with others, because their own
# constants go by the same names.
function(zor_layer name)
  cmake_parse_arguments(L "RECURSE" "DIR;ALONE" "BELOW;LINK;GENERATED" ${ARGN})
  set(glob GLOB)
  if(L_RECURSE)
    set(glob GLOB_RECURSE)
  endif()
  file(${glob} sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${L_DIR}/*.cpp)
  file(${glob} headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${L_DIR}/*.h)
  if(NOT sources OR NOT headers)
    message(FATAL_ERROR "layer ${name}: no sources in ${L_DIR}")
  endif()
  set(target zor_layer_${name})
  if(L_ALONE)
    set(alone ${sources})
    list(FILTER alone INCLUDE REGEX ${L_ALONE})
    set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
  list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE shown)
  add_library(${target} OBJECT ${sources} ${shown} ${L_GENERATED})
  target_link_libraries(${target} PRIVATE zor_warnings PUBLIC ${L_LINK})
  foreach(layer IN LISTS L_BELOW)
    target_link_libraries(${target} PUBLIC zor_layer_${layer})
    get_target_property(lower zor_layer_${layer} ZOR_HEADERS)
    list(APPEND headers ${lower})
  endforeach()
  list(REMOVE_DUPLICATES headers)
  zor_view(${name} ${headers})
  target_include_directories(${target} PRIVATE ${PROJECT_BINARY_DIR}/views/${name})
  if(L_GENERATED)
    target_include_directories(${target} PRIVATE ${PROJECT_BINARY_DIR}/generated)
  endif()
  set_target_properties(${target} PROPERTIES ZOR_SEES layer ZOR_HEADERS "${headers}")
  if(BUILD_SHARED_LIBS)
    # What a shared library shows is said where it is linked, see ZorLibrary.cmake.
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET default)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    endif()
  endif()
  set_property(GLOBAL APPEND PROPERTY ZOR_LAYERS ${name})
endfunction()

# One test a layer: the compiler finds the layer's own headers, and none of a layer above it.
function(zor_layer_tests)
  get_property(layers GLOBAL PROPERTY ZOR_LAYERS)
  set(all)
  foreach(layer IN LISTS layers)
    get_target_property(headers zor_layer_${layer} ZOR_HEADERS)
    list(APPEND all ${headers})
  endforeach()
  list(REMOVE_DUPLICATES all)
  foreach(layer IN LISTS layers)
    get_target_property(headers zor_layer_${layer} ZOR_HEADERS)
    set(above ${all})
    list(REMOVE_ITEM above ${headers})
    add_test(NAME layers.${layer}.SeesNothingAbove
             COMMAND ${CMAKE_COMMAND} -DCOMPILER=${CMAKE_CXX_COMPILER}
                     "-DINCLUDES=$<TARGET_PROPERTY:zor_layer_${layer},INCLUDE_DIRECTORIES>"
                     "-DOWN=${headers}" "-DABOVE=${above}" -P ${PROJECT_SOURCE_DIR}/cmake/CheckLayer.cmake)
  endforeach()
endfunction()
