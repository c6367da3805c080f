// vqc check: shows every fault of documents.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "libkel/sink.h"
#include "vqc/tool/checked_document.h"
#include "vqc/tool/commands.h"
#include "vqc/tool/finding_names.h"
#include "vqc/tool/findings_writer.h"
#include "vqc/tool/show_findings.h"

namespace vqc {

namespace {

struct CheckCommand {
  std::vector<std::string> files;
  std::vector<std::string> include_folders;
  std::string format = "text";
  std::string colour = "auto";
  FindingChoice choice;
  bool quiet = false;
};

ExitStatus check(const CheckCommand& command) {
  const std::unique_ptr<Sink> out =
      command.quiet ? std::unique_ptr<Sink>(std::make_unique<StringSink>()) : FileSink::to_descriptor(STDOUT_FILENO);
  const auto writer = writer_for(command.format, *out, wants_colour(command.colour));
  ExitStatus status = STATUS_GOOD;
  FindingCounts counts;
  for (const std::string& file : command.files) {
    const auto checked = check_file(file, command.include_folders);
    checked ? show_findings(*checked, command.choice, *writer, counts) : void(status = STATUS_FAILED);
  }
  if (counts[Severity::error] > 0) status = std::max(status, STATUS_ERRORS);
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
  check_command->add_flag("--werror", command->choice.warnings_are_errors, "takes warnings for errors");
  add_finding_option(*check_command, "--only", command->choice.only, "shows no warning or note but this");
  add_finding_option(*check_command, "--no", command->choice.silenced, "leaves out a warning or note");
  add_finding_option(*check_command, "--with", command->choice.added, "adds a note that is usually left out");
  check_command->add_option("--max", command->choice.most_shown, "how many findings of each file are shown (100)")
      ->type_name("N");
  check_command->add_flag("-q,--quiet", command->quiet, "shows nothing; the exit status tells");
  check_command->callback([command, &status] { status = check(*command); });
}

}  // namespace vqc
