// vqc generate: checks a document and makes its files, all of them or none.

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "libkel/output_files.h"
#include "libkel/sink.h"
#include "libkel/source.h"
#include "libkel/unified_diff.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/tool/checked_document.h"
#include "vqc/tool/commands.h"
#include "vqc/tool/counted.h"
#include "vqc/tool/generated_files.h"
#include "vqc/tool/progress.h"
#include "vqc/tool/show_findings.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

struct GenerateCommand {
  GenerateRequest request;
  std::vector<std::string> include_folders;
  bool force = false;
  bool verify = false;
  bool dry_run = false;
};

/// Ends what goes to standard output.
void finish(Sink& out) {
  if (!out.finish()) throw std::system_error(errno, std::generic_category(), "standard output");
}

void show(const CheckedDocument& checked) {
  const auto out = FileSink::to_descriptor(STDOUT_FILENO);
  FindingCounts counts;
  show_findings(checked, {}, *text_writer(*out, wants_colour("auto")), counts);
  finish(*out);
  write_summary(counts);
}

/// Shows what a person should know of a stubs file. False when nothing may be written.
bool show_messages(const std::optional<std::string>& stubs_file, const KeptStubs& stubs) {
  const auto out = FileSink::to_descriptor(STDOUT_FILENO);
  for (const StubsMessage& message : stubs.messages) {
    out->write(*stubs_file + ":" + std::to_string(message.line) + ": " + (message.blocks ? "error: " : "warning: "));
    out->write(message.words + "\n");
  }
  finish(*out);
  return std::ranges::none_of(stubs.messages, &StubsMessage::blocks);
}

/// Of each file, whether it was written or would be.
using Changes = std::vector<bool>;

/// What is no file holds no text that could differ.
bool differs(const OutputFile& file) {
  std::error_code none;
  return !fs::is_other(file.path, none) && would_change(file);
}

/// Shows how files would change.
Changes show_differences(const std::vector<OutputFile>& files) {
  const auto out = FileSink::to_descriptor(STDOUT_FILENO);
  Changes changes;
  for (const OutputFile& file : files) {
    changes.push_back(differs(file));
    if (!changes.back()) continue;
    const auto old = Source::read(file.path.c_str());
    out->write(unified_diff(file.path, old ? std::optional(old->text()) : std::nullopt, file.text));
  }
  finish(*out);
  return changes;
}

/// Names the files that would be written.
Changes announce(const std::vector<OutputFile>& files) {
  Changes changes;
  for (const OutputFile& file : files) {
    changes.push_back(would_change(file));
    if (changes.back()) std::fprintf(stderr, "would write %s\n", file.path.c_str());
  }
  return changes;
}

Changes carry_out(const GenerateCommand& command, const std::vector<OutputFile>& files, Progress& progress) {
  if (command.verify) return show_differences(files);
  if (command.dry_run) return announce(files);
  progress.show("writing ...");
  Changes changes = put_in_place(files);
  progress.show("");
  return changes;
}

/// Says what has become of the files; a depfile is none of them.
void summarise(const GenerateCommand& command, const KeptStubs& stubs, Changes changes) {
  if (command.request.depfile) changes.pop_back();
  std::string text = counted(changes.size(), "file");
  const auto unchanged = std::ranges::count(changes, false);
  if (unchanged > 0) add_part(text, std::to_string(unchanged) + " unchanged");
  if (stubs.bodies_kept > 0) add_part(text, counted(stubs.bodies_kept, "body", "bodies") + " kept");
  if (stubs.new_stubs > 0) add_part(text, counted(stubs.new_stubs, "new stub"));
  if (stubs.retired > 0) add_part(text, counted(stubs.retired, "stub") + " retired");
  if (stubs.revived > 0) add_part(text, counted(stubs.revived, "stub") + " revived");
  std::fprintf(stderr, "%s\n", text.c_str());
}

/// Reads a document with errors as vqconfig does: up to the first of them. False when not even its beginning can be
/// read.
bool read_to_first_error(const CheckedDocument& checked, Document& document) {
  Diagnostics known;
  return load(checked.source, document, known).has_header;
}

ExitStatus generate(const GenerateCommand& command) {
  Progress progress(STDERR_FILENO);
  const OutputPaths paths = output_paths(command.request);
  progress.show("checking ...");
  const auto checked = check_file(command.request.document, command.include_folders);
  progress.show("");
  if (!checked) return STATUS_FAILED;
  show(*checked);
  const bool is_broken = has_errors(checked->findings);
  Document broken;
  if (is_broken && !(command.force && read_to_first_error(*checked, broken))) return STATUS_ERRORS;
  progress.show("generating ...");
  const GeneratedFiles made = generate_files(command.request, paths, is_broken ? broken : checked->document);
  progress.show("");
  if (!show_messages(paths.stubs, made.stubs)) return STATUS_ERRORS;
  const Changes changes = carry_out(command, made.files, progress);
  summarise(command, made.stubs, changes);
  const bool outdated = command.verify && std::ranges::find(changes, true) != changes.end();
  return is_broken || outdated ? STATUS_ERRORS : STATUS_GOOD;
}

/// Standard input gives no names to the files.
void expect_names(const GenerateRequest& request) {
  const bool named = request.config && request.code && (request.stubs || request.without_stubs);
  if (request.document == "-" && request.folder.empty() && !named) {
    throw CLI::RequiredError("- as document: --output, or the names of all files,");
  }
}

void add_file_options(CLI::App& vqc_generate, GenerateRequest& request) {
  vqc_generate.add_option("-o,--output", request.folder, "the folder of files that are given no name")
      ->type_name("DIR");
  vqc_generate.add_option("--config", request.config, "the name of the config file")->type_name("F");
  vqc_generate.add_option("--code", request.code, "the name of the code file")->type_name("F");
  auto* stubs = vqc_generate.add_option("--stubs", request.stubs, "the name of the stubs file")->type_name("F");
  vqc_generate.add_flag("--no-stubs", request.without_stubs, "makes no stubs file")->excludes(stubs);
  vqc_generate.add_option("--depfile", request.depfile, "a rule for make and ninja: what the files are made from")
      ->type_name("F");
}

}  // namespace

void add_generate(CLI::App& vqc, ExitStatus& status) {
  auto command = std::make_shared<GenerateCommand>();
  GenerateRequest& request = command->request;
  CLI::App* generator =
      vqc.add_subcommand("generate", "Checks a document, and makes its C files: all of them or none.");
  generator->add_option("FILE", request.document, "the document; - is standard input")->required();
  add_file_options(*generator, request);
  generator->add_option("-I,--include", command->include_folders, "a folder with headers, for the check")
      ->type_name("DIR")
      ->allow_extra_args(false);
  generator->add_option("--families", request.families, "the families that take part (all)")
      ->type_name("A,B")
      ->delimiter(',')
      ->allow_extra_args(false);
  generator->add_flag("--comments", request.switches.comment, "writes titles and banners");
  generator->add_flag("--verbose-code", request.switches.verbose, "writes repeats of shared records, commented out");
  generator->add_flag("--force", command->force, "goes on after errors, with what comes before the first");
  generator->add_flag("--verify", command->verify,
                      "writes nothing; shows what would change, with status 1 if anything");
  generator->add_flag("-n,--dry-run", command->dry_run, "writes nothing; says what would be written");
  generator->callback([command, &status] {
    expect_names(command->request);
    status = generate(*command);
  });
}

}  // namespace vqc
