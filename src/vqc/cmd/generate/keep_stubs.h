#ifndef VQC_CMD_GENERATE_KEEP_STUBS_H
#define VQC_CMD_GENERATE_KEEP_STUBS_H

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/generate/switches.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// What a person should know of a stubs file that he has edited.
struct StubsMessage {
  std::size_t line;  // of the old file, from 1
  std::string words;
  bool blocks;  // nothing may be written
};

/// What has become of an earlier stubs file.
struct KeptStubs {
  std::optional<std::string> text;     // the new file; nothing when a message blocks
  std::vector<StubsMessage> messages;  // in the order of the lines
  int bodies_kept = 0;                 // of procedures that the families name
  int new_stubs = 0;
  int retired = 0;
  int revived = 0;
};

/// The stubs file that some families of a document ask for, made from an `old` one, so that whatever a person wrote
/// there is kept.
///
/// Bodies stay where they are; new stubs come at the end, and new headers behind those at the top. A procedure of
/// another kind than before gets the head that it needs. A stub that no family of the document names any more is
/// retired: it stays in the file, but is not compiled until it is named again. What cannot be done for certain blocks.
KeptStubs keep_stubs(const Document& document, std::span<const Family* const> families, Switches switches,
                     std::string_view old);

}  // namespace vqc

#endif
