// Baseline for process timings: starts, links the C++ runtime, and exits.
#include <iostream>

int main() { return std::cout.good() ? 0 : 1; }
