// Prints the figures of the documents as lines of fields separated by tabs.
//
//   document_data [RUNS]    RUNS: random runs for each fluid and mode (default 1000)
#include "tests/docs/data_lines.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

constexpr int kRandomRuns = 1000;

void PrintAll(int randomRuns) {
    using namespace tarvix::accuracy;
    PrintAccuracy();
    PrintConvergence();
    PrintCosts();
    PrintPublished();
    PrintRandomRuns(randomRuns);
    PrintSteam();
    PrintUnits();
}

}  // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::atoi(argv[1]) : kRandomRuns;
    if (argc > 2 || runs <= 0) {
        std::fputs("usage: document_data [RUNS]\n", stderr);
        return 2;
    }
    try {
        PrintAll(runs);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "document_data: %s\n", error.what());
        return 1;
    }
    return 0;
}
