# The manual pages, made from the headers and installed with them. The overview shows the first example.
set(page_maker "${PROJECT_SOURCE_DIR}/reference/make_manual_pages.py")
set(page_example "${PROJECT_SOURCE_DIR}/examples/first_session.c")
foreach(file IN ITEMS "${page_maker}" "${page_example}" "${PROJECT_SOURCE_DIR}/catalogue/header_reader.py")
    if(NOT EXISTS "${file}")
        file(RELATIVE_PATH file "${PROJECT_SOURCE_DIR}" "${file}")
        mava_tum_is_left_out("manual pages" "${file} is not in this tree")
        return()
    endif()
endforeach()
find_package(Python3 3.9 COMPONENTS Interpreter QUIET)
if(NOT Python3_Interpreter_FOUND)
    mava_tum_is_missing("manual pages" "Python 3.9" python3)
    return()
endif()

set(MAVA_TUM_MANUAL_PAGES "${PROJECT_BINARY_DIR}/man")
# Without a cache of compiled modules, which would be in the source folder.
set(make_manual_pages Python3::Interpreter -B "${page_maker}" "${PROJECT_SOURCE_DIR}" "${MAVA_TUM_MANUAL_PAGES}")
set(page_release ${PROJECT_VERSION} ${MAVA_TUM_RELEASE_DATE})
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/include/*.h" "${PROJECT_SOURCE_DIR}/reference/*.py"
    "${PROJECT_SOURCE_DIR}/catalogue/*.py")
add_custom_command(OUTPUT "${MAVA_TUM_MANUAL_PAGES}/man7/mava_tum.7"
    COMMAND ${make_manual_pages} mava_tum ${page_release}
    DEPENDS ${page_sources} "${page_example}"
    COMMENT "Making the manual pages"
    VERBATIM)
add_custom_target(mava_tum_manual_pages ALL DEPENDS "${MAVA_TUM_MANUAL_PAGES}/man7/mava_tum.7")
install(DIRECTORY "${MAVA_TUM_MANUAL_PAGES}/" DESTINATION "${CMAKE_INSTALL_MANDIR}" COMPONENT development)
mava_tum_is_built("manual pages")
