// C++ exceptions for the module: Debian's libc++abi for WebAssembly is built without them, and the sources of the
// command throw. The compiler's side of the interface: `throw` calls __cxa_throw, and a landing pad asks
// _Unwind_CallPersonality which of its handlers takes what was thrown. One thread.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <typeinfo>

namespace __cxxabiv1
{

// The virtual functions of libc++abi's type information, in their order.
class __shim_type_info : public std::type_info
{
public:
    ~__shim_type_info() override;
    virtual void noop1() const;
    virtual void noop2() const;
    virtual bool can_catch(const __shim_type_info *thrown, void *&object) const = 0;
};

} // namespace __cxxabiv1

namespace
{

using __cxxabiv1::__shim_type_info;

struct alignas(16) exception_header {
    const __shim_type_info *type;
    void *(*destroy)(void *);        // on this platform, a destructor returns its argument
    exception_header *caught_before; // the next outer handler's
    void *adjusted;                  // the object as the handler's type
    uint32_t handlers;               // that have it
    bool is_rethrown;
};

exception_header *caught; // by the innermost handler

void *object_of(exception_header *header)
{
    return header + 1;
}

exception_header *header_of(void *object)
{
    return static_cast<exception_header *>(object) - 1;
}

// What the compiler writes about a function with landing pads: of each, its number, and a chain of actions; then the
// types of the handlers, counted backwards from the end of the table.
class landing_pad_table
{
public:
    explicit landing_pad_table(const uint8_t *at) : m_at(at)
    {
        ++m_at; // the base of landing pads, left out
        const bool has_types = *m_at++ != 0xFF;
        const uint32_t types_offset = has_types ? read_unsigned() : 0;
        m_types = m_at + types_offset;
        ++m_at; // the encoding of call sites
        const uint32_t sites_bytes = read_unsigned();
        m_actions = m_at + sites_bytes;
    }

    // The number of the handler that takes the object, 0: clean up and go on.
    uint32_t handler_for(exception_header *thrown, uint32_t pad)
    {
        uint32_t first_action = 0;
        for (uint32_t site = 0; site <= pad; ++site) {
            read_unsigned();
            first_action = read_unsigned();
        }
        if (first_action == 0)
            return 0;
        for (const uint8_t *action = m_actions + first_action - 1;;) {
            m_at = action;
            const int32_t type = read_signed();
            if (type > 0 && takes(thrown, static_cast<uint32_t>(type)))
                return static_cast<uint32_t>(type);
            const uint8_t *next_from = m_at;
            const int32_t next = read_signed();
            if (next == 0)
                return 0;
            action = next_from + next;
        }
    }

private:
    bool takes(exception_header *thrown, uint32_t type) const
    {
        const __shim_type_info *wanted = *(reinterpret_cast<const __shim_type_info *const *>(m_types) - type);
        thrown->adjusted = object_of(thrown);
        return wanted == nullptr || wanted->can_catch(thrown->type, thrown->adjusted);
    }

    uint32_t read_unsigned()
    {
        uint32_t value = 0;
        for (unsigned shift = 0;; shift += 7) {
            const uint8_t byte = *m_at++;
            value |= uint32_t{byte & 0x7Fu} << shift;
            if (byte < 0x80)
                return value;
        }
    }

    int32_t read_signed()
    {
        uint32_t value = 0;
        for (unsigned shift = 0;;) {
            const uint8_t byte = *m_at++;
            value |= uint32_t{byte & 0x7Fu} << shift;
            shift += 7;
            if (byte >= 0x80)
                continue;
            if ((byte & 0x40) != 0 && shift < 32)
                value |= ~uint32_t{0} << shift;
            return static_cast<int32_t>(value);
        }
    }

    const uint8_t *m_at;
    const uint8_t *m_types;
    const uint8_t *m_actions;
};

} // namespace

extern "C" {

// Read and written by the compiler's code around _Unwind_CallPersonality.
struct {
    uint32_t pad;
    const uint8_t *table;
    uint32_t handler;
} __wasm_lpad_context;

uint32_t _Unwind_CallPersonality(void *thrown)
{
    __wasm_lpad_context.handler = landing_pad_table(__wasm_lpad_context.table)
                                      .handler_for(static_cast<exception_header *>(thrown), __wasm_lpad_context.pad);
    return 0;
}

void *__cxa_allocate_exception(size_t size_bytes)
{
    auto *header = static_cast<exception_header *>(std::calloc(1, sizeof(exception_header) + size_bytes));
    if (header == nullptr)
        std::terminate();
    return object_of(header);
}

void __cxa_free_exception(void *object)
{
    std::free(header_of(object));
}

[[noreturn]] void __cxa_throw(void *object, std::type_info *type, void *(*destroy)(void *))
{
    exception_header *header = header_of(object);
    header->type = static_cast<const __shim_type_info *>(type);
    header->destroy = destroy;
    __builtin_wasm_throw(0, header);
}

void *__cxa_get_exception_ptr(void *thrown)
{
    return static_cast<exception_header *>(thrown)->adjusted;
}

void *__cxa_begin_catch(void *thrown)
{
    auto *header = static_cast<exception_header *>(thrown);
    header->is_rethrown = false;
    if (header->handlers++ == 0) {
        header->caught_before = caught;
        caught = header;
    }
    return header->adjusted;
}

void __cxa_end_catch()
{
    exception_header *header = caught;
    if (--header->handlers != 0)
        return;
    caught = header->caught_before;
    if (header->is_rethrown)
        return;
    if (header->destroy != nullptr)
        header->destroy(object_of(header));
    std::free(header);
}

[[noreturn]] void __cxa_rethrow()
{
    if (caught == nullptr)
        std::terminate();
    caught->is_rethrown = true;
    __builtin_wasm_throw(0, caught);
}
}
