#ifndef VQC_CMD_GENERATE_GENERATE_H
#define VQC_CMD_GENERATE_GENERATE_H

#include <span>
#include <string>
#include <vector>

#include "libkel/sink.h"
#include "vqc/cmd/generate/switches.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// The files that are generated from a document. Any other number is taken for a stubs file that has no name.
enum FileKind : int { CONFIG_FILE = 1, CODE_FILE = 2, STUBS_FILE = 3 };

/// The families of a document that take part in a generation, in its order.
using Families = std::vector<const Family*>;
Families all_families(const Document& document);

/// The name that a file of this kind has when none is given: made from the path of the document.
std::string batch_file_name(std::string_view document, int kind);

/// How messages call a file of this kind, with a blank behind; "" for one that has no name.
const char* file_kind_name(int kind);

/// Where a document remembers the name of a file of this kind.
Text& generated_name(Document& document, int kind);

/// Writes one of the files.
void generate(const Document& document, std::span<const Family* const> families, int kind, Switches switches,
              Sink& out);

/// Generates one file, replacing what is there, and remembers its name in the document. False when the file could not
/// be opened, which is reported.
bool generate_file(Document& document, const char* path, std::span<const Family* const> families, int kind,
                   Switches switches);

}  // namespace vqc

#endif
