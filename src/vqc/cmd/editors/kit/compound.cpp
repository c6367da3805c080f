// Turns plain texts into Motif's compound strings and back.

#include "vqc/cmd/editors/kit/compound.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace vqc::editors {

namespace {

/// Makes a component of a compound string the character `pattern` again. The mapping keeps the address of the pattern.
XmParseMapping mapping(const char* pattern, XmString component) {
  Arg arguments[] = {{const_cast<char*>(XmNpattern), reinterpret_cast<XtArgVal>(pattern)},
                     {const_cast<char*>(XmNsubstitute), reinterpret_cast<XtArgVal>(component)},
                     {const_cast<char*>(XmNincludeStatus), XmINSERT}};
  XmParseMapping result = XmParseMappingCreate(arguments, XtNumber(arguments));
  XmStringFree(component);
  return result;
}

}  // namespace

CompoundString CompoundString::of_lines(const char* text, const char* rendition) {
  return CompoundString(
      XmStringGenerate(const_cast<char*>(text), nullptr, XmCHARSET_TEXT, const_cast<char*>(rendition)));
}

std::string text_of(XmString string) {
  if (!string) return {};
  static XmParseMapping characters[] = {
      mapping("\n", XmStringSeparatorCreate()),
      mapping("\t", XmStringComponentCreate(XmSTRING_COMPONENT_TAB, 0, nullptr)),
  };
  const ToolkitCharacters plain(static_cast<char*>(XmStringUnparse(string, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT,
                                                                   characters, XtNumber(characters), XmOUTPUT_ALL)));
  return plain ? plain.get() : "";
}

std::string label_text(Widget w) {
  XmString label = nullptr;
  XtVaGetValues(w, XmNlabelString, &label, nullptr);
  const std::string text = text_of(label);
  XmStringFree(label);
  return text;
}

std::string displayable(const std::string& whole) {
  std::string_view text = whole;
  std::string result;
  std::mbstate_t state{};
  while (!text.empty()) {
    const std::size_t length = std::mbrlen(text.data(), text.size(), &state);
    const bool character = length != 0 && length <= text.size();
    if (!character) state = {};
    result += character ? text.substr(0, length) : "?";
    text.remove_prefix(character ? length : 1);
  }
  return result;
}

std::string displayable_line(const std::string& text) {
  std::string line = displayable(text);
  std::ranges::replace_if(
      line, [](unsigned char c) { return c < ' '; }, '?');
  return line;
}

}  // namespace vqc::editors
