// Finds by its size and times whether a file is still the one that the session knows.

#include "vqc/cmd/editors/outside_changes.h"

#include <sys/stat.h>

#include <optional>
#include <unordered_map>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/status_line.h"

namespace vqc::editors {

namespace {

struct Stamp {
  dev_t device;
  ino_t inode;
  off_t size;
  time_t seconds;
  long nanoseconds;

  bool operator==(const Stamp&) const = default;
};

/// What the session knows of a file, and which change of it has been said.
struct Known {
  std::optional<Stamp> stamp;
  std::optional<Stamp> said;
};
std::unordered_map<std::string, Known> known_files;

XtEventDispatchProc usual_dispatch = nullptr;

std::optional<Stamp> stamp_of(const std::string& path) {
  struct stat file {};
  if (stat(path.c_str(), &file) != 0) return std::nullopt;
  return Stamp{file.st_dev, file.st_ino, file.st_size, file.st_mtim.tv_sec, file.st_mtim.tv_nsec};
}

void say_what_is_new() {
  if (!save_file || !is_changed_outside(*save_file)) return;
  Known& known = known_files[*save_file];
  const std::optional<Stamp> now = stamp_of(*save_file);
  if (known.said == now) return;
  known.said = now;
  say("changed_outside", {leafnm(save_file_path())});
  end_action({});
}

Boolean dispatch_focus(XEvent* event) {
  guarded(say_what_is_new);
  return usual_dispatch(event);
}

}  // namespace

void note_file_known(const std::string& path) { known_files[path] = {stamp_of(path), {}}; }

bool is_changed_outside(const std::string& path) {
  const auto known = known_files.find(path);
  if (known == known_files.end()) return false;
  const std::optional<Stamp> now = stamp_of(path);
  return now && now != known->second.stamp;
}

void watch_for_outside_changes(Display* display) {
  usual_dispatch = XtSetEventDispatcher(display, FocusIn, dispatch_focus);
}

}  // namespace vqc::editors
