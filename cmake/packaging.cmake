# Rules for the installed tree as a whole. Included last, because they need the list of components.

# Without this, `cmake --install . --component <name>` would silently do nothing for a component that does not exist.
# CMake runs this code for every name.
get_cmake_property(components COMPONENTS)
list(REMOVE_ITEM components Unspecified)
list(JOIN components ", " components_text)
install(CODE "
    set(components \"${components}\")
    list(FIND components \"\${CMAKE_INSTALL_COMPONENT}\" place)
    if(CMAKE_INSTALL_COMPONENT AND place EQUAL -1)
        message(FATAL_ERROR \"no component '\${CMAKE_INSTALL_COMPONENT}'; this build has ${components_text}\")
    endif()"
    ALL_COMPONENTS)

add_custom_target(uninstall
    COMMAND "${CMAKE_COMMAND}" "-DBUILD=${PROJECT_BINARY_DIR}" -P "${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake"
    COMMENT "Removing the installed files"
    VERBATIM)

# `cpack` makes mava_tum-<version>-<system>-<processor>.tar.gz: the installed tree, all components, below one folder.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME mava_tum)
set(CPACK_PACKAGE_FILE_NAME "mava_tum-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES OFF)
set(CPACK_VERBATIM_VARIABLES ON)
# A source tarball is what `git archive` makes.
set(CPACK_SOURCE_GENERATOR "")
include(CPack)
