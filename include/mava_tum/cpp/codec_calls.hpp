// Calls the codec's functions of any message: some of them take an allocator or flags and some do not.
#ifndef MAVA_TUM_CPP_CODEC_CALLS_HPP
#define MAVA_TUM_CPP_CODEC_CALLS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/result.hpp"
#include "mava_tum/cpp/span.hpp"

#include <tuple>
#include <utility>

namespace mava_tum::cpp
{

// What the layer knows of a message, by its codec record. Specialised beside each message:
//     owner                  the class that owns a record
//     view, editor           the classes that read and change a record that lies somewhere else
//     name                   of the message
//     owns_memory            whether a record ever owns a block
//     most_segments          in gather output; 0 if its segments are not the message, or if nothing is gained
//     decode, encode, duplicate   the codec's functions
template <class Record>
struct codec_of;

template <class Result, class... Taken, std::size_t... Index, class Arguments>
Result call_with(Result (*function)(Taken...), std::index_sequence<Index...>, const Arguments &arguments)
{
    return function(std::get<Index>(arguments)...);
}

// Calls a function of the codec with as many of the arguments as it takes. The functions of one kind take the same
// parameters in the same order; those of a message that has no use for the last ones end before them.
template <class Result, class... Taken, class... Given>
Result call_codec(Result (*function)(Taken...), const Given &...given)
{
    static_assert(sizeof...(Taken) <= sizeof...(Given), "an argument is missing");
    return call_with(function, std::index_sequence_for<Taken...>(), std::tie(given...));
}

} // namespace mava_tum::cpp

#endif
