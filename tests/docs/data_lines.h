// What document_data prints: the figures of the documents, as lines of a kind and fields separated
// by tabs. docs/make-figures.py puts them into the documents. Each function prints the kinds that
// stand at the head of its source.
#pragma once

namespace tarvix::accuracy {

void PrintAccuracy();
void PrintConvergence();
void PrintCosts();
void PrintPublished();
void PrintRandomRuns(int runsPerMode);
void PrintSteam();
void PrintUnits();

}  // namespace tarvix::accuracy
