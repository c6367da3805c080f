// Reads and writes the file of where windows were left.

#include "vqc/cmd/editors/kit/window_memory.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "libkel/state_folder.h"

namespace vqc::editors {

namespace {

namespace fs = std::filesystem;

/// By size of the display, and name.
using Lines = std::map<std::pair<std::string, std::string>, ScreenArea>;

/// The file; empty when the user has no folder for it.
fs::path memory_file() {
  const fs::path folder = state_folder();
  return folder.empty() ? folder : folder / "windows";
}

std::string size_of(const ScreenArea& area) { return std::to_string(area.width) + "x" + std::to_string(area.height); }

std::optional<ScreenArea> area_of(const std::string& geometry) {
  ScreenArea area;
  unsigned width = 0;
  unsigned height = 0;
  const int found = XParseGeometry(geometry.c_str(), &area.x, &area.y, &width, &height);
  if ((found & (XValue | YValue | XNegative | YNegative)) != (XValue | YValue)) return std::nullopt;
  area.width = static_cast<int>(width);
  area.height = static_cast<int>(height);
  return area;
}

/// Whether a window can be there: no larger than the screen, and with enough of its title on it to be moved by.
bool makes_sense(const ScreenArea& area, const ScreenArea& screen) {
  constexpr int kTitle = 20;
  const bool fits = area.width >= 0 && area.height >= 0 && area.width <= screen.width && area.height <= screen.height;
  const ScreenArea title_part{area.x, area.y, std::max(area.width, kTitle), kTitle};
  return fits && area.y >= screen.y && overlap(title_part, screen) >= long{kTitle} * kTitle;
}

Lines read_lines() {
  Lines lines;
  std::ifstream file(memory_file());
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string screen;
    std::string name;
    std::string geometry;
    if (!(words >> screen >> name >> geometry)) continue;
    if (const std::optional<ScreenArea> area = area_of(geometry)) lines[{screen, name}] = *area;
  }
  return lines;
}

bool write_lines(const fs::path& path, const Lines& lines) {
  std::ofstream file(path);
  for (const auto& [key, area] : lines) file << key.first << ' ' << key.second << ' ' << geometry_of(area) << '\n';
  return static_cast<bool>(file.flush());
}

}  // namespace

std::string geometry_of(const ScreenArea& area) {
  return (area.width > 0 ? size_of(area) : "") + "+" + std::to_string(area.x) + "+" + std::to_string(area.y);
}

WindowMemory recalled_windows(const ScreenArea& screen) {
  WindowMemory windows;
  for (const auto& [key, area] : read_lines()) {
    if (key.first == size_of(screen) && makes_sense(area, screen)) windows[key.second] = area;
  }
  return windows;
}

void keep_windows(const ScreenArea& screen, const WindowMemory& windows) {
  const fs::path path = memory_file();
  if (path.empty() || windows.empty()) return;
  Lines lines = read_lines();
  for (const auto& [name, area] : windows) lines[{size_of(screen), name}] = area;
  if (make_private_folder(path.parent_path())) return;
  const fs::path unfinished = path.string() + "." + std::to_string(getpid());
  std::error_code failure;
  if (write_lines(unfinished, lines)) fs::rename(unfinished, path, failure);
  fs::remove(unfinished, failure);
}

}  // namespace vqc::editors
