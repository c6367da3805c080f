#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/savefile/load.h"

using namespace vqc;

// What the fuzz targets share. A target is one function, LLVMFuzzerTestOneInput, which libFuzzer or the replay calls.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Ends the process with a message unless `holds`: the fuzzer takes that for a crash and keeps the input.
void require(bool holds, const char* what);

/// An input whose last byte chooses how the rest is treated. Documents can be inputs as they are.
struct Input {
  Input(const std::uint8_t* data, std::size_t size);

  std::string_view text;
  unsigned choice = 0;
};

/// What came of reading a text.
struct Reading {
  LoadResult result;
  std::shared_ptr<const Source> source;
  Places places;
  Diagnostics diagnostics = {};
};

/// Adds a text to a document. Everything that is found must stand in it, and have words.
Reading read_into(Document& document, std::string_view text, AfterError after_error = AfterError::stop);

/// A document as it is written.
std::string saved(const Document& document);

/// One of the files of a document.
std::string generated(const Document& document, const Families& families, int kind, Switches switches = {});

#endif
