// What a name given with -o stands for.
#pragma once

#include <string>

namespace mava_tum_cli
{

enum class place_kind {
    descriptor, // one that is open already: /dev/stdout, /dev/fd/3
    special,    // a device or a pipe, to be written to as it is
    file,       // a regular file, or one that is still to be made
    refused,
};

struct output_place {
    place_kind kind;
    int number = -1;  // descriptor: which one; refused: the errno
    std::string path; // special, file: behind all symbolic links
};

output_place place_of(const std::string &path);

} // namespace mava_tum_cli
