// vqc explain: what a finding means.

#include <cstdio>
#include <memory>
#include <string>

#include "vqc/tool/commands.h"
#include "vqc/tool/finding_names.h"

namespace vqc {

namespace {

void explain(const FindingKind& kind) {
  std::printf("%s: %s%s\n\n%s\n\n%s", kind.name, severity_name(kind.severity),
              kind.shown ? "" : ", shown only with --with", kind.words, explanation_of(kind).c_str());
}

void list_kinds() {
  for (const FindingKind& kind : finding_kinds()) {
    std::printf("%-26s %-8s %s\n", kind.name, severity_name(kind.severity), kind.words);
  }
}

ExitStatus explain_named(const std::string& name) {
  if (name.empty()) {
    list_kinds();
    return STATUS_GOOD;
  }
  const FindingKind* kind = find_kind(name);
  if (!kind) {
    std::fprintf(stderr, "vqc: %s\n", no_such_kind(name).c_str());
    return STATUS_FAILED;
  }
  explain(*kind);
  return STATUS_GOOD;
}

ExitStatus help(const CLI::App& vqc, const std::string& name) try {
  const std::string text = name.empty() ? vqc.help() : vqc.get_subcommand(name)->help(vqc.get_name());
  std::fputs(text.c_str(), stdout);
  return STATUS_GOOD;
} catch (const CLI::OptionNotFound&) {
  std::fprintf(stderr, "vqc: there is no command '%s'\n", name.c_str());
  return STATUS_FAILED;
}

}  // namespace

void add_explain(CLI::App& vqc, ExitStatus& status) {
  auto name = std::make_shared<std::string>();
  CLI::App* command = vqc.add_subcommand("explain", "Says what a finding means; without an ID, lists all findings.");
  command->add_option("ID", *name, "the name in brackets behind a finding");
  command->callback([name, &status] { status = explain_named(*name); });
}

void add_help(CLI::App& vqc, ExitStatus& status) {
  auto name = std::make_shared<std::string>();
  CLI::App* command = vqc.add_subcommand("help", "Shows how vqc or one of its commands is used.");
  command->add_option("COMMAND", *name, "a command");
  command->callback([name, &vqc, &status] { status = help(vqc, *name); });
}

}  // namespace vqc
