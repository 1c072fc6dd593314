# The manual pages, made from the headers and installed with them. Where there is no Python, there are none.
find_package(Python3 3.9 COMPONENTS Interpreter QUIET)
if(NOT Python3_Interpreter_FOUND)
    message(STATUS "Python 3 not found; no manual pages are made")
    return()
endif()

set(MAVA_TUM_MANUAL_PAGES "${PROJECT_BINARY_DIR}/man")
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/include/*.h" "${PROJECT_SOURCE_DIR}/tools/reference/*.py"
    "${PROJECT_SOURCE_DIR}/catalogue/*.py")
list(APPEND page_sources "${PROJECT_SOURCE_DIR}/debian/changelog" "${PROJECT_SOURCE_DIR}/examples/first_session.c")
# Without its cache of compiled modules, which would lie in the source folder.
add_custom_command(OUTPUT "${MAVA_TUM_MANUAL_PAGES}/man7/mava_tum.7"
    COMMAND Python3::Interpreter -B "${PROJECT_SOURCE_DIR}/tools/reference/make_manual_pages.py"
        "${PROJECT_SOURCE_DIR}" "${MAVA_TUM_MANUAL_PAGES}"
    DEPENDS ${page_sources}
    COMMENT "Making the manual pages"
    VERBATIM)
add_custom_target(mava_tum_manual_pages ALL DEPENDS "${MAVA_TUM_MANUAL_PAGES}/man7/mava_tum.7")
install(DIRECTORY "${MAVA_TUM_MANUAL_PAGES}/" DESTINATION "${CMAKE_INSTALL_MANDIR}" COMPONENT development)
