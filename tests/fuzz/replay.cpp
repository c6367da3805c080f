// Gives a fuzz target the files that are named, and all in the folders that are named: for compilers without a fuzzer.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support.h"

namespace {

namespace fs = std::filesystem;

/// How many inputs there have been.
int replay_file(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  require(file.is_open(), path.c_str());
  const std::string text(std::istreambuf_iterator<char>(file), {});
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  return 1;
}

int replay(const fs::path& path) {
  if (!fs::is_directory(path)) return replay_file(path);
  int count = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) count += replay_file(entry.path());
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  int count = 0;
  for (int i = 1; i < argc; ++i) count += replay(argv[i]);
  std::printf("%d inputs\n", count);
  return count > 0 ? 0 : 1;
}
