# What hosts use: each published library is the target zqbchwcx::<component>, its headers lie below "zqbchwcx/", and an
# installed package offers both. The build sees the headers below the same name, so that one spelling fits everywhere.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(QUILLON_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zqbchwcx)

# publish_library(target component [folder]): the folder is the headers' place below "zqbchwcx/"; without one they lie
# at that root already.
function(publish_library target component)
  set(folder ${ARGV2})
  if(folder)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include/zqbchwcx)
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include/zqbchwcx/${folder} SYMBOLIC)
    set(include_root ${PROJECT_BINARY_DIR}/include)
    set(headers ${CMAKE_CURRENT_SOURCE_DIR}/)
    set(destination ${CMAKE_INSTALL_INCLUDEDIR}/zqbchwcx/${folder})
  else()
    set(include_root ${CMAKE_CURRENT_SOURCE_DIR})
    set(headers ${CMAKE_CURRENT_SOURCE_DIR}/zqbchwcx/)
    set(destination ${CMAKE_INSTALL_INCLUDEDIR}/zqbchwcx)
  endif()
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${include_root}>
                                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${component})
  add_library(zqbchwcx::${component} ALIAS ${target})

  install(TARGETS ${target} EXPORT zqbchwcx-${component} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT zqbchwcx-${component} NAMESPACE zqbchwcx:: DESTINATION ${QUILLON_PACKAGE_DIR})
  install(DIRECTORY ${headers} DESTINATION ${destination} FILES_MATCHING PATTERN *.h)
endfunction()

# publish_objects(component [targets...]): object files that a published library brings along.
function(publish_objects component)
  if(ARGN)
    install(TARGETS ${ARGN} EXPORT zqbchwcx-${component} OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR})
  endif()
endfunction()

# publish_package(): once, at the end.
function(publish_package)
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zqbchwcxConfig.cmake.in
                                ${PROJECT_BINARY_DIR}/zqbchwcxConfig.cmake INSTALL_DESTINATION ${QUILLON_PACKAGE_DIR})
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/zqbchwcxConfigVersion.cmake COMPATIBILITY SameMinorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/zqbchwcxConfig.cmake ${PROJECT_BINARY_DIR}/zqbchwcxConfigVersion.cmake
          DESTINATION ${QUILLON_PACKAGE_DIR})
endfunction()
