#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

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

/// A file that is nowhere on a disk, but has a path.
class MemoryFile {
 public:
  MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  const char* path() const { return path_.c_str(); }
  /// Replaces what is in it.
  void write(std::string_view text);
  std::string read() const;

 private:
  int descriptor_;
  std::string path_;
};

/// While there is one, no read from a file gives more than `size` characters.
class CutReads {
 public:
  explicit CutReads(std::size_t size);
  CutReads(const CutReads&) = delete;
  CutReads& operator=(const CutReads&) = delete;
  ~CutReads();
};

/// Leaves a process like a new one, apart from the built-in names. A message that is shown goes nowhere, but is made.
void start_afresh();

/// Reads a document into an empty model, or into the one there is. What parseit() gives.
int read_document(MemoryFile& file, bool fresh);

/// Writes the model, and gives what was written.
std::string written_document(MemoryFile& file);

/// One of the files of the model, for the families that are chosen.
std::string generated_file(const MemoryFile& file, int kind);

#endif
