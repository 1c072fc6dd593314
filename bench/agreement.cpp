#include "agreement.h"

#include "calloc_callbacks.h"

#include <algorithm>
#include <cstring>

namespace bench
{
namespace
{

using bytes = std::vector<uint8_t>;

std::string compare(const bytes &wanted, const bytes &got, const std::string &what)
{
    if (wanted == got)
        return {};
    const auto [position, ignored] = std::mismatch(wanted.begin(), wanted.end(), got.begin(), got.end());
    return what + " gives " + std::to_string(got.size()) + " bytes where protobuf gives " +
           std::to_string(wanted.size()) + "; the first difference is at byte " +
           std::to_string(position - wanted.begin());
}

// An encoder's output, or as much of it as fits: `compare` tells the rest.
template <class Encode>
bytes output_of(Encode encode)
{
    bytes buffer(buffer_bytes);
    buffer.resize(std::min<uint64_t>(encode(buffer.data()), buffer_bytes));
    return buffer;
}

template <class Kind>
bytes encoded(const typename Kind::record &record)
{
    return output_of([&](uint8_t *buffer) { return Kind::encode(&record, buffer, buffer_bytes, nullptr, nullptr, 0); });
}

template <class Kind>
bytes encoded_by_adapter(const typename Kind::application &application)
{
    return output_of([&](uint8_t *buffer) { return Kind::encode_adapter(&application, buffer, buffer_bytes); });
}

template <class Kind>
std::string check_codec(const workload<Kind> &work)
{
    if (work.record_result != MAVA_TUM_OK)
        return "decode returns " + std::to_string(work.record_result);
    return compare(work.wire, encoded<Kind>(work.record), "encode of the decoded record");
}

template <class Kind>
std::string check_duplicate(const workload<Kind> &work)
{
    typename Kind::record copy = {};
    const int32_t result = Kind::duplicate(&copy, &work.record, allocate_zeroed, nullptr);
    const bytes output = encoded<Kind>(copy);
    Kind::free(&copy, release_allocated, nullptr, 0);
    if (result != MAVA_TUM_OK)
        return "duplicate returns " + std::to_string(result);
    return compare(work.wire, output, "encode of the duplicate");
}

template <class Kind>
std::string check_encode_adapter(const workload<Kind> &work)
{
    return compare(work.wire, encoded_by_adapter<Kind>(*work.application), "the encode adapter");
}

// Application records are compared byte by byte: both sides start from zeros and write members only.
template <class Kind>
std::string check_decode_adapter(const workload<Kind> &work)
{
    auto received = std::make_unique<typename Kind::application>();
    Kind::decode_adapter(work.wire.data(), static_cast<uint32_t>(work.wire.size()), received.get());
    if (std::memcmp(received.get(), work.application.get(), sizeof *received) != 0)
        return "the decode adapter does not bring the application record back";
    return {};
}

template <class Kind>
std::string check_peer(const workload<Kind> &work)
{
    typename Kind::message message;
    if (!message.ParseFromArray(work.wire.data(), static_cast<int>(work.wire.size())))
        return "protobuf does not parse the message";
    auto received = std::make_unique<typename Kind::application>();
    read_peer(message, *received);
    if (std::memcmp(received.get(), work.application.get(), sizeof *received) != 0)
        return "protobuf does not bring the application record back";
    return {};
}

template <class Kind>
std::string check_all(const workload<Kind> &work)
{
    for (auto check : {check_peer<Kind>, check_codec<Kind>, check_duplicate<Kind>, check_encode_adapter<Kind>,
             check_decode_adapter<Kind>}) {
        const std::string disagreement = check(work);
        if (!disagreement.empty())
            return work.name + ": " + disagreement;
    }
    return {};
}

} // namespace

std::string first_disagreement(const workload<session_kind> &work)
{
    return check_all(work);
}

std::string first_disagreement(const workload<route_kind> &work)
{
    return check_all(work);
}

} // namespace bench
