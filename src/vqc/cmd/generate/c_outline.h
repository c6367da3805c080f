#ifndef VQC_CMD_GENERATE_C_OUTLINE_H
#define VQC_CMD_GENERATE_C_OUTLINE_H

#include <functional>
#include <string_view>

#include "vqc/cmd/generate/c_conditionals.h"

namespace vqc::c {

/// A function with its body. All are numbers of tokens.
struct Function {
  std::size_t name;
  std::size_t body;   // its '{'
  TokenRange tokens;  // from the first of its head up to the '}'
  bool is_apart;      // no other function has a part of it, and nothing before its head may be a macro of its own
};

/// A declaration of a name that is looked for, outside functions.
struct Declaration {
  std::size_t name;
  TokenRange tokens;  // up to the ';'
};

/// What is sought in a text.
struct Sought {
  std::function<bool(std::string_view)> is_procedure;  // the names that matter
  std::vector<std::size_t> borders = {};               // comments before which no declaration begins
  std::function<bool(std::size_t)> is_awake = {};      // conditionals "#if 0" that are taken for "#if 1"
};

struct Outline {
  std::vector<Function> functions;        // in the order in which they end
  std::vector<Declaration> declarations;  // in the order of the text
  std::vector<TokenRange> dead;           // what an "#if 0" leaves out
  std::optional<Fault> fault;             // a bracket that is never closed, or a '}' too many
};

/// Finds the functions of a text, in all branches of its conditionals. Behind a conditional the text goes on as behind
/// the first branch with anything in it.
Outline outline(const Code& code, const Conditionals& conditionals, const Sought& sought);

}  // namespace vqc::c

#endif
