# Prints at the end of configuring what this build has and what it leaves out.

# mava_tum_is_built(<part>)
function(mava_tum_is_built part)
    set_property(GLOBAL APPEND PROPERTY MAVA_TUM_BUILT_PARTS "${part}")
endfunction()

# mava_tum_is_left_out(<part> <reason>): on purpose, because of an option or the kind of build.
function(mava_tum_is_left_out part reason)
    set_property(GLOBAL APPEND PROPERTY MAVA_TUM_PARTS_LEFT_OUT "${part}: ${reason}")
endfunction()

# mava_tum_is_missing(<part> <what> <Debian package>...): left out because something is not installed.
function(mava_tum_is_missing part what)
    list(JOIN ARGN " " packages)
    set(reason "${what} not found (apt-get install ${packages})")
    if(MAVA_TUM_REQUIRE_ALL)
        message(SEND_ERROR "${part}: ${reason}. Turn MAVA_TUM_REQUIRE_ALL off to build without.")
    endif()
    mava_tum_is_left_out("${part}" "${reason}")
endfunction()

# mava_tum_add_part(<folder> <option>): builds a folder if its option is on and this tree has the folder.
function(mava_tum_add_part folder option)
    if(NOT ${option})
        mava_tum_is_left_out("${folder}/" "${option} is OFF")
    elseif(NOT EXISTS "${PROJECT_SOURCE_DIR}/${folder}/CMakeLists.txt")
        mava_tum_is_left_out("${folder}/" "not in this tree")
    else()
        add_subdirectory(${folder})
    endif()
endfunction()

function(mava_tum_print_summary)
    get_property(built GLOBAL PROPERTY MAVA_TUM_BUILT_PARTS)
    get_property(left_out GLOBAL PROPERTY MAVA_TUM_PARTS_LEFT_OUT)
    list(JOIN built ", " built)
    message(STATUS "${PROJECT_NAME} ${PROJECT_VERSION}, ${CMAKE_BUILD_TYPE}: ${built}")
    foreach(part IN LISTS left_out)
        message(STATUS "Left out: ${part}")
    endforeach()
endfunction()
