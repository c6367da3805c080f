#ifndef SUPPORT_EDITED_DOCUMENT_H
#define SUPPORT_EDITED_DOCUMENT_H

#include <gtest/gtest.h>

#include "support/model.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/given_options.h"

using namespace vqc;

using namespace vqc::editors;

/// Leaves the document that is edited as it is when the program starts.
inline void empty_document() {
  edited_document.clear();
  for (auto option : all_name_options) (edited_document.names.*option).resource = nullptr;
  edited_document.compatibility = {};
  application_resources = {};
  document_switches = {};
  forced_compatibility = {};
  dirty = false;
}

/// A test that begins with an empty document and leaves one behind.
class EditedDocumentTest : public testing::Test {
 protected:
  EditedDocumentTest() { empty_document(); }
  ~EditedDocumentTest() override { empty_document(); }

  /// A new family of that name.
  static Family* new_family(const char* name) {
    EXPECT_EQ(0, family_add(name));
    return family_ptr(name);
  }
};

#endif
