// The command line of the benchmark's programs: words of the form "--name value", each with a default.
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace bench {

class Arguments {
 public:
  /// Every option there is, with its default. Stops the program with status 2 at any other word.
  Arguments(std::map<std::string, std::string> defaults, int argc, char** argv) : values_(std::move(defaults)) {
    for (int i = 1; i < argc; i += 2) {
      const auto option = values_.find(argv[i]);
      if (option == values_.end() || i + 1 == argc) stop(argv[i]);
      option->second = argv[i + 1];
    }
  }

  const std::string& text(const std::string& name) const { return values_.at(name); }

  std::size_t number(const std::string& name) const {
    const std::string& value = text(name);
    char* end = nullptr;
    const unsigned long long parsed = std::strtoull(value.c_str(), &end, 10);
    if (value.empty() || *end != '\0') stop(name + " " + value);
    return static_cast<std::size_t>(parsed);
  }

  std::size_t positive(const std::string& name) const {
    const std::size_t value = number(name);
    if (value == 0) stop(name + " 0");
    return value;
  }

  /// The option's value as a choice among names; stops the program when it is none of them.
  template <class Choice>
  Choice choice(const std::string& name, const std::map<std::string, Choice>& choices) const {
    const auto found = choices.find(text(name));
    if (found == choices.end()) stop(name + " " + text(name));
    return found->second;
  }

 private:
  [[noreturn]] void stop(const std::string& culprit) const {
    std::fprintf(stderr, "cannot use \"%s\"; options and defaults:\n", culprit.c_str());
    for (const auto& [name, value] : values_) std::fprintf(stderr, "  %s %s\n", name.c_str(), value.c_str());
    std::exit(2);
  }

  std::map<std::string, std::string> values_;
};

/// Opens a file to write, or standard output for "-"; stops the program when it cannot.
inline std::FILE* open_output(const std::string& path) {
  std::FILE* out = path == "-" ? stdout : std::fopen(path.c_str(), "wb");
  if (out == nullptr) {
    std::perror(path.c_str());
    std::exit(1);
  }
  return out;
}

/// Closes a file; the program's exit status, which is 1 when a byte could not be written.
inline int close_output(std::FILE* out) {
  const bool failed = std::ferror(out) != 0;
  return std::fclose(out) != 0 || failed ? 1 : 0;
}

}  // namespace bench
