# For cmake -C in the checks of the library: without tools and Python module, which need more packages and take longer
# to build than the library.
set(MAVA_TUM_BUILD_TOOLS OFF CACHE BOOL "")
set(MAVA_TUM_BUILD_PYTHON OFF CACHE BOOL "")
