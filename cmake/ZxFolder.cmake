# zx_rooms(<room> <variable>)
#
# The targets of the rooms that a room stands on, from the table src/rooms.txt; tools/check_includes.py holds
# every #include against the same table.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/rooms.txt)
function(zx_rooms room variable)
  file(STRINGS ${CMAKE_SOURCE_DIR}/src/rooms.txt row REGEX "^${room}:")
  if(NOT row)
    message(FATAL_ERROR "src/rooms.txt has no row for ${room}")
  endif()
  string(REGEX REPLACE "^[^:]*:" "" row "${row}")
  string(REGEX MATCHALL "[^ ]+" below "${row}")
  set(targets)
  foreach(name IN LISTS below)
    if(name STREQUAL "tests/fixtures")
      list(APPEND targets zx_fixtures)
    elseif(name STREQUAL "host")
      list(APPEND targets zx_host_core)
    elseif(NOT name MATCHES "/|^(public|headless|resources)$")
      list(APPEND targets zx_${name})
    endif()
  endforeach()
  set(${variable} ${targets} PARENT_SCOPE)
endfunction()

# zx_precompile(<target> none|standard|platform|tests [<flags>])
#
# Compiles a target with the headers that its kind shares: the standard library's; the platform's with them;
# what a test includes. The first target of a kind makes the precompiled header and the others, with the same
# flags, use it; a word in place of <flags> marks others. Headers stay complete in themselves: the presets of benchmarks and fuzz targets do without.
function(zx_precompile target kind)
  if(NOT ZX_PRECOMPILE OR kind STREQUAL "none")
    return()
  endif()
  get_property(owner GLOBAL PROPERTY ZX_PRECOMPILED_${kind}${ARGN})
  if(owner)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  else()
    set_property(GLOBAL PROPERTY ZX_PRECOMPILED_${kind}${ARGN} ${target})
    target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled/${kind}.h)
  endif()
endfunction()

# zx_add_folder(<room> [PRECOMPILED <kind>] [DIRS <subfolder>...])
#
# The library zx_<room> of all sources of src/<room>. It links the rooms that src/rooms.txt names.
function(zx_add_folder name)
  cmake_parse_arguments(ARG "" "PRECOMPILED" "DIRS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(dir IN LISTS ARG_DIRS)
    file(GLOB more CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp)
    list(APPEND sources ${more})
  endforeach()
  zx_use_mutated(${name} sources)
  add_library(zx_${name} STATIC ${sources})
  zx_rooms(${name} below)
  target_link_libraries(zx_${name} PUBLIC zx_compile ${below})
  if(NOT ARG_PRECOMPILED)
    set(ARG_PRECOMPILED platform)
  endif()
  zx_precompile(zx_${name} ${ARG_PRECOMPILED})
endfunction()

# zx_export_only(<shared library> <patterns>)
#
# Everything but the symbols of these patterns (each ended by a semicolon) stays inside. Not for Windows, where a
# library exports what its .def names.
function(zx_export_only target patterns)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  file(CONFIGURE OUTPUT ${script} CONTENT "{\n  global:\n${patterns}  local:\n    *;\n};\n" @ONLY)
  target_link_options(${target} PRIVATE LINKER:--version-script=${script} LINKER:-Bsymbolic-functions)
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()

# zx_test_flags(<target> [OPTIMIZED])
#
# Test code itself need not be stepped through, nor be fast but for a few programs: most of the time of a fresh
# build goes into it.
function(zx_test_flags target)
  target_compile_options(${target} PRIVATE $<IF:$<BOOL:${ARGN}>,-O1,-O0> $<$<CONFIG:Debug>:-g1>)
  if(NOT WIN32)
    # One kind of code for programs and libraries, so that they can share a precompiled header.
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
    target_compile_options(${target} PRIVATE -fPIC)
  endif()
endfunction()

# zx_add_tests(<folder> [OPTIMIZED] [LINKS <target>...] [RESOURCES <file.rc>...])
#
# One GoogleTest program zx_<folder>_tests of every tests/<folder>/*_test.cpp. It links what src/rooms.txt
# names for tests/<folder>, and LINKS.
function(zx_add_tests name)
  cmake_parse_arguments(ARG "OPTIMIZED" "" "LINKS;RESOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(zx_${name}_tests ${sources})
  zx_add_mutation_switch(zx_${name}_tests)
  set(flags)
  if(ARG_OPTIMIZED)
    set(flags OPTIMIZED)
  endif()
  zx_test_flags(zx_${name}_tests ${flags})
  zx_precompile(zx_${name}_tests tests ${flags})
  zx_rooms(tests/${name} below)
  target_link_libraries(zx_${name}_tests PRIVATE ${below} ${ARG_LINKS})
  # The path of the tree is known to the few files that read it, so that the others compile alike everywhere.
  foreach(source IN LISTS sources)
    file(STRINGS ${source} reads REGEX "ZX_SOURCE_DIR" LIMIT_COUNT 1)
    if(reads)
      set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS ZX_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    endif()
  endforeach()
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
