# Sourced by the commands of the bench, from the project's root.
#   build_for_bench <target>
# Installs missing packages, builds the target for release, and sets `build` and `driver` to the folders of the programs
# and scripts. MAVA_TUM_BENCH_BUILD names another build folder than build/bench.

build_for_bench() {
    require_packages cmake g++ ninja-build python3 libprotobuf-dev protobuf-compiler libprotozero-dev \
        nanopb libnanopb-dev libprotobuf-c-dev protobuf-c-compiler
    build=${MAVA_TUM_BENCH_BUILD:-$PWD/build/bench}
    driver=$PWD/bench/driver
    cmake --preset bench -B "$build" >&2
    cmake --build "$build" --parallel "$(nproc)" --target "$1" >&2
}
