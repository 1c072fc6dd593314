#include "commands/all_commands.h"
#include "error_line.h"
#include "input/message_source.h"
#include "mava_tum_inspect.h"
#include "output/output_file.h"
#include "words.h"

#include <vector>

namespace mava_tum_cli
{

namespace
{

using candidates = std::vector<mava_tum_inspect_candidate>;

constexpr size_t shown_of_a_frame = 3;

// The likeliest first.
candidates guess(std::span<const uint8_t> wire)
{
    candidates found(mava_tum_inspect_message_count());
    found.resize(mava_tum_inspect_guess(wire.data(), wire.size(), found.data(), static_cast<uint32_t>(found.size())));
    return found;
}

plausibility plausibility_of_any(std::span<const uint8_t> wire)
{
    const candidates found = guess(wire);
    if (found.empty())
        return plausibility::none;
    const mava_tum_inspect_candidate &best = found.front();
    return best.unknown_bytes == 0 && best.odd_forms == 0 ? plausibility::exact : plausibility::decodes;
}

void print_table(const candidates &found, output_file &output)
{
    output.write(fmt::format("{:<28}{:>14}{:>15}{:>10}{:>15}\n", "message", "unknown bytes", "unknown fields",
        "odd forms", "absent fields"));
    for (const mava_tum_inspect_candidate &one : found)
        output.write(fmt::format("{:<28}{:>14}{:>15}{:>10}{:>15}\n", one.message, one.unknown_bytes, one.unknown_fields,
            one.odd_forms, one.absent_fields));
}

void print_frame(const message_source &source, const candidates &found, output_file &output)
{
    std::string names;
    for (size_t i = 0; i < found.size() && i < shown_of_a_frame; ++i)
        names += (i == 0 ? "" : ", ") + std::string(found[i].message);
    if (found.size() > shown_of_a_frame)
        names += fmt::format(" and {} more", found.size() - shown_of_a_frame);
    output.write(fmt::format("frame {} at byte {}, {}: {}\n", source.number(), source.begin(),
        counted(source.message().size(), "byte"), found.empty() ? "no message" : names));
}

} // namespace

exit_status run_guess(const command_options &options)
{
    message_source source(options.file, options.format, plausibility_of_any);
    output_file output(options.output);
    source.show_progress_beside(output);
    std::string first_unknown;
    while (source.next()) {
        const candidates found = guess(source.message());
        if (found.empty() && first_unknown.empty())
            first_unknown = source.place();
        if (source.has_frames())
            print_frame(source, found, output);
        else if (!found.empty())
            print_table(found, output);
    }
    output.commit();
    if (first_unknown.empty())
        return exit_ok;
    print_error("guess", fmt::format("{}: none of the {} messages decodes from these bytes; see where one breaks with "
                                     "mava-tum explain MESSAGE",
                             first_unknown, mava_tum_inspect_message_count()));
    return exit_broken_data;
}

} // namespace mava_tum_cli
