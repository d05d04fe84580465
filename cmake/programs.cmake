# Installs a program of this project. The program gets a run path relative to itself, so that it finds the
# library even if both are moved together. It needs no run path if the library is in a folder that the loader
# searches anyway, such as that of a distribution's package.
function(install_program target folder)
  set(loader_folders /lib /lib64 /usr/lib /usr/lib64 ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES})
  list(REMOVE_ITEM loader_folders /usr/local/lib /usr/local/lib64)  # some distributions' loaders do not search these
  if(BUILD_SHARED_LIBS AND NOT CMAKE_INSTALL_FULL_LIBDIR IN_LIST loader_folders)
    cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE full_folder)
    file(RELATIVE_PATH to_library ${full_folder} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN/${to_library})
  endif()
  install(TARGETS ${target} RUNTIME DESTINATION ${folder} COMPONENT runtime)
endfunction()
