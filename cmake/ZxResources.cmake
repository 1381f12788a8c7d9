# zx_add_resources(<target> <file.rc>...)
#
# Links compiled resources into a program or library. On Windows the .res becomes an object; elsewhere
# the very same bytes are placed in the module by the assembler and the headless window system reads
# them there.
if(WIN32)
  set(ZX_WINDRES ${CMAKE_RC_COMPILER})
else()
  find_program(ZX_WINDRES NAMES i686-w64-mingw32-windres x86_64-w64-mingw32-windres)
  find_program(ZX_LLVM_RC NAMES llvm-rc llvm-rc-14)
endif()

function(zx_add_resources target)
  set(objects)
  foreach(rc IN LISTS ARGN)
    get_filename_component(rc ${rc} ABSOLUTE)
    get_filename_component(stem ${rc} NAME_WE)
    get_filename_component(dir ${rc} DIRECTORY)
    file(GLOB inputs CONFIGURE_DEPENDS ${dir}/* ${CMAKE_SOURCE_DIR}/resources/* ${CMAKE_SOURCE_DIR}/resources/pictures/*.*
         ${CMAKE_SOURCE_DIR}/resources/pictures/filters/* ${CMAKE_SOURCE_DIR}/resources/pictures/windows/*)
    set(res ${CMAKE_CURRENT_BINARY_DIR}/${target}_${stem}.res)
    if(ZX_WINDRES)
      add_custom_command(OUTPUT ${res} DEPENDS ${inputs}
        COMMAND ${ZX_WINDRES} -c 65001 -I ${CMAKE_SOURCE_DIR}/resources -I ${dir} -i ${rc} -O res -o ${res}
        WORKING_DIRECTORY ${dir} VERBATIM)
    elseif(ZX_LLVM_RC)
      add_custom_command(OUTPUT ${res} DEPENDS ${inputs}
        COMMAND ${ZX_LLVM_RC} /C 65001 /I ${CMAKE_SOURCE_DIR}/resources /I ${dir} /FO ${res} ${rc}
        WORKING_DIRECTORY ${dir} VERBATIM)
    else()
      message(FATAL_ERROR "no resource compiler: tools/setup.sh installs one")
    endif()
    if(WIN32)
      set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}_${stem}.res.obj)
      add_custom_command(OUTPUT ${object} DEPENDS ${res}
        COMMAND ${ZX_WINDRES} -J res -i ${res} -O coff -o ${object} VERBATIM)
    else()
      set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}_${stem}.res.S)
      # Every .res of a module lands in one section; the linker provides its first and last address.
      file(WRITE ${object}.in
        ".section zx_resources, \"a\", @progbits\n.balign 4\n.incbin \"${res}\"\n.balign 4\n"
        ".section .note.GNU-stack, \"\", @progbits\n")
      add_custom_command(OUTPUT ${object} DEPENDS ${res} ${object}.in
        COMMAND ${CMAKE_COMMAND} -E copy ${object}.in ${object} VERBATIM)
      set_source_files_properties(${object} PROPERTIES OBJECT_DEPENDS ${res})
    endif()
    list(APPEND objects ${object})
  endforeach()
  target_sources(${target} PRIVATE ${objects})
endfunction()
