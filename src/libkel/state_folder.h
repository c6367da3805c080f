#ifndef LIBKEL_STATE_FOLDER_H
#define LIBKEL_STATE_FOLDER_H

#include <filesystem>
#include <system_error>

namespace vqc {

/// Where the programs keep what they know of their user from session to session: $XDG_STATE_HOME/vqconfig, or else
/// ~/.local/state/vqconfig. Empty when the user has no folder for it. It need not be there yet.
std::filesystem::path state_folder();

/// Makes a folder, and what is missing above it, for the user alone. One that is there stays as it is. The reason when
/// that cannot be done.
std::error_code make_private_folder(const std::filesystem::path& folder);

}  // namespace vqc

#endif
