#include <iostream>

#include "cli/cli.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    return gw::cli::Run(argc, argv, std::cout, std::cerr);
}
