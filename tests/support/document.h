#ifndef SUPPORT_DOCUMENT_H
#define SUPPORT_DOCUMENT_H

#include <gtest/gtest.h>

// Before the model, whose `stop_list` would seem to be shadowed by the keyword of that name.
#include "vqc/cmd/savefile/keywords.h"

#include <string>
#include <string_view>

#include "support/files.h"
#include "support/messages.h"
#include "support/model.h"
#include "vqc/cmd/savefile/document_hooks.h"
#include "vqc/cmd/savefile/parse.h"
#include "vqc/cmd/savefile/save.h"

/// Reads `text` as a document, by default in place of the one that is there.
inline int read_document(std::string_view text, int fresh = 1) {
  TemporaryFolder folder;
  Text path(folder.with("document.vqc", text).c_str());
  return parseit(&path, fresh);
}

/// Adds the document `text` to the one that is there.
inline int merge_document(std::string_view text) { return read_document(text, 0); }

/// The document as the writer writes it.
inline std::string written_document() {
  TemporaryFolder folder;
  const std::string path = folder / "document.vqc";
  write_save_file(path.c_str());
  return read_file(path);
}

/// A test that begins with an empty document and no syntax error so far, and records the messages.
class DocumentTest : public ModelTest {
 protected:
  DocumentTest() { forget_the_past(); }
  ~DocumentTest() override { forget_the_past(); }

  RecordedMessages messages;
  TemporaryFolder folder;

 private:
  static void forget_the_past() {
    parse_errors = 0;
    document_hooks = {};
  }
};

#endif
