// The arguments of the program.
#ifndef RECONCILIATION_RUN_OPTIONS_H
#define RECONCILIATION_RUN_OPTIONS_H

#include <span>
#include <string>

namespace examples::reconciliation
{

enum class part { both_sides, restarted_receiver, help };

struct run_options {
    part what = part::both_sides;
    std::string file;
    std::string receiver; // empty: this program itself
    bool spoils_one = false;
};

// `arguments` without the program's name.
run_options parse_run_options(std::span<char *const> arguments);

std::string run_help();

} // namespace examples::reconciliation

#endif
