#ifndef VQC_CMD_EDITORS_KIT_COMPOUND_H
#define VQC_CMD_EDITORS_KIT_COMPOUND_H

// Compound strings, in which Motif has its texts, and plain ones.

#include <Xm/Xm.h>

#include <memory>
#include <string>
#include <utility>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Characters that the toolkit has allocated, and now are one's own.
struct FreedByToolkit {
  void operator()(char* characters) const { XtFree(characters); }
};
using ToolkitCharacters = std::unique_ptr<char, FreedByToolkit>;

/// A compound string of one's own.
class CompoundString {
 public:
  explicit CompoundString(const char* text) : string_(XmStringCreateLocalized(const_cast<char*>(text ? text : ""))) {}
  /// Of several lines; a rendition may be named.
  static CompoundString of_lines(const char* text, const char* rendition = nullptr);
  CompoundString(CompoundString&& other) noexcept : string_(std::exchange(other.string_, nullptr)) {}
  CompoundString(const CompoundString&) = delete;
  CompoundString& operator=(CompoundString) = delete;
  ~CompoundString() { XmStringFree(string_); }

  /// Null when it could not be made.
  XmString get() const { return string_; }
  operator XmString() const { return string_; }

 private:
  explicit CompoundString(XmString string) : string_(string) {}

  XmString string_;
};

/// The plain text of a compound string, lines and all; empty when there is none.
std::string text_of(XmString string);

/// What a label or button says.
std::string label_text(Widget w);

/// The text with a question mark for each byte that is no character of the locale.
std::string displayable(const std::string& whole);
/// The same in one line, with a question mark for each control character.
std::string displayable_line(const std::string& text);

}  // namespace vqc::editors

#endif
