#ifndef VQC_CMD_SAVEFILE_UTIL_H
#define VQC_CMD_SAVEFILE_UTIL_H

#include <memory>
#include <string_view>

#include "libkel/text.h"
#include "vqc/cmd/savefile/stream.h"

// The primitives through which the document and the generated files are written. Each returns 1, or 0 after reporting
// its own failure, so that callers only chain them; they go on after a failure. Nothing is escaped. A null stream is
// silent where only text is printed; the others report it as a failure to write.

/// Opens `path` with mode "r" or "w". Null after reporting "file_open_fail", also when either is null.
std::unique_ptr<Stream> openfile(const char* path, const char* mode);

/// Closes what openfile opened. A failure is that of the last writing.
int closefile(Stream& stream);

/// Prints `text`, in which "%%" stands for one per-cent sign. Null prints nothing.
int charout(Stream* stream, const char* text);
int charout(Stream* stream, std::string_view text);
inline int charout(Stream* stream, const Text& text);

/// Prints `format` with its one "%s" replaced by `argument`; prints nothing and returns 0 when either is null.
int charout_1s(Stream* stream, const char* format, const char* argument);

/// Prints `text` between single quotes.
int strout(Stream* stream, const char* text);

/// Prints `text` between double quotes.
int stringout(Stream* stream, const char* text);

/// Prints "True" or "False".
inline int boolout(Stream* stream, bool flag);

/// Prints the line of a flag that differs from its default, and returns 1 then, 0 otherwise.
int boolout_bc(Stream* stream, bool flag, const char* keyword, bool default_flag);

/// Prints `value` in decimal.
int intout(Stream* stream, int value);

/// Prints `text` as it stands.
inline int rawout(Stream* stream, std::string_view text);

/// Prints `text` as it stands, or "0" for null.
int ptrout(Stream* stream, const char* text);

/// Prints `text` and `suffix` as they stand, or "0" for a null `text`.
int ptrsfxout(Stream* stream, const char* text, const char* suffix);

/// Reports "file_write_fail" and returns 0.
int report_write_failure();

inline int rawout(Stream* stream, std::string_view text) {
  return stream && stream->write(text) ? 1 : report_write_failure();
}

/// Two branches, each of which writes a text whose size the compiler knows.
inline int boolout(Stream* stream, bool flag) { return flag ? rawout(stream, "True") : rawout(stream, "False"); }

inline int charout(Stream* stream, const Text& text) {
  return text.has_percent() || !stream ? charout(stream, text.view()) : rawout(stream, text.view());
}

#endif
