# shellcheck shell=bash
# Sourced by fuzz and fuzz_corpus, after scripts/packages.sh and logged.sh.

# build_for_fuzzing <build folder> <target>...
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
