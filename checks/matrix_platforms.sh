# shellcheck shell=bash disable=SC2034,SC2154
# Sourced by matrix: what each platform is. A function sets, for its platform,
#   packages      Debian packages beyond those of the ordinary tests
#   configure     arguments of cmake, for googletest and for the library with its tests
#   sanitizers    with what both are instrumented, as the compiler wants it; empty for nothing
#   flags         of the compiler, for both
#   left_out      folders of tests that it does not have, each with the reason
#   targets       what is built; everything if empty. A platform with targets of its own has a run_<platform>
#   not_run       programs that are built and not run, each with the reason
#   runner        what the test programs are started by; empty if they run by themselves
# and exports what the programs read from their environment.
readonly all_platforms=(address undefined memory thread valgrind clang15 clang16 i686 aarch64 s390x)

# Without optimisations that would remove what a sanitizer checks. All others are optimised as for release.
readonly clang=(-DCMAKE_C_COMPILER=clang-19 -DCMAKE_CXX_COMPILER=clang++-19
    "-DCMAKE_C_FLAGS_RELWITHDEBINFO=-O1 -g1" "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -g1")

platform_address() {
    packages=(clang-19 libclang-rt-19-dev libprotobuf-dev protobuf-compiler)
    configure=("${clang[@]}")
    sanitizers=address,leak
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1
}

platform_undefined() {
    packages=(clang-19 libclang-rt-19-dev libprotobuf-dev protobuf-compiler)
    configure=("${clang[@]}")
    sanitizers=undefined,implicit-conversion,local-bounds
    flags=-fsanitize-ignorelist=$PWD/checks/matrix_ignored_conversions.txt
    export UBSAN_OPTIONS=print_stacktrace=1
}

# The C++ runtime library is not instrumented: its output would count as uninitialised, and the first stream of
# googletest would end the program. So other programs run, without streams: they compare the library with the model, and
# read every byte of its output. Templates of the runtime library are compiled into them. For the GoogleTest programs,
# valgrind makes the same check.
platform_memory() {
    packages=(clang-19 libclang-rt-19-dev)
    configure=("${clang[@]}")
    sanitizers=memory
    flags="-D_GLIBCXX_EXTERN_TEMPLATE=0 -fsanitize-memory-track-origins=1"
    targets=(check_exhaustive replay_messages replay_adapters)
    left_out=("tests/interop: it needs the protobuf runtime, which is not instrumented")
}

run_memory() {
    local question length
    for question in messages adapters; do
        run_plain "replay_$question" "$build/fuzz/replay_$question" "fuzz/corpus/$question.packed"
    done
    run_plain capacities "$build/tests/model/check_exhaustive" capacities
    for length in 0 1 2; do
        run_plain "inputs_of_$length" "$build/tests/model/check_exhaustive" inputs "$length"
    done
    remark="instead of the GoogleTest programs, which valgrind looks at: $(tail -qn 1 "$results"/*.log | paste -sd';')"
}

platform_thread() {
    packages=(clang-19 libclang-rt-19-dev libprotobuf-dev protobuf-compiler)
    configure=("${clang[@]}")
    sanitizers=thread
    export TSAN_OPTIONS=second_deadlock_stack=1
}

platform_valgrind() {
    packages=(valgrind libprotobuf-dev protobuf-compiler)
    runner=(valgrind --error-exitcode=99 --leak-check=full "--errors-for-leak-kinds=definite,indirect"
        --child-silent-after-fork=yes --log-file="$results/valgrind.%p.log")
}

# Older compilers of Debian 12. The other platforms run the whole suite, with clang 19 and g++ 12.
platform_clang15() {
    core_programs clang-15 clang++-15
}

platform_clang16() {
    core_programs clang-16 clang++-16
}

core_programs() {
    packages=("$1")
    configure=(-DCMAKE_C_COMPILER="$1" -DCMAKE_CXX_COMPILER="$2")
    targets=(test_codec test_messages test_leniency test_nal test_sweeps)
    remark="only these programs: ${targets[*]}"
}

run_clang15() {
    run_programs
}

run_clang16() {
    run_programs
}

platform_i686() {
    packages=(g++-i686-linux-gnu)
    local model="the model's tables hold the offsets of machines with 64-bit pointers"
    configure=(--toolchain "$PWD/cmake/debian_cross.cmake" -DDEBIAN_TRIPLET=i686-linux-gnu)
    left_out=("tests/interop: there is no protobuf runtime among the cross compiler's packages" "tests/injection: $model"
        "tests/amplification: $model" "tests/docs: its pictures show records with 64-bit pointers")
    not_run=("test_model: $model" "test_adapter_agreement: likewise" "replay_messages: likewise"
        "replay_adapters: likewise")
}

platform_aarch64() {
    emulated aarch64
    left_out+=("tests/stack: a thread has 128 KiB of it there at least")
}

platform_s390x() {
    emulated s390x
}

emulated() {
    packages=("g++-$1-linux-gnu" qemu-user)
    configure=(--toolchain "$PWD/cmake/debian_cross.cmake" -DDEBIAN_TRIPLET="$1-linux-gnu")
    runner=("qemu-$1" -L "/usr/$1-linux-gnu")
    left_out=("tests/interop: there is no protobuf runtime among the cross compiler's packages"
        "tests/examples: their tests start other programs, and the emulator would not start with these")
}
