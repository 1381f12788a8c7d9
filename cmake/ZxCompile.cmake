# One interface target carries the flags of every target of ours: warnings, sanitizers, and a floating
# point that is the same bit for bit in every build (SSE2, no fused operations, no excess precision).
add_library(zx_compile INTERFACE)
target_include_directories(zx_compile INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/include
                                                ${CMAKE_SOURCE_DIR}/resources)
target_compile_options(zx_compile INTERFACE
  -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Wno-missing-field-initializers
  -ffp-contract=off -fno-fast-math)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # A cast between function pointer types is how a window procedure travels through a window long.
  # Version 12 sees overlapping and overlong copies in plain std::string operations where there are none.
  target_compile_options(zx_compile INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-cast-function-type>
                                              $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>
                                              $<$<COMPILE_LANGUAGE:CXX>:-Wno-array-bounds>
                                              $<$<COMPILE_LANGUAGE:CXX>:-Wno-stringop-overflow>)
else()
  # An operation of a control may take the name of one of windows with other arguments.
  target_compile_options(zx_compile INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-overloaded-virtual>)
endif()
if(WIN32)
  target_compile_definitions(zx_compile INTERFACE WINVER=0x0600 _WIN32_WINNT=0x0600 _WIN32_IE=0x0600
                                                  NOMINMAX WIN32_LEAN_AND_MEAN)
  target_link_options(zx_compile INTERFACE -static)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Without SSE2 the x87 keeps more digits than 64 bits and results differ from the native build.
    target_compile_options(zx_compile INTERFACE -msse2 -mfpmath=sse -mstackrealign)
  endif()
endif()
if(ZX_SANITIZE)
  target_compile_options(zx_compile INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                              -fno-omit-frame-pointer)
  target_link_options(zx_compile INTERFACE -fsanitize=address,undefined)
endif()
if(ZX_FUZZ)
  # The fuzzer sees only the code that counts its branches.
  target_compile_options(zx_compile INTERFACE -fsanitize=fuzzer-no-link)
endif()
find_program(ZX_CCACHE ccache)
if(ZX_CCACHE)
  # Without this a cached unit that uses a precompiled header is never found again.
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZX_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zx_compile INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()
