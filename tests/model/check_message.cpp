#include "model/check_message.h"

#include "model/check_encode.h"
#include "model/model.h"
#include "model/record_changes.h"
#include "model/record_compare.h"
#include "support/guarded_buffer.h"

#include <cstring>

namespace mava_tum_model
{

namespace
{

// Large enough for every record of the library, and aligned for any member.
constexpr std::size_t largest_record = 656;

enum place : std::size_t { place_decoded, place_copy, place_source, place_count };

// The memory of the library's records: they end directly before an inaccessible page.
uint8_t *before_a_page(place which, const message &of)
{
    using mava_tum_test::page_end_buffer;
    static thread_local page_end_buffer pages[place_count] = {
        page_end_buffer(largest_record), page_end_buffer(largest_record), page_end_buffer(largest_record)};
    return pages[which].data() + largest_record - of.record_bytes;
}

// One side of a comparison: a record and its blocks.
struct side {
    side(uint8_t *at, const failure_plan &plan, block_memory memory) : record(at), log(plan, memory) {}

    uint8_t *record;
    block_log log;
};

// The library's record and the model's, made by the same operation.
struct both_sides {
    both_sides(place which, const message &of, const failure_plan &plan)
        : library(before_a_page(which, of), plan, block_memory::watched), model(own, plan, block_memory::plain)
    {
    }
    both_sides(const both_sides &) = delete;
    both_sides &operator=(const both_sides &) = delete;

    void fill(const message &of, random_source &random)
    {
        std::memset(library.record, 0, of.record_bytes);
        if (random.one_in(2))
            fill_members(of, library.record);
        std::memcpy(model.record, library.record, of.record_bytes);
    }

    std::string compare_results(const message &of, int32_t expected, int32_t actual)
    {
        if (expected != actual)
            return "result: expected " + std::to_string(expected) + ", actual " + std::to_string(actual);
        const std::string calls = block_log::compare_allocations(library.log, model.log);
        return calls.empty() ? compare_contents(of) : calls;
    }

    std::string compare_contents(const message &of)
    {
        return compare_records(of, {library.record, model.record}, library.log, model.log);
    }

    std::string free(const message &of, const library_message &functions, uint32_t flags)
    {
        const memory_sink library_sink = library.log.sink();
        functions.free(library.record, library_sink.release, library_sink.context, flags);
        model_free(of, model.record, model.log.sink(), flags);
        const std::string calls = block_log::compare_releases(library.log, model.log);
        return calls.empty() ? compare_contents(of) : calls;
    }

    alignas(8) uint8_t own[largest_record];
    side library;
    side model;
};

std::string in_hex(std::span<const uint8_t> bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (uint8_t byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

// The operation of a short check between the decode and the free; it may be none.
enum part : uint64_t { part_encode, part_duplicate, part_changed, part_none, part_count };

class message_check
{
public:
    explicit message_check(const message_case &checked, const message &of)
        : checked_(checked), of_(of), library_(library_message_at(checked.message_index)), random_(checked.seed),
          decoded_(place_decoded, of, checked.decode_plan)
    {
    }

    std::string run();
    std::string decode();

private:
    bool wants(uint64_t part) const
    {
        return checked_.every_part || part_ == part;
    }

    std::string duplicate_and_encode();
    std::string duplicate(const side &source);
    std::string encode(const uint8_t *record, const char *what);
    std::string free_twice(both_sides &records, uint32_t flags, const char *what);
    std::string report(const char *operation, const std::string &found) const;
    failure_plan some_plan();

    const message_case &checked_;
    const message &of_;
    const library_message &library_;
    random_source random_;
    both_sides decoded_;
    uint64_t part_ = part_none;
};

std::string message_check::report(const char *operation, const std::string &found) const
{
    if (found.empty())
        return {};
    return std::string(of_.name) + " " + operation + ": " + found + "\n  wire " + in_hex(checked_.wire) + "\n  case " +
           in_hex(case_bytes(checked_));
}

failure_plan message_check::some_plan()
{
    const uint32_t call = static_cast<uint32_t>(1 + random_.below(12));
    switch (random_.below(8)) {
    case 0:
        return {failing::once, call};
    case 1:
        return {failing::from_then, call};
    case 2:
        return {failing::no_allocator, 0};
    default:
        return {};
    }
}

std::string message_check::decode()
{
    decoded_.fill(of_, random_);
    const memory_source source = decoded_.library.log.source();
    const int32_t actual = library_.decode(decoded_.library.record, checked_.wire.data(), checked_.wire.size(),
        source.allocate, source.context, checked_.flags);
    const int32_t expected = model_decode(of_, decoded_.model.record, checked_.wire.data(), checked_.wire.size(),
        decoded_.model.log.source(), checked_.flags);
    return report("decode", decoded_.compare_results(of_, expected, actual));
}

std::string message_check::encode(const uint8_t *record, const char *what)
{
    return report(what, check_encodes(of_, library_, record, random_, checked_.every_part ? 3 : 1));
}

// The second call releases nothing, unless the first one left the bytes fields.
std::string message_check::free_twice(both_sides &records, uint32_t flags, const char *what)
{
    std::string found = records.free(of_, library_, flags);
    if (found.empty() && random_.one_in(2))
        found = records.free(of_, library_, flags);
    return report(what, found);
}

std::string message_check::duplicate(const side &source)
{
    both_sides copies(place_copy, of_, some_plan());
    copies.fill(of_, random_);
    const memory_source memory = copies.library.log.source();
    const int32_t actual = library_.duplicate(copies.library.record, source.record, memory.allocate, memory.context);
    const int32_t expected = model_duplicate(of_, copies.model.record, source.record, copies.model.log.source());
    const std::string found = report("duplicate", copies.compare_results(of_, expected, actual));
    return found.empty() ? free_twice(copies, static_cast<uint32_t>(random_.one_in(4)), "free of a duplicate") : found;
}

std::string message_check::duplicate_and_encode()
{
    // A copy that may be changed without losing a block. The model makes it from the compared record.
    side source(before_a_page(place_source, of_), {}, block_memory::watched);
    std::memset(source.record, 0, of_.record_bytes);
    model_duplicate(of_, source.record, decoded_.library.record, source.log.source());
    if (random_.one_in(2))
        change_record(of_, source.record, random_);
    std::string found = wants(part_duplicate) ? duplicate(source) : std::string();
    if (!found.empty() || !wants(part_changed))
        return found;
    if (random_.one_in(8))
        claim_huge_length(of_, source.record, random_);
    return encode(source.record, "encode of a changed record");
}

std::string message_check::run()
{
    std::string found = decode();
    if (!checked_.every_part)
        part_ = random_.below(part_count);
    if (found.empty() && wants(part_encode))
        found = encode(decoded_.library.record, "encode of the decoded record");
    if (found.empty() && (wants(part_duplicate) || wants(part_changed)))
        found = duplicate_and_encode();
    if (found.empty())
        found = free_twice(decoded_, random_.one_in(8) ? ~checked_.flags : checked_.flags, "free");
    return found;
}

} // namespace

bool read_case(std::span<const uint8_t> bytes, message_case &read)
{
    if (bytes.size() < case_header_bytes)
        return false;
    read.message_index = bytes[0] % all_messages().size();
    read.flags = bytes[1];
    read.decode_plan = {static_cast<failing>(bytes[2] % 5), bytes[3]};
    // Little-endian on every machine, so that recorded inputs have the same meaning everywhere.
    read.seed = bytes[4] | uint32_t{bytes[5]} << 8 | uint32_t{bytes[6]} << 16 | uint32_t{bytes[7]} << 24;
    read.wire = bytes.subspan(case_header_bytes);
    return true;
}

wire_bytes case_bytes(const message_case &from)
{
    wire_bytes bytes = {static_cast<uint8_t>(from.message_index), static_cast<uint8_t>(from.flags),
        static_cast<uint8_t>(from.decode_plan.when), static_cast<uint8_t>(from.decode_plan.at)};
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<uint8_t>(from.seed >> shift));
    bytes.insert(bytes.end(), from.wire.begin(), from.wire.end());
    return bytes;
}

std::string check_message(const message_case &checked)
{
    return message_check(checked, *all_messages()[checked.message_index]).run();
}

std::string check_decode(const message_case &checked, const message &model_of)
{
    return message_check(checked, model_of).decode();
}

} // namespace mava_tum_model
