# The Debian packages: one for each part that the install rules name.

set(ZOR_MAINTAINER "The ZorSmartControls authors <zorsmartcontrols@users.noreply.github.com>")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zorsmartcontrols)
set(CPACK_PACKAGE_CONTACT ${ZOR_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE zorsmartcontrols)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR} ${PROJECT_BINARY_DIR}/platform/qt
    ${PROJECT_BINARY_DIR}/widgets)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

file(READ ${PROJECT_SOURCE_DIR}/LICENSE license)
string(REGEX REPLACE "^.*\n\n(Permission)" "\\1" license "${license}")
string(STRIP "${license}" license)
string(REPLACE "\n\n" "\n.\n" license "${license}")
string(REPLACE "\n" "\n " license " ${license}")
configure_file(copyright.in ${generated}/copyright @ONLY)

# Debian's form of the change log; what changed stands in the project's own.
execute_process(COMMAND env LC_ALL=C date -u -R -d ${ZOR_RELEASE_DATE} OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
file(WRITE ${generated}/changelog "zorsmartcontrols (${PROJECT_VERSION}) unstable; urgency=medium

  * Version ${PROJECT_VERSION} of ${ZOR_RELEASE_DATE}: see CHANGELOG.md of the sources and
    of libzorsmartcontrols-dev.

 -- ${ZOR_MAINTAINER}  ${date}
")
execute_process(COMMAND gzip -9nf ${generated}/changelog COMMAND_ERROR_IS_FATAL ANY)

# zor_wrap(VARIABLE TEXT): the text in lines as short as Debian wants those of descriptions. Paragraphs stay apart.
function(zor_wrap variable text)
  string(REPLACE "\n\n" " \n\n " text "${text}")
  string(REPLACE " " ";" words "${text}")
  set(lines "")
  set(line "")
  foreach(word IN LISTS words)
    string(LENGTH "${line} ${word}" length)
    if(line STREQUAL "" OR "\n\n" IN_LIST line OR word STREQUAL "\n\n")
      string(APPEND lines "${line}")
      set(line "${word}")
    elseif(length GREATER 76)
      string(APPEND lines "${line}\n")
      set(line "${word}")
    else()
      string(APPEND line " ${word}")
    endif()
  endforeach()
  set(${variable} "${lines}${line}" PARENT_SCOPE)
endfunction()

# zor_part(PART SUMMARY text DESCRIPTION text SECTION section [ABI] [NEEDS parts] [DEPENDS packages] [SUGGESTS packages]):
# the package of what is installed as COMPONENT PART. ABI: a shared library, whose package carries the soname's number.
function(zor_part part)
  cmake_parse_arguments(P "ABI" "SUMMARY;DESCRIPTION;SECTION;DEPENDS;SUGGESTS" "NEEDS" ${ARGN})
  set(package ${part})
  if(P_ABI)
    set(package ${part}${ZOR_ABI})
  endif()
  install(FILES ${generated}/copyright ${generated}/changelog.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${part})
  string(TOUPPER ${part} name)
  set(CPACK_DEBIAN_${name}_PACKAGE_NAME ${package} PARENT_SCOPE)
  zor_wrap(description "${P_DESCRIPTION}")
  set(CPACK_DEBIAN_${name}_DESCRIPTION "${P_SUMMARY}\n${description}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_SECTION ${P_SECTION} PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_SHLIBDEPS ON PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_DEPENDS "${P_DEPENDS}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_SUGGESTS "${P_SUGGESTS}" PARENT_SCOPE)
  set(CPACK_COMPONENT_${name}_DEPENDS "${P_NEEDS}" PARENT_SCOPE)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${part} PARENT_SCOPE)
endfunction()

set(about "Nine user-interface controls and their property pages, for programs that configure and monitor a field measurement \
device whose parameters live in registers. Each shows a value in the unit its operator thinks in, knows whether the value is \
live, missing or edited, and hands over nothing that is not valid.")
zor_part(libzorsmartcontrols ABI SECTION libs
         SUMMARY "data-bound controls for field measurement devices"
         DESCRIPTION "${about}\n\nThis package holds the controls, the platform without a display and the reader of form files.")
zor_part(libzorsmartcontrols-dev SECTION libdevel NEEDS libzorsmartcontrols
         SUMMARY "data-bound controls for field measurement devices (development files)"
         DESCRIPTION "${about}\n\nThis package holds what compiling programs without Qt needs, the guides and the examples.")
zor_part(libzorsmartcontrols-qt ABI SECTION libs NEEDS libzorsmartcontrols
         SUMMARY "data-bound controls for field measurement devices, on Qt 6 widgets"
         DESCRIPTION "${about}\n\nThis package holds the controls on Qt 6 widgets, and as QWidgets.")
zor_part(libzorsmartcontrols-qt-dev SECTION libdevel NEEDS libzorsmartcontrols-dev libzorsmartcontrols-qt
         DEPENDS "qt6-base-dev, qt6-tools-dev" SUGGESTS zorsmartcontrols-designer
         SUMMARY "data-bound controls for field measurement devices, on Qt 6 (development files)"
         DESCRIPTION "${about}\n\nThis package holds what compiling programs with Qt 6 needs.")
zor_part(zorsmartcontrols-designer SECTION devel NEEDS libzorsmartcontrols libzorsmartcontrols-qt
         SUGGESTS designer-qt6
         SUMMARY "data-bound controls for field measurement devices in Qt Designer"
         DESCRIPTION "${about}\n\nThis package brings the controls into Qt Designer, and into programs that load its forms.")
zor_part(zorsh SECTION devel NEEDS libzorsmartcontrols libzorsmartcontrols-qt
         SUMMARY "console for data-bound controls of field measurement devices"
         DESCRIPTION "Creates controls, plays the host program and the operator, and prints what either of them could see: to try \
a control without a program, to reproduce a report, and to run behaviour tests as scripts.")
zor_part(zor-monitor SECTION science NEEDS libzorsmartcontrols libzorsmartcontrols-qt
         SUMMARY "monitor for Modbus devices"
         DESCRIPTION "Shows the parameters of a device on Modbus TCP or a serial line, in the units its operator thinks in, keeps \
them fresh, and writes what has been changed after a review. Where the parameters lie is said by a parameter file; the form is \
made from it or drawn in Qt Designer. A simulated device comes along.")
include(CPack)
