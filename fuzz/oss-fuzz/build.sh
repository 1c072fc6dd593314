#!/bin/bash -eu
# Builds the fuzz targets for a fuzzing service: with the compilers, flags, engine and folder that it gives.
#   CC, CXX, CFLAGS, CXXFLAGS   instrumentation is in the flags
#   LIB_FUZZING_ENGINE          what a target is linked with, such as -fsanitize=fuzzer
#   OUT                         where the targets and their first inputs go
# Installs nothing and needs CMake, make and Python 3. Try it here, with the engine of clang or of AFL++:
#   OUT=/tmp/out CC=clang-19 CXX=clang++-19 LIB_FUZZING_ENGINE=-fsanitize=fuzzer \
#       CXXFLAGS="-O1 -fsanitize=address,fuzzer-no-link" fuzz/oss-fuzz/build.sh
#   OUT=/tmp/out CC=afl-clang-fast CXX=afl-clang-fast++ LIB_FUZZING_ENGINE=-fsanitize=fuzzer fuzz/oss-fuzz/build.sh
# WORK names the folder of the build: build/oss-fuzz if not given.
cd "$(dirname "$0")/../.."
work=${WORK:-$PWD/build/oss-fuzz}
mkdir -p "$OUT" "$work"

# The tables that targets and library share, and the library, without anything that only its tests need.
cmake -S . -B "$work/library" -DCMAKE_BUILD_TYPE=None -DBUILD_TESTING=OFF -DBUILD_SHARED_LIBS=OFF \
    -DMAVA_TUM_BUILD_EXAMPLES=OFF -DMAVA_TUM_BUILD_PYTHON=OFF -DMAVA_TUM_BUILD_TOOLS=OFF -DMAVA_TUM_INSTALL=OFF
cmake --build "$work/library" --parallel "$(nproc)" --target mava_tum_static
python3 -B catalogue/write_catalogue.py include "$work"

# The model has programs of its own, which are no part of a target.
model=()
for source in tests/model/*.cpp; do
    case $source in
    */test_*.cpp | */*_main.cpp) ;;
    *) model+=("$source") ;;
    esac
done
includes=(-Iinclude -Isrc -Itests -Ifuzz -Icatalogue "-I$work")
# Word splitting is meant: the flags are a list.
# shellcheck disable=SC2086,SC2206
flags=(-std=c++20 ${CXXFLAGS:-} "${includes[@]}")

objects=()
for source in "${model[@]}" catalogue/catalogue_calls.cpp fuzz/check_adapter.cpp fuzz/engine_main.cpp \
    tests/support/heap_count.cpp fuzz/fuzz_{messages,adapters,streams}.cpp; do
    object=$work/$(basename "$source" .cpp).o
    "$CXX" "${flags[@]}" -c "$source" -o "$object"
    case $source in fuzz/fuzz_*) ;; *) objects+=("$object") ;; esac
done

# heap_count.cpp counts through these names, as mava_tum_count_heap_calls in tests/CMakeLists.txt has it.
wrapped=-Wl,--wrap=malloc,--wrap=calloc,--wrap=realloc,--wrap=_Znwm,--wrap=_ZnwmSt11align_val_t
for target in messages adapters streams; do
    # shellcheck disable=SC2086
    "$CXX" "${flags[@]}" $wrapped "$work/fuzz_$target.o" "${objects[@]}" \
        "$(find "$work/library" -name 'libmava_tum.a')" $LIB_FUZZING_ENGINE -o "$OUT/fuzz_$target"
done

# The recorded inputs, each a file of its own: in packed files a length of 4 bytes, big-endian, precedes each.
for target in messages adapters; do
    [ ! -f "fuzz/corpus/$target.packed" ] || python3 - "fuzz/corpus/$target.packed" "$OUT/fuzz_${target}_seed_corpus.zip" <<'END'
import sys, zipfile
packed = open(sys.argv[1], "rb").read()
with zipfile.ZipFile(sys.argv[2], "w") as corpus:
    at = 0
    while at < len(packed):
        length = int.from_bytes(packed[at:at + 4], "big")
        corpus.writestr(f"{at:08}", packed[at + 4:at + 4 + length])
        at += 4 + length
END
done
