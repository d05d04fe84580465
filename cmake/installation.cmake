# Installs the library and the files by which find_package(Glyphorium) and pkg-config find it. The component
# "runtime" contains the files that programs need to run, the component "development" the files that are
# needed to build programs. If another project contains this one, it installs only the first component by
# default.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/LICENSES DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
if(GLYPHORIUM_INSTALL STREQUAL RUNTIME)
  if(BUILD_SHARED_LIBS)
    install(TARGETS glyphorium LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_SKIP)
  endif()
  return()
endif()

include(CMakePackageConfigHelpers)
install(TARGETS glyphorium EXPORT GlyphoriumTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
        FILE_SET generated_headers DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
if(TARGET glyphorium-static)
  install(TARGETS glyphorium-static EXPORT GlyphoriumStaticTargets
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/Glyphorium)
install(EXPORT GlyphoriumTargets NAMESPACE Glyphorium:: DESTINATION ${package_directory} COMPONENT development)
if(TARGET glyphorium-static)
  install(EXPORT GlyphoriumStaticTargets NAMESPACE Glyphorium:: DESTINATION ${package_directory} COMPONENT development)
endif()
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/GlyphoriumConfig.cmake.in ${PROJECT_BINARY_DIR}/GlyphoriumConfig.cmake
  INSTALL_DESTINATION ${package_directory} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/GlyphoriumConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/GlyphoriumConfig.cmake ${PROJECT_BINARY_DIR}/GlyphoriumConfigVersion.cmake
        DESTINATION ${package_directory} COMPONENT development)

# The file for pkg-config gives the prefix relative to itself. So users can choose the prefix during the
# installation, and move the installed folder later.
set(pkgconfig_directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
set(pkgconfig_libraries " -lsimdjson -licuuc -lsqlite3 -lstdc++ -lpthread")
if(BUILD_SHARED_LIBS)
  set(pkgconfig_private_libraries "${pkgconfig_libraries}")
  set(pkgconfig_libraries "")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/glyphorium.pc.in ${PROJECT_BINARY_DIR}/glyphorium.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/glyphorium.pc DESTINATION ${pkgconfig_directory} COMPONENT development)
