#include "growth/measured_call.h"

namespace bench
{
namespace
{

using mava_tum_model::library_message;

// Address space, not memory: only allocated parts are written.
constexpr uint64_t arena_bytes = uint64_t{1} << 30;

class record_memory
{
public:
    explicit record_memory(const library_message &of) : of_(of), record_(of.record_bytes / 8 + 1), memory_(arena_bytes)
    {
    }

    int32_t decode(const wire_bytes &wire)
    {
        memory_.reset();
        return of_.decode(record(), wire.data(), wire.size(), bump_allocator::allocate, &memory_, MAVA_TUM_ALIAS);
    }

    void free()
    {
        of_.free(record(), bump_allocator::release, &memory_, MAVA_TUM_ALIAS);
    }

    void *record()
    {
        return record_.data();
    }

    uint64_t used_bytes() const
    {
        return memory_.used_bytes();
    }

private:
    const library_message &of_;
    std::vector<uint64_t> record_; // words, for their alignment
    bump_allocator memory_;
};

class decoding final : public measured_call
{
public:
    explicit decoding(const library_message &of) : memory_(of) {}

    bool prepare(const wire_bytes &wire) override
    {
        wire_ = &wire;
        return memory_.decode(wire) == MAVA_TUM_OK;
    }

    void call() override
    {
        memory_.decode(*wire_);
        memory_.free();
    }

    uint64_t memory_bytes() const override
    {
        return memory_.used_bytes();
    }

private:
    record_memory memory_;
    const wire_bytes *wire_ = nullptr;
};

class encoding final : public measured_call
{
public:
    explicit encoding(const library_message &of) : of_(of), memory_(of) {}

    bool prepare(const wire_bytes &wire) override
    {
        output_.assign(wire.size(), 0);
        if (memory_.decode(wire) != MAVA_TUM_OK)
            return false;
        call();
        return output_ == wire;
    }

    void call() override
    {
        of_.encode(memory_.record(), output_.data(), output_.size(), nullptr, nullptr, 0);
    }

    uint64_t memory_bytes() const override
    {
        return memory_.used_bytes();
    }

private:
    const library_message &of_;
    record_memory memory_;
    wire_bytes output_;
};

class adapter_decoding final : public measured_call
{
public:
    explicit adapter_decoding(const mava_tum_catalogue::adapter &adapter)
        : adapter_(adapter), record_(adapter.received->size_bytes / 8 + 1)
    {
    }

    // An adapter does not report whether it read its whole input: the codec's decode of the same input does.
    bool prepare(const wire_bytes &wire) override
    {
        wire_ = &wire;
        return true;
    }

    void call() override
    {
        adapter_.decode(wire_->data(), static_cast<uint32_t>(wire_->size()), record_.data());
    }

    uint64_t memory_bytes() const override
    {
        return 0;
    }

private:
    const mava_tum_catalogue::adapter &adapter_;
    std::vector<uint64_t> record_;
    const wire_bytes *wire_ = nullptr;
};

} // namespace

std::unique_ptr<measured_call> decode_call(const library_message &of)
{
    return std::make_unique<decoding>(of);
}

std::unique_ptr<measured_call> encode_call(const library_message &of)
{
    return std::make_unique<encoding>(of);
}

std::unique_ptr<measured_call> adapter_call(const mava_tum_catalogue::adapter &adapter)
{
    return std::make_unique<adapter_decoding>(adapter);
}

} // namespace bench
