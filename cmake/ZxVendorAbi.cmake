# zx_add_vendor_library(<target> <source> [LINKS <import library>...] [AFTER <target>...])
#
# A library in the platform vendor's ABI, <target>.dll, which tests load to see whether ours can be called from
# there. Built by clang without any runtime, since only the compiler is to be had here.
function(zx_add_vendor_library target source)
  cmake_parse_arguments(ARG "" "" "LINKS;AFTER" ${ARGN})
  find_program(ZX_CLANG NAMES clang clang-14 REQUIRED)
  find_program(ZX_LLD_LINK NAMES lld-link lld-link-14 REQUIRED)
  execute_process(COMMAND ${ZX_CLANG} -print-resource-dir OUTPUT_VARIABLE clang_dir OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(machine i686-pc-windows-msvc)
    set(options -safeseh:no)
  else()
    set(machine x86_64-pc-windows-msvc)
    set(options)
  endif()
  set(library ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target}.dll)
  set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}.obj)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/include/*.h ${CMAKE_SOURCE_DIR}/include/zxadlg/*.h)
  add_custom_command(OUTPUT ${library} DEPENDS ${source} ${headers} ${ARG_LINKS} ${ARG_AFTER}
    COMMAND ${ZX_CLANG} --target=${machine} -std=c++20 -O1 -Wall -Werror -nostdinc -isystem ${clang_dir}/include
            -ffreestanding -fno-rtti -fno-exceptions -fms-extensions -fno-threadsafe-statics
            -I ${CMAKE_SOURCE_DIR}/include -c ${CMAKE_CURRENT_SOURCE_DIR}/${source} -o ${object}
    COMMAND ${ZX_LLD_LINK} -dll -noentry -nodefaultlib ${options} -out:${library} ${object} ${ARG_LINKS}
    VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${library})
endfunction()
