#ifndef VQC_CMD_EDITORS_FIELD_WORDS_H
#define VQC_CMD_EDITORS_FIELD_WORDS_H

// Which widget of a dialog shows what a word gives in a document.

#include <Xm/Xm.h>

#include <algorithm>
#include <span>

#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

struct FieldOfWord {
  Kw word;
  int slot;  // of the widget in the dialog's record
};

/// The widget for a word; null where no row has it, and while there is no dialog.
inline Widget field_of_word(Widget* record, std::span<const FieldOfWord> fields, Kw word) {
  const auto field = std::ranges::find(fields, word, &FieldOfWord::word);
  return !record || field == fields.end() ? nullptr : record[field->slot];
}

}  // namespace vqc::editors

#endif
