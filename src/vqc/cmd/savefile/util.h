#ifndef VQC_CMD_SAVEFILE_UTIL_H
#define VQC_CMD_SAVEFILE_UTIL_H

#include <memory>
#include <string_view>

#include "libkel/sink.h"
#include "libkel/text.h"

namespace vqc {

// The primitives through which the document and the generated files are written. Only quoteout() escapes.

/// Opens `path` for writing. Null after reporting "file_open_fail", also when it is null.
std::unique_ptr<FileSink> openfile(const char* path);

/// Ends the writing. False after reporting "file_write_fail" when anything could not be written.
bool closefile(Sink& out);

/// Prints `text` as a format without arguments: "%%" stands for one per-cent sign. Null prints nothing.
void charout(Sink& out, Text text);

/// Prints `format` with its one "%s" replaced by `argument`, as charout() does.
void charout_1s(Sink& out, std::string_view format, std::string_view argument);

/// Prints `text`, as charout() does, between single quotes.
void strout(Sink& out, Text text);

/// Prints `text` between single quotes so that the lexer reads it as it stands.
void quoteout(Sink& out, Text text);

/// Prints `text`, as charout() does, between double quotes.
void stringout(Sink& out, Text text);

/// Prints "True" or "False".
inline void boolout(Sink& out, bool flag) { flag ? out.write("True") : out.write("False"); }

/// Prints the line of a flag that differs from its default. Whether it did.
bool boolout_bc(Sink& out, bool flag, std::string_view keyword, bool default_flag);

/// Prints `value` in decimal.
void intout(Sink& out, int value);

/// Prints `text` as it stands, or "0" for null.
void ptrout(Sink& out, Text text);

/// Prints `text` and `suffix` as they stand, or "0" for a null `text`.
void ptrsfxout(Sink& out, Text text, std::string_view suffix);

}  // namespace vqc

#endif
