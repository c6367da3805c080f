// The stubs file: a body to fill in for each procedure.

#include "vqc/cmd/generate/stubs_file.h"

#include <string>

#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/parse_stubs.h"
#include "vqc/cmd/generate/stub_kinds.h"

namespace vqc {

namespace {

void write_stub(Sink& out, const Stub& stub) {
  const std::string mark = vqc_stub_comment(stub.name.view());
  emit<"/*\n@MARK@\n*/\n\n">(out, bind<"MARK">(printed(Text(std::string_view(mark)))));
  write_stub_head(out, stub.kind, stub.name);
  out.write(stub.kind.body);
}

/// Writes the stubs that no earlier stubs file has brought along.
void write_stubs(Run& run, std::span<const Stub> stubs, std::string_view title) {
  const Family* family = nullptr;
  for (const Stub& stub : stubs) {
    if (vqc_check_stub_space(run, stub.name)) continue;
    if (family != &stub.family) Heading(run, stub.family, title).show();
    family = &stub.family;
    write_stub(run.out, stub);
  }
  if (family) run.out.write("\n");
}

void write_prelude_end(Run& run) { emit<"\n@MARK@\n">(run.out, bind<"MARK">(ours(vqc_stub_prelude_end()))); }

}  // namespace

void write_stubs_file(Run& run) {
  vqc_init_stubs_file(run, nullptr, write_code_includes, write_prelude_end);
  write_stub_functions(run);
  write_popup_functions(run);
}

void write_stub_functions(Run& run) { write_stubs(run, function_stubs(run.families), "Stub functions"); }

void write_popup_functions(Run& run) {
  write_stubs(run, popup_stubs(run.document, run.families), "Resource dialog popup functions");
}

}  // namespace vqc
