#include "vqc/cmd/editors/kit/compound.h"

XmString compound_lines(const char* text) {
  return XmStringGenerate(const_cast<char*>(text), nullptr, XmCHARSET_TEXT, nullptr);
}

namespace {

/// Stands for a new line between the segments of a string.
XmParseMapping new_line() {
  static char character[] = "\n";  // the mapping keeps its address
  XmString separator = XmStringSeparatorCreate();
  Arg arguments[] = {{const_cast<char*>(XmNpattern), reinterpret_cast<XtArgVal>(character)},
                     {const_cast<char*>(XmNsubstitute), reinterpret_cast<XtArgVal>(separator)},
                     {const_cast<char*>(XmNincludeStatus), XmINSERT}};
  XmParseMapping mapping = XmParseMappingCreate(arguments, XtNumber(arguments));
  XmStringFree(separator);
  return mapping;
}

}  // namespace

Text text_of(XmString string) {
  if (!string) return nullptr;
  static XmParseMapping lines[] = {new_line()};
  char* characters = static_cast<char*>(
      XmStringUnparse(string, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, lines, XtNumber(lines), XmOUTPUT_ALL));
  Text text = characters;
  XtFree(characters);
  return text;
}
