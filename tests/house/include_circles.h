#ifndef HOUSE_INCLUDE_CIRCLES_H
#define HOUSE_INCLUDE_CIRCLES_H

// Finds modules that include each other, be it by way of others. A module is a header with the source of its name, or
// either alone, and goes by its whole path: "src/libkel/text".

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "house/source_checks.h"

/// Texts by path, spelled from the root of the tree.
using Sources = std::map<std::string, std::string>;
/// Modules, each with those that it includes.
using Modules = std::map<std::string, std::set<std::string>>;
/// The modules of a circle, which begins and ends with the same one.
using Circle = std::vector<std::string>;

inline std::string module_of(const std::string& path) {
  return std::filesystem::path(path).replace_extension().generic_string();
}

/// The file that an include of the file at `path` means; "" for one that is not in the tree.
inline std::string included_file(const Sources& sources, const std::string& path, const std::string& header) {
  if (header.front() != '"') return "";
  const std::string name = header.substr(1, header.size() - 2);
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  for (const std::filesystem::path& from : {std::filesystem::path("src"), std::filesystem::path("tests"), folder}) {
    const std::string file = (from / name).lexically_normal().generic_string();
    if (sources.contains(file)) return file;
  }
  return "";
}

inline Modules modules_of(const Sources& sources) {
  Modules modules;
  for (const auto& [path, text] : sources) {
    for (const std::string& header : includes_of(text)) {
      const std::string file = included_file(sources, path, header);
      const bool own_header = module_of(file) == module_of(path) && file != path;
      if (!file.empty() && !own_header) modules[module_of(path)].insert(module_of(file));
    }
  }
  return modules;
}

/// Walks from a module to all that it includes. `way` leads there; what has been seen to end is `done`.
inline Circle circle_through(const Modules& modules, const std::string& module, Circle& way,
                             std::set<std::string>& done) {
  const bool closes_circle = std::ranges::find(way, module) != way.end();
  way.push_back(module);
  if (closes_circle) return {std::ranges::find(way, module), way.end()};
  const auto includes = modules.find(module);
  if (includes != modules.end() && !done.contains(module)) {
    for (const std::string& next : includes->second) {
      if (Circle circle = circle_through(modules, next, way, done); !circle.empty()) return circle;
    }
  }
  done.insert(module);
  way.pop_back();
  return {};
}

/// A circle of modules; nothing when there is none.
inline Circle circle_in(const Modules& modules) {
  std::set<std::string> done;
  for (const auto& [module, includes] : modules) {
    Circle way;
    if (Circle circle = circle_through(modules, module, way, done); !circle.empty()) return circle;
  }
  return {};
}

#endif
