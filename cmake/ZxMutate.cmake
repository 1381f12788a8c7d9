# A build for a mutation run (tools/mutate): ZX_MUTATED names a folder that mirrors src/ and holds changed
# copies of some folders' files. Each copy stands in for its original, headers included.
set(ZX_MUTATED "" CACHE PATH "Changed copies of source folders, for tools/mutate.sh")
if(ZX_MUTATED)
  # No warnings, and what only braces forbid, since every constant is an expression now.
  target_compile_options(zx_compile INTERFACE -w -Wno-error -Wno-narrowing -fpermissive
    $<$<COMPILE_LANGUAGE:CXX>:-include ${CMAKE_SOURCE_DIR}/tools/mutate/Mutation.h>)
  target_include_directories(zx_compile BEFORE INTERFACE ${ZX_MUTATED} ${CMAKE_SOURCE_DIR}/tools/mutate)
  add_library(zx_mutation OBJECT ${CMAKE_SOURCE_DIR}/tools/mutate/Mutation.cpp)
endif()

# Replaces the sources of a folder by their changed copies, where there are some.
function(zx_use_mutated folder variable)
  set(chosen)
  foreach(source IN LISTS ${variable})
    get_filename_component(name ${source} NAME)
    if(ZX_MUTATED AND EXISTS ${ZX_MUTATED}/${folder}/${name})
      set(source ${ZX_MUTATED}/${folder}/${name})
    endif()
    list(APPEND chosen ${source})
  endforeach()
  set(${variable} ${chosen} PARENT_SCOPE)
endfunction()

# Gives a test program the switch and the recorder.
function(zx_add_mutation_switch target)
  if(ZX_MUTATED)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:zx_mutation> ${CMAKE_SOURCE_DIR}/tools/mutate/MutationReach.cpp)
  endif()
endfunction()
