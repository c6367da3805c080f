#include "vqc/cmd/editors/generated_paths.h"

#include <filesystem>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

std::optional<std::string> generated_path(FileKind kind) {
  const Text remembered = generated_name(edited_document, kind);
  if (remembered) {
    const std::filesystem::path folder = std::filesystem::path(save_file.value_or("")).parent_path();
    return folder / remembered.view();
  }
  if (!save_file || save_file->empty()) return {};
  return batch_file_name(*save_file, kind);
}

}  // namespace vqc::editors
