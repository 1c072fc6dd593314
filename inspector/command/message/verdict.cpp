#include "message/verdict.h"

#include "inspector/library/fault_text.h"
#include "inspector/library/note_text.h"
#include "mava_tum_inspect.h"

namespace mava_tum_cli
{

using mava_tum_inspect::sentence;

std::string fault_in_words(const mava_tum_inspect::wire_fault &fault)
{
    sentence text;
    mava_tum_inspect::describe_fault(text, fault);
    return std::string(text.view());
}

std::vector<std::string> notes_in_words(const mava_tum_inspect::occurrence &at, wire_bytes wire)
{
    std::vector<std::string> notes;
    for (const mava_tum_inspect::note told : mava_tum_inspect::all_notes) {
        if (!at.notes.has(told))
            continue;
        sentence text;
        mava_tum_inspect::describe_note(text, told, at, wire.data());
        notes.emplace_back(text.view());
    }
    return notes;
}

std::optional<std::string> fault_of(const mava_tum_inspect::message_description &message, wire_bytes wire)
{
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_judge(message.name, wire.data(), wire.size(), &verdict);
    if (verdict.result == MAVA_TUM_OK)
        return std::nullopt;
    return verdict.text;
}

} // namespace mava_tum_cli
