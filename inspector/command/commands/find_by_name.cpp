#include "commands/find_by_name.h"

#include "bad_use.h"
#include "mava_tum_inspect.h"

#include <array>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

constexpr uint32_t most_offered = 3;

using similar_fn = uint32_t (*)(const char *wrong, const char **names, uint32_t capacity);

// "; the nearest are a, b and c".
std::string nearest_names(const std::string &wrong, similar_fn similar)
{
    std::array<const char *, most_offered> names{};
    const uint32_t found = similar(wrong.c_str(), names.data(), most_offered);
    if (found == 0)
        return "";
    return fmt::format(
        "; the nearest {} {}", found == 1 ? "is" : "are", fmt::join(names.begin(), names.begin() + found, ", "));
}

} // namespace

const mava_tum_inspect::message_description &message_named(const std::string &name)
{
    if (const mava_tum_inspect::message_description *message = mava_tum_inspect::find_message(name))
        return *message;
    throw bad_use(fmt::format("there is no message \"{}\"{}; mava-tum list has all names", name,
        nearest_names(name, mava_tum_inspect_similar_messages)));
}

const mava_tum_inspect::adapter_description &adapter_named(const std::string &name)
{
    if (const mava_tum_inspect::adapter_description *adapter = mava_tum_catalogue::find_adapter(name))
        return *adapter;
    throw bad_use(fmt::format("there is no adapter \"{}\"{}; mava-tum list has all names", name,
        nearest_names(name, mava_tum_inspect_similar_adapters)));
}

} // namespace mava_tum_cli
