#include "vqc/cmd/application/toolkit_words.h"

#include <algorithm>
#include <string_view>

namespace vqc {

namespace {

/// The options that the X Toolkit has for all programs.
constexpr std::string_view kToolkitOptions[] = {
    "+rv",
    "+synchronous",
    "-background",
    "-bd",
    "-bg",
    "-bordercolor",
    "-borderwidth",
    "-bw",
    "-display",
    "-fg",
    "-fn",
    "-font",
    "-foreground",
    "-geometry",
    "-iconic",
    "-name",
    "-reverse",
    "-rv",
    "-selectionTimeout",
    "-synchronous",
    "-title",
    "-xnllanguage",
    "-xrm",
    "-xtsessionID",
};

bool is_toolkit_word(std::string_view word) {
  const auto begins = [word](std::string_view option) { return option.starts_with(word); };
  return std::ranges::count_if(kToolkitOptions, begins) == 1 ||
         std::ranges::find(kToolkitOptions, word) != std::end(kToolkitOptions);
}

}  // namespace

bool has_toolkit_words(int argc, char** argv) { return std::any_of(argv + (argc > 0), argv + argc, is_toolkit_word); }

}  // namespace vqc
