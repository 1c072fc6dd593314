# shellcheck shell=bash
# Sourced by the checks of the library as it is released, which share one build of it.

# build_release <folder> <target>...: its output is in <folder>.log.
build_release() {
    local folder=$1
    shift
    mkdir -p "$folder"
    cmake -C checks/library_only.cmake -G Ninja -S . -B "$folder" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_COMPILER=g++ -DMAVA_TUM_BUILD_EXAMPLES=OFF -DMAVA_TUM_BUILD_BENCH=ON \
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$folder.log"
    logged "$folder.log" timeout 600 cmake --build "$folder" --parallel "$(nproc)" --target "$@"
}
