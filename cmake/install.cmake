# Rules of `cmake --install`. Two components: `runtime` to run a program, `development` to build one. The files use
# relative paths, so the installed tree can be moved.
include(CMakePackageConfigHelpers)

# For the loader, and for users without the sources.
if(BUILD_SHARED_LIBS)
    install(TARGETS mava_tum_shared
        EXPORT mava_tum-targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
endif()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT runtime)

# For the compiler.
install(TARGETS mava_tum_static
    EXPORT mava_tum-targets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")

# For find_package(mava_tum CONFIG).
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/mava_tum")
install(EXPORT mava_tum-targets NAMESPACE mava_tum:: DESTINATION "${package_folder}" COMPONENT development)
configure_package_config_file(cmake/mava_tum-config.cmake.in "${PROJECT_BINARY_DIR}/mava_tum-config.cmake"
    INSTALL_DESTINATION "${package_folder}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/mava_tum-config-version.cmake" COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/mava_tum-config.cmake"
    "${PROJECT_BINARY_DIR}/mava_tum-config-version.cmake"
    DESTINATION "${package_folder}" COMPONENT development)

# For pkg-config. Relative to the folder of mava_tum.pc, unless a folder is outside the prefix.
set(MAVA_TUM_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    file(RELATIVE_PATH way_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    set(MAVA_TUM_PC_PREFIX "\${pcfiledir}/${way_to_prefix}")
    string(REGEX REPLACE "/$" "" MAVA_TUM_PC_PREFIX "${MAVA_TUM_PC_PREFIX}")
endif()
foreach(folder IN ITEMS LIBDIR INCLUDEDIR)
    set(MAVA_TUM_PC_${folder} "${CMAKE_INSTALL_${folder}}")
    cmake_path(ABSOLUTE_PATH MAVA_TUM_PC_${folder} BASE_DIRECTORY "\${prefix}")
endforeach()
configure_file(cmake/mava_tum.pc.in "${PROJECT_BINARY_DIR}/mava_tum.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/mava_tum.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
