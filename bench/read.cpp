// Reads a document: plainly, as a batch run does, or so that all its faults are found and where everything stands.
// Usage: read plain|whole DOCUMENT

#include <cstdio>
#include <string_view>

#include "vqc/cmd/savefile/load.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto source = vqc::Source::read(argv[2]);
  if (!source) {
    std::perror(argv[2]);
    return 1;
  }
  vqc::Document document;
  vqc::Diagnostics findings;
  vqc::Places places(*source);
  const bool whole = std::string_view(argv[1]) == "whole";
  if (whole) {
    load(source, document, findings, vqc::AfterError::go_on, &places);
  } else {
    load(source, document, findings);
  }
  return findings.empty() ? 0 : 1;
}
