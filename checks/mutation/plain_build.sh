# shellcheck shell=bash disable=SC2034,SC2154
# Sourced by mutation_score and planted_bugs: copies of the last commit, and the ordinary build of one. They set $root,
# the project, and $work, the folder of the copies.
require_packages cmake ninja-build python3 libgtest-dev pkg-config protobuf-compiler libprotobuf-dev clang-19 lld \
    python3-clang-19

readonly targets=(test_codec test_messages test_leniency test_nal test_model test_sweeps replay_messages replay_adapters
    test_adapter_agreement test_interop)
# The bindings of libclang need Debian's own Python, not another one in the path.
readonly python=(/usr/bin/python3 -B)

# prepare_copy <name>: the last commit, in a copy. Unchanged files keep their time.
prepare_copy() {
    [ -d "$work/$1" ] || git clone -q --no-checkout "$root" "$work/$1"
    git -C "$work/$1" fetch -q "$root" HEAD
    git -C "$work/$1" checkout -q --force --detach FETCH_HEAD
}

# The test programs of the copy "plain", in "build", optimised and compiled in groups. Long tests take one step in 31:
# what they find is also found by all steps, and a mutant that nothing finds needs seconds instead of minutes. ccache is
# used if it is there.
build_plain() {
    prepare_copy plain
    local launcher=()
    if command -v ccache >/dev/null; then
        launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    cmake -C "$root/checks/library_only.cmake" -G Ninja -S "$work/plain" -B "$work/build" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=12 \
        -DMAVA_TUM_WORK_DIVISOR=31 "${launcher[@]}" >"$work/build.log"
    cmake --build "$work/build" --target "${targets[@]}" >>"$work/build.log" ||
        { tail -20 "$work/build.log" && exit 2; }
}
