# A room is a folder whose sources make one target: whoever adds a file to the folder adds it to the target.

function(room_sources result)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS LIST_DIRECTORIES false RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  set(${result} ${sources} PARENT_SCOPE)
endfunction()

# room_library(name [libraries it uses...])
function(room_library name)
  room_sources(sources)
  add_library(${name} STATIC ${sources})
  # Hosts are not built with the warnings of this project, and find none of it when they use an installed library.
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE $<BUILD_INTERFACE:quillon_options>)
  target_compile_features(${name} PUBLIC cxx_std_20)
endfunction()

# room_test(name [libraries it uses...]): all tests of a folder in one program, run by ctest as one test.
function(room_test name)
  room_sources(sources)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARGN} quillon_options GTest::gmock GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:${PROJECT_BINARY_DIR}/reports/${name}.xml)
endfunction()
