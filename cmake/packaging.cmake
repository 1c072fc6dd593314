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
