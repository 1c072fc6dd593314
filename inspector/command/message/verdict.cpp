#include "message/verdict.h"

#include "inspector/library/fault_text.h"
#include "inspector/library/note_text.h"
#include "mava_tum_inspect.h"

namespace mava_tum_cli
{

std::string text_of_value(const occurrence &at, wire_bytes wire)
{
    text_in_memory text;
    write_value(text, at, wire);
    return text.take();
}

std::string fault_in_words(const wire_fault &fault)
{
    sentence text;
    describe_fault(text, fault);
    return std::string(text.view());
}

std::vector<std::string> notes_in_words(const occurrence &at, wire_bytes wire)
{
    std::vector<std::string> notes;
    for (const note told : all_notes) {
        if (!at.notes.has(told))
            continue;
        sentence text;
        describe_note(text, told, at, wire.data());
        notes.emplace_back(text.view());
    }
    return notes;
}

std::optional<std::string> fault_of(const message_description &message, wire_bytes wire)
{
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_judge(message.name, wire.data(), wire.size(), &verdict);
    if (verdict.result == MAVA_TUM_OK)
        return std::nullopt;
    return verdict.text;
}

} // namespace mava_tum_cli
