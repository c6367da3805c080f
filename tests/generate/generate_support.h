#ifndef GENERATE_GENERATE_SUPPORT_H
#define GENERATE_GENERATE_SUPPORT_H

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "support/files.h"
#include "support/model.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/walk.h"
#include "vqc/cmd/savefile/load.h"

using namespace vqc;

inline constexpr Switches all_switches[] = {{false, false}, {true, false}, {false, true}, {true, true}};

namespace vqc {

inline std::ostream& operator<<(std::ostream& out, const Switches& switches) {
  return out << "comment " << (switches.comment ? "on" : "off") << ", verbose " << (switches.verbose ? "on" : "off");
}

}  // namespace vqc

/// Whether a line with this mark in its margin is there: always, only with the switch on, or only with it off.
inline bool mark_allows(char mark, char on, bool is_on) {
  if (mark != ' ' && mark != '-' && mark != on) throw std::invalid_argument("not a mark of the margin");
  return mark == ' ' || (mark == on) == is_on;
}

/// Expected text for one setting of the switches, from a text that says what each of them changes. Every line has a
/// margin of three characters: "c" (with comments), "-" (without) or a blank; "v" (with repeats), "-" or a blank; "|".
inline std::string for_switches(std::string_view marked, Switches switches) {
  std::string text;
  while (!marked.empty()) {
    const std::size_t end = marked.find('\n');
    const std::string_view line = marked.substr(0, end);
    if (end == std::string_view::npos || line.size() < 3 || line[2] != '|') {
      throw std::invalid_argument("no margin: " + std::string(line));
    }
    if (mark_allows(line[0], 'c', switches.comment) && mark_allows(line[1], 'v', switches.verbose)) {
      text.append(line.substr(3)).append("\n");
    }
    marked.remove_prefix(end + 1);
  }
  return text;
}

using Section = void (*)(Run&);

/// A test that generates from a document of its own, in a working directory of its own.
class GenerateTest : public testing::Test {
 protected:
  GenerateTest() { std::filesystem::current_path(folder.path()); }
  ~GenerateTest() override { std::filesystem::current_path(before_); }

  /// Makes the document what a text says, which is given without its first word.
  void describe(std::string_view items) { read(Source::from_text("VQconfig\n" + std::string(items))); }

  void read(const std::shared_ptr<const Source>& source) {
    ASSERT_TRUE(source);
    document.clear();
    Diagnostics findings;
    ASSERT_TRUE(load(source, document, findings).has_header);
    ASSERT_TRUE(findings.empty()) << words_of(findings.findings().front()) << " in " << source->name();
  }

  /// Takes from every family what it has from its making.
  void without_predefined() {
    for (Family& family : document.families) {
      for (const Text page : predefined_pages) remove(document, family.pages, page, document.pages);
      for (const auto& popup : predefined_popups) remove(document, family.popups, popup.name, document.popups);
    }
  }

  /// A document whose families have only what it says.
  void describe_bare(std::string_view items) {
    describe(items);
    without_predefined();
  }

  /// Lets the family of that name take no part.
  void leave_out(const std::string& family) { left_out_.insert(family); }

  /// The families that take part.
  Families families() const {
    Families families = all_families(document);
    std::erase_if(families, [&](const Family* family) { return left_out_.contains(std::string(family->name.view())); });
    return families;
  }

  /// What a section writes once those before it have run.
  std::string written_by(Section section, Switches switches = {}, std::initializer_list<Section> before = {}) const {
    StringSink out;
    const Families taking_part = families();
    ::Run run{document, taking_part, switches, out};
    for (Section each : before) each(run);
    EXPECT_TRUE(out.finish());
    const std::size_t written_before = out.text().size();
    section(run);
    EXPECT_TRUE(out.finish());
    return out.text().substr(written_before);
  }

  /// What `look` gives for a run in which one section has been written.
  template <class Look>
  auto after(Section section, Switches switches, Look look) const {
    StringSink out;
    const Families taking_part = families();
    ::Run run{document, taking_part, switches, out};
    section(run);
    return look(run);
  }

  /// Expects of a section what a text with margins says, for every setting of the switches.
  void expect_each(std::string_view marked, Section section, std::initializer_list<Section> before = {}) const {
    for (const Switches switches : all_switches) {
      EXPECT_EQ(for_switches(marked, switches), written_by(section, switches, before)) << switches;
    }
  }

  /// The whole file of that kind.
  std::string file(int kind, Switches switches = {}) const {
    StringSink out;
    generate(document, families(), kind, switches, out);
    EXPECT_TRUE(out.finish());
    return out.text();
  }

  TemporaryFolder folder;
  Document document;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
  std::set<std::string> left_out_;
};

#endif
