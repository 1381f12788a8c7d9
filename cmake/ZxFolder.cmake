# zx_add_folder(<name> [LINKS <folder>...] [SYSTEM <library>...] [DIRS <subfolder>...])
#
# The library zx_<name> of all sources of src/<name>. LINKS are the folders that it may include: a
# folder that is not listed does not link, which is how the arrows of the architecture are enforced.
function(zx_add_folder name)
  cmake_parse_arguments(ARG "" "" "LINKS;SYSTEM;DIRS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(dir IN LISTS ARG_DIRS)
    file(GLOB more CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp)
    list(APPEND sources ${more})
  endforeach()
  add_library(zx_${name} STATIC ${sources})
  target_link_libraries(zx_${name} PUBLIC zx_compile)
  foreach(link IN LISTS ARG_LINKS)
    target_link_libraries(zx_${name} PUBLIC zx_${link})
  endforeach()
  if(ARG_SYSTEM)
    target_link_libraries(zx_${name} PUBLIC ${ARG_SYSTEM})
  endif()
endfunction()

# zx_add_tests(<folder> LINKS <folder>... [RESOURCES <file.rc>...] [DATA <definition>...])
#
# One GoogleTest program zx_<folder>_tests of every tests/<folder>/*_test.cpp, with tests/fixtures.
function(zx_add_tests name)
  cmake_parse_arguments(ARG "" "" "LINKS;RESOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(zx_${name}_tests ${sources})
  # Test code itself need not be fast or stepped through: most of the time of a fresh build goes into it.
  target_compile_options(zx_${name}_tests PRIVATE -O0 $<$<CONFIG:Debug>:-g1>)
  foreach(link IN LISTS ARG_LINKS)
    target_link_libraries(zx_${name}_tests PRIVATE zx_${link})
  endforeach()
  target_link_libraries(zx_${name}_tests PRIVATE zx_fixtures)
  target_compile_definitions(zx_${name}_tests PRIVATE ZX_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  if(ARG_RESOURCES)
    zx_add_resources(zx_${name}_tests ${ARG_RESOURCES})
  endif()
  add_test(NAME ${name} COMMAND zx_${name}_tests)
  set_property(GLOBAL APPEND PROPERTY ZX_TEST_PROGRAMS zx_${name}_tests)
endfunction()

# zx_add_bench(<name> LINKS <target>...)
#
# One benchmark program zx_bench_<name> of every source of the current folder.
function(zx_add_bench name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(zx_bench_${name} ${sources})
  target_link_libraries(zx_bench_${name} PRIVATE zx_compile ${ARG_LINKS})
  target_include_directories(zx_bench_${name} PRIVATE ${CMAKE_SOURCE_DIR}/bench ${CMAKE_SOURCE_DIR}/tests)
  set_property(GLOBAL APPEND PROPERTY ZX_BENCH_PROGRAMS zx_bench_${name})
endfunction()

# zx_add_fuzz(<name> SOURCES <file>... LINKS <target>...)
#
# One fuzz target zx_fuzz_<name>.
function(zx_add_fuzz name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(zx_fuzz_${name} ${ARG_SOURCES})
  target_link_libraries(zx_fuzz_${name} PRIVATE zx_compile ${ARG_LINKS})
  target_compile_options(zx_fuzz_${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(zx_fuzz_${name} PRIVATE -fsanitize=fuzzer)
endfunction()
