#ifndef SUPPORT_MODEL_H
#define SUPPORT_MODEL_H

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "vqc/cmd/model/document.h"

using namespace vqc;

namespace vqc {

/// Shows a text in what a test says.
inline void PrintTo(Text text, std::ostream* out) { text ? *out << '"' << text.view() << '"' : *out << "a null text"; }

}  // namespace vqc

using Names = std::vector<std::string>;

/// The names of a list's elements, or of the records they refer to, in the list's order.
template <class List>
Names names_in(const List& list) {
  Names names;
  for (const auto& element : list) names.emplace_back(name_of(element).view());
  return names;
}

#endif
