#ifndef SUPPORT_MODEL_H
#define SUPPORT_MODEL_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/family.h"
#include "vqc/cmd/model/options.h"
#include "vqc/cmd/model/stop.h"

/// Leaves the model as it is when the program starts.
inline void empty_model() {
  clear_document();
  for (auto option : all_name_options) (name_options.*option).resource = nullptr;
  application_resources = {};
  document_switches = {};
  java_compatible_widgets = false;
  mfc_compatible_widgets = false;
  save_file = nullptr;
  dirty = false;
}

/// A test that begins with an empty document and leaves one behind.
class ModelTest : public testing::Test {
 protected:
  ModelTest() { empty_model(); }
  ~ModelTest() override { empty_model(); }

  /// A new family of that name.
  static Family* new_family(const char* name) {
    EXPECT_EQ(0, family_add(name));
    return family_ptr(name);
  }
};

using Names = std::vector<std::string>;

/// The names of a list's elements, or of the records they refer to, in the list's order.
template <class List>
Names names_in(const List& list) {
  Names names;
  for (const auto& element : list) names.emplace_back(name_of(element).view());
  return names;
}

#endif
