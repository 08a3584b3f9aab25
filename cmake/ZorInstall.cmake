# What `cmake --install` puts below the prefix: everything in GNU's folders, nothing with an absolute path in it, so
# that the whole may be moved. Each file belongs to a part, which becomes a package of the same name (packaging/packages.cmake).

if(ZOR_INSTALL)
  include(GNUInstallDirs)
  include(CMakePackageConfigHelpers)

  set(ZOR_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZorSmartControls)
  # Qt's folder for plugins of a system package, below whatever prefix.
  set(ZOR_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/qt6/plugins CACHE STRING "Where Qt plugins are installed, below the prefix")

  # What is installed finds the shared libraries beside it; a system's own folders need no such path.
  if(BUILD_SHARED_LIBS AND NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    foreach(folder BINDIR LIBDIR)
      file(RELATIVE_PATH up /${CMAKE_INSTALL_${folder}} /${CMAKE_INSTALL_LIBDIR})
      set(ZOR_RPATH_${folder} $ORIGIN/${up})
    endforeach()
    file(RELATIVE_PATH up /${ZOR_PLUGIN_DIR}/designer /${CMAKE_INSTALL_LIBDIR})
    set(ZOR_RPATH_PLUGIN $ORIGIN/${up})
  endif()
endif()

# zor_install_library(TARGET COMPONENT FILE ...): library, headers, CMake and pkg-config description; called by
# zor_library, which says what the arguments are.
function(zor_install_library target component file)
  cmake_parse_arguments(I "" "" "HEADERS;NEEDS;PACKAGES;PKGCONFIG;PART;SUMMARY" ${ARGN})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${ZOR_RPATH_LIBDIR}")
  install(TARGETS ${target} EXPORT ${target}
          LIBRARY COMPONENT ${I_PART} NAMELINK_COMPONENT ${I_PART}-dev
          ARCHIVE COMPONENT ${I_PART}-dev
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT ${target} FILE ZorSmartControls${component}Targets.cmake NAMESPACE ZorSmartControls::
          DESTINATION ${ZOR_CMAKE_DIR} COMPONENT ${I_PART}-dev)
  # A header that several reach comes with the first.
  get_property(installed GLOBAL PROPERTY ZOR_INSTALLED_HEADERS)
  list(REMOVE_ITEM I_HEADERS ${installed})
  set_property(GLOBAL APPEND PROPERTY ZOR_INSTALLED_HEADERS ${I_HEADERS})
  foreach(header IN LISTS I_HEADERS)
    zor_where(source ${header})
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${source} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zor/${folder} COMPONENT ${I_PART}-dev)
  endforeach()

  set(needs ${I_NEEDS})
  list(TRANSFORM I_PACKAGES REPLACE "(.+)" "find_dependency(\\1)" OUTPUT_VARIABLE find_dependencies)
  list(JOIN find_dependencies "\n" find_dependencies)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/component.cmake.in
                 ${PROJECT_BINARY_DIR}/generated/ZorSmartControls${component}.cmake @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/generated/ZorSmartControls${component}.cmake
          DESTINATION ${ZOR_CMAKE_DIR} COMPONENT ${I_PART}-dev)

  file(RELATIVE_PATH prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" prefix ${prefix})
  set(requires ${I_PKGCONFIG})
  foreach(need IN LISTS I_NEEDS)
    get_target_property(name ZorSmartControls::${need} OUTPUT_NAME)
    list(APPEND requires "${name} = ${PROJECT_VERSION}")
  endforeach()
  list(JOIN requires ", " requires)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgconfig.in ${PROJECT_BINARY_DIR}/generated/${file}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/generated/${file}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${I_PART}-dev)
endfunction()

# zor_install_package(PART): what find_package reads first.
function(zor_install_package part)
  set(generated ${PROJECT_BINARY_DIR}/generated)
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZorSmartControlsConfig.cmake.in
                                ${generated}/ZorSmartControlsConfig.cmake INSTALL_DESTINATION ${ZOR_CMAKE_DIR}
                                NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file(${generated}/ZorSmartControlsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
  install(FILES ${generated}/ZorSmartControlsConfig.cmake ${generated}/ZorSmartControlsConfigVersion.cmake
          DESTINATION ${ZOR_CMAKE_DIR} COMPONENT ${part}-dev)
endfunction()

# zor_install_program(TARGET): the program, its manual page and its completion in the shell; all go by the program's
# name, and so does the part.
function(zor_install_program target)
  if(NOT ZOR_INSTALL)
    return()
  endif()
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${ZOR_RPATH_BINDIR}")
  install(TARGETS ${target} RUNTIME COMPONENT ${target})
  set(page ${PROJECT_BINARY_DIR}/generated/${target}.1)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/man/${target}.1 ${page} COPYONLY)
  execute_process(COMMAND gzip -9nkf ${page} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${target})
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/completion.bash RENAME ${target}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT ${target})
endfunction()
