#ifndef GENERATE_GENERATE_SUPPORT_H
#define GENERATE_GENERATE_SUPPORT_H

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "support/files.h"
#include "support/model.h"
#include "vqc/cmd/generate/generate.h"
#include "vqc/cmd/generate/walk.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/savefile/parse.h"

/// The two switches that change what is generated.
struct Switches {
  bool comment = false;
  bool verbose = false;
};
inline constexpr Switches all_switches[] = {{false, false}, {true, false}, {false, true}, {true, true}};

inline std::ostream& operator<<(std::ostream& out, const Switches& switches) {
  return out << "comment " << (switches.comment ? "on" : "off") << ", verbose " << (switches.verbose ? "on" : "off");
}

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

/// Writes a file of these sections.
inline void write_sections(const std::string& path, std::initializer_list<Section> sections, Switches switches) {
  const auto out = openfile(path.c_str(), "w");
  ASSERT_TRUE(out);
  Run run{*out, switches.comment, switches.verbose};
  for (Section section : sections) section(run);
  EXPECT_EQ(1, closefile(*out));
}

/// A test that generates in a working directory of its own.
class GenerateTest : public ModelTest {
 protected:
  GenerateTest() { std::filesystem::current_path(folder.path()); }
  ~GenerateTest() override { std::filesystem::current_path(before_); }

  /// Reads a document, given without its first word.
  void document(std::string_view items) const { load(folder.with("document.vqc", "VQconfig\n" + std::string(items))); }

  static void load(const std::string& path) {
    Text name(path.c_str());
    ASSERT_EQ(1, parseit(&name, 1));
    ASSERT_EQ(0, parse_errors) << "a syntax error in " << path;
  }

  /// Takes from every family what it has from its making.
  static void without_predefined() {
    for (Family& family : family_pool.list) {
      for (const char* page : {"display", "margins", "settings", "callbacks", "misc"}) pagelist_delete(&family, page);
      for (const char* popup : {"vq_font_dialog_create", "vq_colour_dialog_create", "vq_pixmap_dialog_create",
                                "vq_string_dialog_create", "vq_fsb_dialog_create"}) {
        popuplist_delete(&family, popup);
      }
    }
  }

  /// A document whose families have only what it says.
  void bare_document(std::string_view items) const {
    document(items);
    without_predefined();
  }

  /// What a section writes once those before it have run.
  std::string written_by(Section section, Switches switches = {}, std::initializer_list<Section> before = {}) const {
    write_sections(folder / "before", before, switches);
    write_sections(folder / "section", {section}, switches);
    return read_file(folder / "section");
  }

  /// Expects of a section what a text with margins says, for every setting of the switches.
  void expect_each(std::string_view marked, Section section, std::initializer_list<Section> before = {}) const {
    for (const Switches switches : all_switches) {
      EXPECT_EQ(for_switches(marked, switches), written_by(section, switches, before)) << switches;
    }
  }

  /// The whole file of that kind.
  std::string file(int kind, Switches switches = {}) const {
    application_resources.comment_code = switches.comment;
    application_resources.verbose_code = switches.verbose;
    EXPECT_TRUE(batch_generate((folder / "generated.c").c_str(), kind));
    return read_file(folder / "generated.c");
  }

  TemporaryFolder folder;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

#endif
