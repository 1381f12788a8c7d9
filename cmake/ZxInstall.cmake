# What a host installs: headers, the library with the import libraries of both kinds of linker, a CMake
# package and the documents. The example host is a component of its own.
set(zx_package lib/cmake/ZxAnalysisDialogs)
if(WIN32)
  # The system brings the platform's names.
  set(zx_other_headers PATTERN headless EXCLUDE)
endif()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/include/ DESTINATION include COMPONENT ZxAnalysisDialogs
        FILES_MATCHING PATTERN "*.h" ${zx_other_headers})
install(FILES ${CMAKE_SOURCE_DIR}/docs/hosting.md ${CMAKE_SOURCE_DIR}/docs/automation.md
        DESTINATION share/doc/zxanalysisdialogs COMPONENT ZxAnalysisDialogs)
install(FILES ${CMAKE_SOURCE_DIR}/docs/fit-functions.md ${CMAKE_SOURCE_DIR}/docs/seeds.md
              ${CMAKE_SOURCE_DIR}/docs/filters.md ${CMAKE_SOURCE_DIR}/docs/spectral-windows.md
        DESTINATION share/doc/zxanalysisdialogs COMPONENT ZxAnalysisDialogs)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/pictures/equations
        DESTINATION share/doc/zxanalysisdialogs/pictures COMPONENT ZxAnalysisDialogs)
# The companions are found beside the module.
install(TARGETS CURVEFIT
        RUNTIME DESTINATION bin COMPONENT ZxAnalysisDialogs
        LIBRARY DESTINATION lib COMPONENT ZxAnalysisDialogs
        ARCHIVE DESTINATION lib COMPONENT ZxAnalysisDialogs)
# The functions of this one are asked for by number while a program runs: no import library.
install(TARGETS FILTER
        RUNTIME DESTINATION bin COMPONENT ZxAnalysisDialogs
        LIBRARY DESTINATION lib COMPONENT ZxAnalysisDialogs)
install(TARGETS ZXANALYSISDIALOGS
        RUNTIME DESTINATION bin COMPONENT ZxAnalysisDialogs
        LIBRARY DESTINATION lib COMPONENT ZxAnalysisDialogs
        ARCHIVE DESTINATION lib COMPONENT ZxAnalysisDialogs)
if(WIN32)
  install(FILES ${ZX_VENDOR_IMPORT_LIBRARY} ${ZX_CURVEFIT_IMPORT_LIBRARY} DESTINATION lib COMPONENT ZxAnalysisDialogs)
else()
  # The window system in memory, which the library stands on and which a host may drive it by.
  install(TARGETS zx_headless LIBRARY DESTINATION lib COMPONENT ZxAnalysisDialogs)
  set_target_properties(zxhost PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
endif()
install(TARGETS zxhost RUNTIME DESTINATION bin COMPONENT ZxHost)

include(CMakePackageConfigHelpers)
set(ZX_POINTER_SIZE ${CMAKE_SIZEOF_VOID_P})
configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/ZxAnalysisDialogsConfig.cmake.in
  ${CMAKE_BINARY_DIR}/ZxAnalysisDialogsConfig.cmake INSTALL_DESTINATION ${zx_package}
  NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZxAnalysisDialogsConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ZxAnalysisDialogsConfig.cmake
              ${CMAKE_BINARY_DIR}/ZxAnalysisDialogsConfigVersion.cmake
        DESTINATION ${zx_package} COMPONENT ZxAnalysisDialogs)
