# Options of all targets: the language standard, warnings, sanitizers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(glyphorium_warnings INTERFACE)
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(glyphorium_warnings INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # -Wrestrict is off, because GCC 12 gives false warnings about overlapping copies in std::string (GCC bug
  # 105651).
  target_compile_options(glyphorium_warnings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()

add_library(glyphorium_options INTERFACE)
target_link_libraries(glyphorium_options INTERFACE glyphorium_warnings)
if(GLYPHORIUM_SANITIZE)
  target_compile_options(glyphorium_options INTERFACE -fsanitize=${GLYPHORIUM_SANITIZE} -fno-omit-frame-pointer
                         -fno-sanitize-recover=undefined)
  target_link_options(glyphorium_options INTERFACE -fsanitize=${GLYPHORIUM_SANITIZE})
else()
  target_link_options(glyphorium_options INTERFACE -Wl,--no-undefined)
endif()
