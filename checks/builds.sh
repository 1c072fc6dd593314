# shellcheck shell=bash
# Sourced by the checks that build the library for themselves, after scripts/packages.sh and logged.sh.

# The library as it is released, with g++'s call graph and assembly beside each object: they do not change it, as
# `hardening` compares with a build without them. A compiler cache would not keep them, and g++ cannot make them with a
# precompiled header.
# build_release <folder> <target>...: its output is in <folder>.log.
build_release() {
    local folder=$1
    shift
    mkdir -p "$folder"
    cmake -C checks/library_only.cmake -G Ninja -S . -B "$folder" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_COMPILER="g++;-fcallgraph-info=su;-save-temps=obj" -DCMAKE_CXX_COMPILER_LAUNCHER= \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DMAVA_TUM_BUILD_EXAMPLES=OFF -DMAVA_TUM_BUILD_BENCH=ON -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$folder.log"
    logged "$folder.log" timeout 600 cmake --build "$folder" --parallel "$(nproc)" --target "$@"
}

# With the instrumentation of the fuzzers. build_for_fuzzing <build folder> <target>...
build_for_fuzzing() {
    require_packages clang-19 libclang-rt-19-dev cmake ninja-build python3 libgtest-dev pkg-config protobuf-compiler \
        libprotobuf-dev
    # Debug: fortified calls would hide the sanitizers' own interceptors.
    cmake -C checks/library_only.cmake -G Ninja -S . -B "$1" \
        -DCMAKE_C_COMPILER=clang-19 -DCMAKE_CXX_COMPILER=clang++-19 \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O2 -gline-tables-only" \
        -DMAVA_TUM_FUZZ=ON -DMAVA_TUM_BUILD_EXAMPLES=OFF >"$1.log"
    logged "$1.log" cmake --build "$1" --target "${@:2}"
}
