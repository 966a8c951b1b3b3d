add_library(quillon_options INTERFACE)
target_compile_features(quillon_options INTERFACE cxx_std_20)
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(quillon_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endif()
# GCC 12 takes some concatenations of strings in optimised code for overlapping copies, which they are not.
target_compile_options(quillon_options INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>,$<CONFIG:Release,RelWithDebInfo>>:-Wno-restrict>)
if(QUILLON_SANITIZE)
  target_compile_options(quillon_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(quillon_options INTERFACE -fsanitize=address,undefined)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
