#include "vqc/cmd/application/command_line.h"

#include <cstdio>
#include <cstdlib>

#include "vqc/cmd/application/batch.h"

namespace vqc {

namespace {

constexpr const char* kExplanation =
    R"(VQconfig widget integration tool

-x             display this explanation
-c code_file   generate widget set description code to code_file
               if code_file is not specified, the code name in the save file is used
-C config_file generate widget configuration code to config_file
               if config_file is not specified, the config name in the save file is used
-s stubs_file  generate user-defined integration procedures to stubs_file
               if stubs_file is not specified, the stubs name in the save file is used
   filename    the name of the VQconfig save file to load

               Where the save file has no config/code/stubs file names, and no such names
               are specified, the files will be based round the save file name

               For example: VQconfig -cCs Athena.vqc will generate:
                          Athena_code.c, Athena_config.c, Athena_stubs.c

               If any of -C, -c, -s are specified, the session is non-interactive
               You must specify a save file for any of -C, -c, and -s
)";

[[noreturn]] void usage() {
  std::fprintf(stderr, "%s [-x] [ -c [code_file] ] [ -s [stubs_file] ] [ -C [config_file] ] [ filename ]\n",
               "VQconfig");
  std::exit(-1);
}

[[noreturn]] void explain() {
  std::fputs(kExplanation, stderr);
  std::exit(0);
}

/// The words of the command line, from left to right.
class CommandLine {
 public:
  CommandLine(int argc, char** argv) : next_(argv + (argc > 0)), end_(argv + argc) {}

  void parse() {
    while (next_ != end_ && **next_ == '-') {
      for (const char* letter = *next_++ + 1; *letter; ++letter) option(*letter, letter[1] == '\0');
    }
    if (next_ != end_) batch_save_file = *next_;
  }

 private:
  void option(char letter, bool last) {
    switch (letter) {
      case 'C':
        return output(batch_config, batch_config_file, last);
      case 'c':
        return output(batch_code, batch_code_file, last);
      case 's':
        return output(batch_stubs, batch_stubs_file, last);
      case 'j':
        batch_compatibility.java = true;
        return;
      case 'm':
        batch_compatibility.mfc = true;
        return;
      case 'x':
        explain();
      default:
        usage();
    }
  }

  /// The last letter of a word takes the next word, whatever it looks like. The last word of all is the save file.
  void output(bool& wanted, const char*& name, bool takes_word) {
    wanted = true;
    if (!takes_word) return;
    if (next_ == end_) usage();
    const char* word = *next_++;
    (next_ == end_ ? batch_save_file : name) = word;
  }

  char** next_;
  char** end_;
};

}  // namespace

void parse_command_line(int argc, char** argv) {
  CommandLine(argc, argv).parse();
  batch_save = batch_save_file != nullptr;
  interactive = !batch_config && !batch_code && !batch_stubs;
}

}  // namespace vqc
