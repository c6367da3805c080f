#ifndef VQC_CMD_GENERATE_GENERATE_H
#define VQC_CMD_GENERATE_GENERATE_H

#include <string>

/// The files that are generated from a document. Any other number is taken for a stubs file that has no name.
enum FileKind : int { CONFIG_FILE = 1, CODE_FILE = 2, STUBS_FILE = 3 };

/// The families that the user has chosen, in list order, while there is a user to choose; null chooses all.
struct FamilyChoice {
  bool (*chosen)(int place);  // counted from 0
};
inline const FamilyChoice* family_choice = nullptr;

/// The name that a file of this kind has when none is given: made from the path of the document.
std::string batch_file_name(const char* document, int kind);

/// Generates one file, replacing what is there, and remembers its name in the document. An interactive run takes the
/// families from `family_choice`, any other all of them. False when the file could not be opened, which is reported:
/// on standard error too unless the run is interactive.
bool generate(const char* name, bool interactive, int kind);

/// The same without a user.
bool batch_generate(const char* name, int kind);

#endif
