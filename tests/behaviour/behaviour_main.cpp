// Records what the library does: behaviour [--function NAME --dump] <fuzz/corpus>
//
// Runs the inputs of both corpora, the seeds of each message, and mutated and random wires from fixed seeds through all
// 201 exported functions, and prints one row for each function and group of arguments: name, group, calls, and a hash
// of all effects of the calls: results, records, blocks, bytes, segments. Two builds with the same rows have the same
// behaviour. scripts/check/behaviour compares the rows with recorded.tsv. It tests the shared library that the program
// loads: that of its build, or another one with LD_LIBRARY_PATH.
//
// With --dump, prints each call of one function instead: group, a number that distinguishes calls (flags, failing call
// or capacity), input, hash. The first line in which two builds differ is the first call with another behaviour.
#include "adapter_runs.h"
#include "check_adapter.h"
#include "message_runs.h"
#include "model/wire_maker.h"
#include "queue_runs.h"
#include "recorded_inputs.h"

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using namespace mava_tum_behaviour;
using namespace mava_tum_model;

constexpr std::size_t message_count = 40;
constexpr std::size_t corpus_header_bytes = 8;
constexpr uint64_t changed_wires_of_a_message = 150000;
constexpr uint64_t changed_wires_of_an_adapter = 60000;

struct corpus_input {
    std::size_t index; // of the message or the adapter
    wire_bytes wire;
};

std::vector<corpus_input> read_corpus(const std::string &file, std::size_t count)
{
    std::vector<corpus_input> inputs;
    for (const wire_bytes &bytes : mava_tum_fuzz::read_inputs(file)) {
        if (bytes.size() >= corpus_header_bytes)
            inputs.push_back({bytes[0] % count, {bytes.begin() + corpus_header_bytes, bytes.end()}});
    }
    if (inputs.empty())
        throw std::runtime_error(file + " has no inputs");
    return inputs;
}

void append_delimited(wire_bytes &wire, uint32_t number, const wire_bytes &content)
{
    for (uint64_t value : {uint64_t{number} * 8 + 2, uint64_t{content.size()}}) {
        for (; value >= 0x80; value >>= 7)
            wire.push_back(static_cast<uint8_t>(value | 0x80));
        wire.push_back(static_cast<uint8_t>(value));
    }
    wire.insert(wire.end(), content.begin(), content.end());
}

// Every text and bytes field, also in nested messages, with `length` bytes.
wire_bytes long_wire(const message &of, std::size_t length)
{
    wire_bytes wire;
    for (const field &member : of.fields) {
        if (member.nested != nullptr)
            append_delimited(wire, member.number, long_wire(*member.nested, length));
        else if (member.kind == field_kind::bytes || member.kind == field_kind::text ||
                 member.kind == field_kind::text_array)
            append_delimited(wire, member.number, wire_bytes(length, static_cast<uint8_t>(member.number)));
    }
    return wire;
}

// All lists of records, each with `count` elements.
wire_bytes lists_wire(const message &of, std::size_t count)
{
    wire_bytes wire;
    for (const field &member : of.fields) {
        for (std::size_t index = 0; member.kind == field_kind::record_array && index < count; ++index)
            append_delimited(wire, member.number, full_wire(*member.nested, 1));
    }
    return wire;
}

// Inputs that are longer than those of a corpus.
void append_long_wires(std::vector<wire_bytes> &wires, const message &of)
{
    for (const std::size_t length : {127, 128, 260, 1000, 5000})
        wires.push_back(long_wire(of, length));
    wires.push_back(full_wire(of, 5));
    wires.push_back(full_wire(of, 9));
    wires.push_back(lists_wire(of, 40));
    wires.push_back(lists_wire(of, 130));
}

std::vector<wire_bytes> wires_of(std::size_t index, const std::vector<corpus_input> &corpus, const message &of)
{
    std::vector<wire_bytes> wires = seed_wires(of);
    for (const corpus_input &input : corpus) {
        if (input.index == index)
            wires.push_back(input.wire);
    }
    return wires;
}

wire_bytes changed_wire(const message &of, const std::vector<wire_bytes> &wires, random_source &random)
{
    wire_bytes wire = random.one_in(8) ? random_wire(of, random) : wires[random.below(wires.size())];
    for (uint64_t changes = random.below(4); changes > 0; --changes)
        mutate_wire(of, wire, random);
    if (random.one_in(64)) {
        for (uint8_t &byte : wire)
            byte = static_cast<uint8_t>(random.next());
    }
    return wire;
}

// All wires, then some changed ones.
template <class runs_type>
void run_wires(runs_type &runs, const message &of, const std::vector<wire_bytes> &wires, uint64_t changed_count)
{
    uint64_t seed = 0;
    std::vector<wire_bytes> whole = wires;
    append_long_wires(whole, of);
    for (const wire_bytes &wire : whole)
        runs.run({wire, random_source(seed++).next(), true});
    for (uint64_t index = 0; index < changed_count; ++index) {
        random_source random(seed++);
        const wire_bytes wire = changed_wire(of, wires, random);
        runs.run({wire, random.next(), false});
    }
}

// Each message also gets the wires of other messages.
void run_messages(behaviour_table &table, const std::vector<corpus_input> &corpus)
{
    for (std::size_t index = 0; index < message_count; ++index) {
        const message &of = *all_messages()[index];
        message_runs runs(table, index);
        for (const corpus_input &input : corpus)
            runs.decode_only(input.wire);
        run_wires(runs, of, wires_of(index, corpus, of), changed_wires_of_a_message);
    }
}

void run_adapters(behaviour_table &table, const std::vector<corpus_input> &corpus)
{
    for (std::size_t index = 0; index < mava_tum_fuzz::adapter_count; ++index) {
        const message &of = *find_message(mava_tum_fuzz::adapter_at(index).carried->name);
        adapter_runs runs(table, index);
        for (const corpus_input &input : corpus)
            runs.decode(input.wire);
        run_wires(runs, of, wires_of(index, corpus, of), changed_wires_of_an_adapter);
    }
}

void print_rows(const behaviour_table &table)
{
    for (const behaviour_row &row : table.rows()) {
        if (row.calls == 0)
            continue; // such as a failing allocation of a message that allocates nothing
        std::printf("%s\t%s\t%llu\t%016llx\n", row.function.c_str(), row.group.c_str(),
            static_cast<unsigned long long>(row.calls), static_cast<unsigned long long>(row.hash.value()));
    }
}

} // namespace

int main(int argument_count, char **arguments)
try {
    const std::vector<std::string> given(arguments + 1, arguments + argument_count);
    const bool dump = given.size() == 4 && given[0] == "--function" && given[2] == "--dump";
    if (!dump && given.size() != 1) {
        std::fprintf(stderr, "usage: behaviour [--function NAME --dump] <fuzz/corpus>\n");
        return 2;
    }
    const std::string &corpora = given.back();
    behaviour_table table(dump ? given[1] : std::string());
    run_messages(table, read_corpus(corpora + "/messages.packed", message_count));
    run_adapters(table, read_corpus(corpora + "/adapters.packed", mava_tum_fuzz::adapter_count));
    run_queue(table);
    if (!dump)
        print_rows(table);
    return 0;
} catch (const std::exception &failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
