# What is built, and how. At top level everything; below another project only the Qt-free library, until it asks for
# more. Nothing here reaches the parent: variables end with this folder's scope, flags belong to its targets.

# zor_option(NAME TEXT [NEEDS options]): on at top level where what it needs is on, off below.
function(zor_option name text)
  cmake_parse_arguments(O "" "" "NEEDS" ${ARGN})
  set(default ${PROJECT_IS_TOP_LEVEL})
  foreach(need IN LISTS O_NEEDS)
    if(NOT ${need})
      set(default OFF)
    endif()
  endforeach()
  option(${name} "${text}" ${default})
  foreach(need IN LISTS O_NEEDS)
    if(${name} AND NOT ${need})
      message(FATAL_ERROR "${name} needs ${need}: turn that on, or this off")
    endif()
  endforeach()
endfunction()

zor_option(ZOR_BUILD_FORMS "Read and write form files without Qt (needs pugixml)")
zor_option(ZOR_BUILD_QT "The Qt 6 platform and the controls as QWidgets")
zor_option(ZOR_BUILD_DESIGNER "The Qt Designer plugin" NEEDS ZOR_BUILD_QT)
zor_option(ZOR_BUILD_TOOLS "The console zorsh and the writer of the reference pages" NEEDS ZOR_BUILD_FORMS)
zor_option(ZOR_BUILD_MONITOR "The monitor" NEEDS ZOR_BUILD_FORMS ZOR_BUILD_QT)
zor_option(ZOR_BUILD_EXAMPLES "The programs of examples/")
zor_option(ZOR_BUILD_TESTS "The tests" NEEDS ZOR_BUILD_TOOLS)
zor_option(ZOR_BUILD_QT_TESTS "The test programs that need Qt" NEEDS ZOR_BUILD_TESTS ZOR_BUILD_QT)
zor_option(ZOR_INSTALL "Install what is built")
option(ZOR_BUILD_BENCH "The benchmarks" OFF)
option(ZOR_BUILD_INSTRUCTIONS "The program whose instructions are counted (valgrind)" OFF)
option(ZOR_BUILD_FUZZ "The fuzzers (clang; needs ZOR_BUILD_TOOLS)" OFF)
option(ZOR_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

if(PROJECT_IS_TOP_LEVEL)
  if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
  endif()
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()
# What the published targets link must be known wherever they are linked, in a parent project too.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)

# A parent's newer standard holds here as well.
if(NOT DEFINED CMAKE_CXX_STANDARD OR CMAKE_CXX_STANDARD LESS 20)
  set(CMAKE_CXX_STANDARD 20)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# The library also goes into the Designer plugin, a shared object that shows nobody its symbols.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_library(zor_warnings INTERFACE)
target_compile_options(zor_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(PROJECT_IS_TOP_LEVEL)
  # A newer compiler finds more; whoever only embeds the library shall not stand before it.
  target_compile_options(zor_warnings INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in std::string::insert and operator+ that are none (its bug 105651),
  # and at -O1 takes the value of an optional for read where it has just been asked whether there is one.
  target_compile_options(zor_warnings INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()

if(ZOR_BUILD_FUZZ)
  # Texts that are compared are heard all the same; each comparison of two numbers takes a third of the time.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-coverage=trace-cmp -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
elseif(ZOR_SANITIZE)
  # With the sanitizers the compiler takes much for uninitialised that is not.
  target_compile_options(zor_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
