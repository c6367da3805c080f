// vqc check: shows every fault of documents.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "libkel/sink.h"
#include "vqc/tool/checked_document.h"
#include "vqc/tool/commands.h"
#include "vqc/tool/finding_names.h"
#include "vqc/tool/findings_writer.h"

namespace vqc {

namespace {

struct CheckCommand {
  std::vector<std::string> files;
  std::vector<std::string> include_folders;
  std::string format = "text";
  std::string colour = "auto";
  bool warnings_are_errors = false;
  std::vector<std::string> only;
  std::vector<std::string> silenced;
  std::vector<std::string> added;
  std::size_t most_shown = 100;  // of each file
  bool quiet = false;
};

bool has(const std::vector<std::string>& names, const char* name) {
  return std::ranges::find(names, name) != names.end();
}

/// Whether a finding counts in this run. Errors always do.
bool is_wanted(const CheckCommand& command, const FindingKind& kind) {
  if (kind.severity == Severity::error) return true;
  if (has(command.silenced, kind.name)) return false;
  if (!command.only.empty()) return has(command.only, kind.name);
  return kind.shown || has(command.added, kind.name);
}

Severity severity_in(const CheckCommand& command, const FindingKind& kind) {
  const bool raised = command.warnings_are_errors && kind.severity == Severity::warning;
  return raised ? Severity::error : kind.severity;
}

bool wants_colour(const std::string& colour) {
  if (colour != "auto") return colour == "always";
  const char* refused = std::getenv("NO_COLOR");
  return isatty(STDOUT_FILENO) && !(refused && *refused);
}

/// How many findings there are of each severity.
struct Counts {
  std::size_t of[3] = {};
  std::size_t shown = 0;

  std::size_t& operator[](Severity severity) { return of[static_cast<std::size_t>(severity)]; }
  std::size_t all() const { return of[0] + of[1] + of[2]; }
};

void check_one(const CheckCommand& command, const std::string& file, FindingsWriter& writer, Counts& counts,
               ExitStatus& status) {
  const auto checked = check_file(file, command.include_folders);
  if (!checked) {
    status = STATUS_FAILED;
    return;
  }
  std::size_t of_file = 0;
  for (const Finding& finding : checked->findings) {
    const FindingKind& kind = kind_of(finding.id);
    if (!is_wanted(command, kind)) continue;
    const Severity severity = severity_in(command, kind);
    ++counts[severity];
    if (severity == Severity::error) status = std::max(status, STATUS_ERRORS);
    if (of_file++ >= command.most_shown) continue;
    writer.write({*checked->source, finding, severity});
    ++counts.shown;
  }
}

std::string counted(std::size_t number, const char* what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

void write_summary(Counts counts) {
  if (counts.all() == 0) return;
  std::string text;
  for (Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    if (counts[severity] == 0) continue;
    text += (text.empty() ? "" : ", ") + counted(counts[severity], severity_name(severity));
  }
  if (counts.shown < counts.all()) text += " (" + std::to_string(counts.shown) + " shown)";
  std::fprintf(stderr, "%s\n", text.c_str());
}

ExitStatus check(const CheckCommand& command) {
  const std::unique_ptr<Sink> out =
      command.quiet ? std::unique_ptr<Sink>(std::make_unique<StringSink>()) : FileSink::to_descriptor(STDOUT_FILENO);
  const auto writer = writer_for(command.format, *out, wants_colour(command.colour));
  ExitStatus status = STATUS_GOOD;
  Counts counts;
  for (const std::string& file : command.files) check_one(command, file, *writer, counts, status);
  writer->finish();
  if (!out->finish()) {
    std::perror("vqc: standard output");
    status = STATUS_FAILED;
  }
  if (!command.quiet) write_summary(counts);
  return status;
}

}  // namespace

void add_check(CLI::App& vqc, ExitStatus& status) {
  auto command = std::make_shared<CheckCommand>();
  CLI::App* check_command = vqc.add_subcommand("check", "Shows every fault of documents, where it stands.");
  check_command->add_option("FILE", command->files, "documents; - is standard input")->required();
  check_command->add_option("-I,--include", command->include_folders, "a folder with headers of the widget set")
      ->type_name("DIR")
      ->allow_extra_args(false);
  check_command->add_option("--format", command->format, "text, json, sarif or github")
      ->check(CLI::IsMember({"text", "json", "sarif", "github"}))
      ->type_name("FORMAT");
  check_command->add_option("--colour,--color", command->colour, "auto, always or never")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->type_name("WHEN");
  check_command->add_flag("--werror", command->warnings_are_errors, "takes warnings for errors");
  add_finding_option(*check_command, "--only", command->only, "shows no warning or note but this");
  add_finding_option(*check_command, "--no", command->silenced, "leaves out a warning or note");
  add_finding_option(*check_command, "--with", command->added, "adds a note that is usually left out");
  check_command->add_option("--max", command->most_shown, "how many findings of each file are shown (100)")
      ->type_name("N");
  check_command->add_flag("-q,--quiet", command->quiet, "shows nothing; the exit status tells");
  check_command->callback([command, &status] { status = check(*command); });
}

}  // namespace vqc
