#include "mava_tum.h"
#include "nal/adapter_list.h"
#include "stack/exported_calls.h"

namespace mava_tum_test
{

namespace
{

struct adapter_material {
    const adapter &tested;
    byte_vector buffer;
    std::vector<byte_vector> inputs;
    byte_vector received;
};

std::shared_ptr<adapter_material> make_material(const adapter &tested)
{
    auto made = std::make_shared<adapter_material>(adapter_material{tested, {}, {}, tested.received});
    const byte_vector whole = send(tested, tested.sent);
    made->buffer = whole;
    made->inputs = {whole, joined({whole, whole}), bytes_of(tested.all_zero_wire), {}};
    for (std::size_t cut = 1; cut < 8; ++cut)
        made->inputs.emplace_back(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() * cut / 8));
    for (const list_member &list : tested.lists)
        made->inputs.push_back(list.wire(std::vector<byte_vector>(list.slots + 2)));
    return made;
}

exported_calls encode_calls(const std::shared_ptr<adapter_material> &used)
{
    exported_calls made{std::string("tum_nal_data_gpb_encode_tum_") + used->tested.name, {}, {used}};
    const std::size_t whole = used->buffer.size();
    for (const std::size_t capacity : {std::size_t{0}, whole / 3, whole - 1, whole}) {
        made.calls.push_back([used = used.get(), capacity] {
            used->tested.encode(used->tested.sent.data(), used->buffer.data(), static_cast<uint32_t>(capacity));
        });
    }
    return made;
}

exported_calls decode_calls(const std::shared_ptr<adapter_material> &used)
{
    exported_calls made{std::string("tum_nal_data_gpb_decode_tum_") + used->tested.name, {}, {used}};
    for (const byte_vector &input : used->inputs) {
        const auto decode = [used = used.get(), &input] {
            used->tested.decode(input.data(), static_cast<uint32_t>(input.size()), used->received.data());
        };
        made.calls.push_back(decode);
    }
    return made;
}

struct queue_material {
    nal_queue_t queue = {};
    nal_queue_node_t nodes[3] = {};
};

} // namespace

std::vector<exported_calls> adapter_calls()
{
    std::vector<exported_calls> made;
    for (const adapter &tested : all_adapters()) {
        const std::shared_ptr<adapter_material> used = make_material(tested);
        made.push_back(encode_calls(used));
        made.push_back(decode_calls(used));
    }
    return made;
}

std::vector<exported_calls> queue_calls()
{
    const auto used = std::make_shared<queue_material>();
    exported_calls enqueue{"nal_queue_enqueue", {}, {used}};
    for (nal_queue_node_t &node : used->nodes)
        enqueue.calls.push_back([used = used.get(), &node] { nal_queue_enqueue(&used->queue, &node); });
    exported_calls remove{"nal_queue_delete", {}, {used}};
    remove.calls = {[used = used.get()] { nal_queue_delete(&used->queue, &used->nodes[1]); }};
    exported_calls dequeue{"nal_queue_dequeue", {}, {used}};
    dequeue.calls.assign(3, [used = used.get()] { nal_queue_dequeue(&used->queue); });
    return {enqueue, remove, dequeue};
}

} // namespace mava_tum_test
