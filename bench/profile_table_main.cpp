// The station table of a profile as CSV on standard output, as the table command
// writes it: the program the Python yardstick is timed against.
// Usage: gw_profile_table PROFILE WHOLE+PLUS
#include <iostream>

#include "cli/profile_commands.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: gw_profile_table PROFILE WHOLE+PLUS\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    const int status = gw::cli::RunProfileTable({argv[1], std::nullopt}, argv[2], true, std::cout, std::cerr);
    std::cout.flush();
    return std::cout ? status : 2;
}
