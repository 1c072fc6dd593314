#include "commands/find_by_name.h"

#include "bad_use.h"
#include "mava_tum_inspect.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <vector>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::adapter_description;
using mava_tum_inspect::message_description;

constexpr uint32_t most_offered = 3;
constexpr std::string_view prefix_in_c = "mavatum";

bool is_upper(char character)
{
    return character >= 'A' && character <= 'Z';
}

// Letters and digits alone, small, without the prefix that a message's type has in C. Two names that are the same like
// this are the same name.
std::string letters_of(std::string_view name)
{
    std::string letters;
    for (const char character : name)
        if (character != '_' && character != '-' && character != ' ')
            letters += is_upper(character) ? static_cast<char>(character - 'A' + 'a') : character;
    if (letters.starts_with(prefix_in_c))
        letters.erase(0, prefix_in_c.size());
    return letters;
}

// Null: there is none.
template <class Entries>
auto entry_named(const Entries &entries, const std::string &name) -> decltype(&*entries.begin())
{
    const auto found = std::ranges::find_if(entries, [&name](const auto &each) { return name == each.name; });
    if (found != entries.end())
        return &*found;
    const std::string letters = letters_of(name);
    const auto similar =
        std::ranges::find_if(entries, [&letters](const auto &each) { return letters == letters_of(each.name); });
    return similar != entries.end() ? &*similar : nullptr;
}

using similar_fn = uint32_t (*)(const char *wrong, const char **names, uint32_t capacity);

// "; the nearest are a, b and c".
std::string nearest_names(std::string wrong, similar_fn similar)
{
    for (char &character : wrong)
        if (is_upper(character))
            character = static_cast<char>(character - 'A' + 'a');
    std::array<const char *, most_offered> names{};
    const uint32_t found = similar(wrong.c_str(), names.data(), most_offered);
    if (found == 0)
        return "";
    return fmt::format(
        "; the nearest {} {}", found == 1 ? "is" : "are", fmt::join(names.begin(), names.begin() + found, ", "));
}

std::vector<const adapter_description *> adapters_that_carry(const message_description &message)
{
    std::vector<const adapter_description *> adapters;
    for (const adapter_description &adapter : mava_tum_inspect::all_adapters())
        if (adapter.carried == &message)
            adapters.push_back(&adapter);
    return adapters;
}

// The one adapter of a message that is named instead of it.
const adapter_description &adapter_of(const message_description &message)
{
    const std::vector<const adapter_description *> adapters = adapters_that_carry(message);
    if (adapters.empty())
        throw bad_use(
            fmt::format("no adapter carries the message {} by itself; mava-tum list has the adapters", message.name));
    if (adapters.size() == 1)
        return *adapters.front();
    std::string names;
    for (const adapter_description *adapter : adapters)
        names += (names.empty() ? "" : " and ") + std::string(adapter->name);
    throw bad_use(
        fmt::format("{} adapters carry the message {}: {}; name one of them", adapters.size(), message.name, names));
}

} // namespace

const message_description &message_named(const std::string &name)
{
    if (const message_description *message = entry_named(mava_tum_inspect::all_messages(), name))
        return *message;
    throw bad_use(fmt::format("there is no message \"{}\"{}; mava-tum list has all names", name,
        nearest_names(name, mava_tum_inspect_similar_messages)));
}

const adapter_description &adapter_named(const std::string &name)
{
    if (const adapter_description *adapter = entry_named(mava_tum_inspect::all_adapters(), name))
        return *adapter;
    if (const message_description *message = entry_named(mava_tum_inspect::all_messages(), name))
        return adapter_of(*message);
    throw bad_use(fmt::format("there is no adapter \"{}\"{}; mava-tum list has all names", name,
        nearest_names(name, mava_tum_inspect_similar_adapters)));
}

} // namespace mava_tum_cli
