// Shows findings to programs: as lines of JSON, and as SARIF.

#include <string>

#include <nlohmann/json.hpp>

#include "vqc/tool/findings_writer.h"

namespace vqc {

namespace {

using Json = nlohmann::ordered_json;

/// JSON is UTF-8, whatever the document is.
std::string dumped(const Json& json, int indent = -1) {
  return json.dump(indent, ' ', false, Json::error_handler_t::replace) + '\n';
}

/// Adds where a range stands. Its end is the place right behind it.
void add_places(Json& json, const Source& source, Range range, const char* const (&members)[4]) {
  const Place begin = source.place(range.begin);
  const Place end = source.place(range.end);
  json[members[0]] = begin.line;
  json[members[1]] = begin.column;
  json[members[2]] = end.line;
  json[members[3]] = end.column;
}

constexpr const char* kMembers[] = {"line", "column", "end_line", "end_column"};
constexpr const char* kSarifMembers[] = {"startLine", "startColumn", "endLine", "endColumn"};

class JsonWriter : public FindingsWriter {
 public:
  explicit JsonWriter(Sink& out) : out_(out) {}

  void write(const ShownFinding& shown) override {
    Json json;
    json["file"] = shown.source.name();
    add_places(json, shown.source, shown.finding.range, kMembers);
    json["severity"] = severity_name(shown.severity);
    json["id"] = kind_of(shown.finding.id).name;
    json["message"] = words_of(shown.finding);
    json["notes"] = Json::array();
    for (const Note& note : shown.finding.notes) json["notes"].push_back(note_of(shown.source, note));
    json["suggestion"] = shown.finding.suggestion.empty() ? Json() : Json(shown.finding.suggestion);
    out_.write(dumped(json));
  }

 private:
  static Json note_of(const Source& source, const Note& note) {
    Json json;
    if (note.range) add_places(json, source, *note.range, kMembers);
    json["message"] = note.words;
    return json;
  }

  Sink& out_;
};

/// A path as a URI reference.
std::string uri_of(std::string_view path) {
  std::string uri;
  for (char c : path) {
    const bool plain = std::string_view("-._~/").find(c) != std::string_view::npos || (c >= '0' && c <= '9') ||
                       (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    uri += plain ? std::string(1, c) : std::string{'%', kDigits[byte / 16], kDigits[byte % 16]};
  }
  return uri;
}

class SarifWriter : public FindingsWriter {
 public:
  explicit SarifWriter(Sink& out) : out_(out) {}

  void write(const ShownFinding& shown) override {
    Json result;
    result["ruleId"] = kind_of(shown.finding.id).name;
    result["ruleIndex"] = static_cast<std::size_t>(shown.finding.id);
    result["level"] = severity_name(shown.severity);
    result["message"]["text"] = message_of(shown.finding);
    result["locations"] = Json::array({location_of(shown.source, shown.finding.range)});
    for (const Note& note : shown.finding.notes) {
      if (!note.range) continue;
      Json related = location_of(shown.source, *note.range);
      related["message"]["text"] = note.words;
      result["relatedLocations"].push_back(related);
    }
    results_.push_back(std::move(result));
  }

  void finish() override {
    Json run;
    run["tool"]["driver"] = driver();
    run["columnKind"] = "unicodeCodePoints";
    run["results"] = std::move(results_);
    Json log;
    log["$schema"] = "https://json.schemastore.org/sarif-2.1.0.json";
    log["version"] = "2.1.0";
    log["runs"] = Json::array({std::move(run)});
    out_.write(dumped(log, 1));
  }

 private:
  /// The message with what has no place of its own.
  static std::string message_of(const Finding& finding) {
    std::string text = words_of(finding);
    for (const Note& note : finding.notes) {
      if (!note.range) text += "\n" + note.words;
    }
    if (!finding.suggestion.empty()) text += "\n" + suggestion_words(finding);
    return text;
  }

  static Json location_of(const Source& source, Range range) {
    Json location;
    location["physicalLocation"]["artifactLocation"]["uri"] = uri_of(source.name());
    add_places(location["physicalLocation"]["region"], source, range, kSarifMembers);
    return location;
  }

  static Json rule_of(const FindingKind& kind) {
    Json rule;
    rule["id"] = kind.name;
    rule["shortDescription"]["text"] = kind.words;
    rule["fullDescription"]["text"] = kind.explanation;
    rule["defaultConfiguration"]["enabled"] = kind.shown;
    rule["defaultConfiguration"]["level"] = severity_name(kind.severity);
    return rule;
  }

  static Json driver() {
    Json driver;
    driver["name"] = "vqc";
    driver["version"] = VQC_VERSION;
    for (const FindingKind& kind : finding_kinds()) driver["rules"].push_back(rule_of(kind));
    return driver;
  }

  Sink& out_;
  Json results_ = Json::array();
};

}  // namespace

std::unique_ptr<FindingsWriter> json_writer(Sink& out) { return std::make_unique<JsonWriter>(out); }

std::unique_ptr<FindingsWriter> sarif_writer(Sink& out) { return std::make_unique<SarifWriter>(out); }

}  // namespace vqc
