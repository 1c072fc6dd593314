#include "inspector_command_line.h"

int main(int argc, char **argv)
{
    return mava_tum_cli::run_command_line(argc, argv);
}
