#ifndef VQC_CMD_HISTORY_JSON_LINE_H
#define VQC_CMD_HISTORY_JSON_LINE_H

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "vqc/cmd/history/kept_path.h"

namespace vqc {

// Lines of JSON in the files of the history, an object each.

using Json = nlohmann::ordered_json;

/// A text member of an object; nothing where it has none of that name.
inline std::optional<std::string> text_in(const Json& object, const char* name) {
  const auto member = object.find(name);
  if (member == object.end() || !member->is_string()) return std::nullopt;
  return member->get<std::string>();
}

inline std::optional<std::filesystem::path> path_in(const Json& object, const char* name) {
  const std::optional<std::string> text = text_in(object, name);
  return text ? path_of_text(*text) : std::nullopt;
}

inline std::optional<std::int64_t> integer_in(const Json& object, const char* name) {
  const auto member = object.find(name);
  if (member == object.end() || !member->is_number_integer()) return std::nullopt;
  return member->get<std::int64_t>();
}

/// Times are kept in milliseconds.
inline std::int64_t kept_time(std::chrono::system_clock::time_point time) {
  return std::chrono::floor<std::chrono::milliseconds>(time.time_since_epoch()).count();
}

/// A time that the clock can show.
inline std::optional<std::chrono::system_clock::time_point> time_in(const Json& object, const char* name) {
  using std::chrono::milliseconds, std::chrono::system_clock;
  constexpr milliseconds kLast = std::chrono::floor<milliseconds>(system_clock::duration::max());
  const std::optional<std::int64_t> time = integer_in(object, name);
  if (!time || *time < 0 || milliseconds(*time) > kLast) return std::nullopt;
  return system_clock::time_point(milliseconds(*time));
}

/// The object in a line; an empty one where there is none.
inline Json object_in(std::string_view line) {
  Json json = Json::parse(line, nullptr, false);
  return json.is_object() ? json : Json::object();
}

}  // namespace vqc

#endif
