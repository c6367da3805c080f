// vqc: tells the whole truth about a document, and generates from it in builds. It knows nothing of X.

#include <clocale>
#include <cstdio>
#include <exception>
#include <string>

#include <CLI/CLI.hpp>

#include "vqc/tool/commands.h"

using namespace vqc;

namespace {

/// A usage error ends with the status for what could not be done; help and the version are no errors.
int end_parsing(const CLI::App& program, const CLI::ParseError& error) {
  return program.exit(error) == 0 ? STATUS_GOOD : STATUS_FAILED;
}

std::string usage_error(const CLI::App* /*program*/, const CLI::Error& error) {
  return std::string("vqc: ") + error.what() + "\nTry 'vqc help'.\n";
}

int run(int argc, char** argv) {
  CLI::App program("Checks descriptions of widget sets, and generates C from them.", "vqc");
  program.set_version_flag("--version", "vqc " VQC_VERSION);
  program.require_subcommand(1);
  program.failure_message(usage_error);
  ExitStatus status = STATUS_GOOD;
  add_check(program, status);
  add_generate(program, status);
  add_explain(program, status);
  add_help(program, status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return end_parsing(program, error);
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) try {
  std::setlocale(LC_CTYPE, "");  // how wide the terminal's characters are
  return run(argc, argv);
} catch (const std::exception& error) {
  std::fprintf(stderr, "vqc: %s\n", error.what());
  return STATUS_FAILED;
}
