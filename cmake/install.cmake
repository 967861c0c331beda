# Installation: headers, both libraries, the CMake package "veks" and veks.pc.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/veks)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS veks veks_static EXPORT veksTargets)
install(EXPORT veksTargets NAMESPACE veks:: DESTINATION ${package_dir})

write_basic_package_version_file(${PROJECT_BINARY_DIR}/veksConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/veksConfig.cmake
  ${PROJECT_BINARY_DIR}/veksConfigVersion.cmake
  DESTINATION ${package_dir})

# Paths from the place of veks.pc on, so that an installation can be moved.
set(pc_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${pc_dir} OUTPUT_VARIABLE pc_libdir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${pc_dir}
  OUTPUT_VARIABLE pc_includedir)
configure_file(${PROJECT_SOURCE_DIR}/cmake/veks.pc.in ${PROJECT_BINARY_DIR}/veks.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/veks.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
