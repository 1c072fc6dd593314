# What the checks of the library give to cmake with -C: neither the tools nor the Python module, which need packages of
# their own and take longer to build than the library.
set(MAVA_TUM_BUILD_TOOLS OFF CACHE BOOL "")
set(MAVA_TUM_BUILD_PYTHON OFF CACHE BOOL "")
