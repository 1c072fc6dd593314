# Removes the files that the last installation of each component wrote, also below DESTDIR. Folders stay.
#   cmake -DBUILD=<build folder> -P uninstall.cmake
file(GLOB manifests "${BUILD}/install_manifest*.txt")
if(NOT manifests)
    message(FATAL_ERROR "Nothing to uninstall: ${BUILD} has no install_manifest.txt")
endif()
foreach(manifest IN LISTS manifests)
    file(STRINGS "${manifest}" files)
    foreach(file IN LISTS files)
        message(STATUS "Uninstalling: $ENV{DESTDIR}${file}")
        file(REMOVE "$ENV{DESTDIR}${file}")
    endforeach()
    file(REMOVE "${manifest}")
endforeach()
