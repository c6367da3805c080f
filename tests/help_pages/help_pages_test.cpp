#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "help_pages/dialog_labels.h"
#include "help_pages/html_page.h"
#include "support/files.h"

namespace {

using Complaints = std::vector<std::string>;
using Pages = std::map<std::string, HtmlPage>;

const std::string root = SOURCE_ROOT;
const std::string dialogs = root + "/src/vqc/cmd/editors";
const std::string resources = root + "/resources/X11/";

/// A language that has help pages: the name of its locale folder, and where its texts are below resources/X11.
struct Language {
  std::string folder, texts;
};

std::ostream& operator<<(std::ostream& out, const Language& language) { return out << language.folder; }

Pages pages_in(const Language& language) {
  Pages pages;
  for (const auto& entry : std::filesystem::directory_iterator(root + "/resources/help/" + language.folder + "/help")) {
    pages[entry.path().filename()] = read_html(read_file(entry.path()));
  }
  return pages;
}

/// Labels that are the same in every language stand with the layout.
Labels labels_of(const Language& language) {
  Labels labels = labels_in(read_file(resources + language.texts));
  labels.merge(labels_in(read_file(resources + "app-defaults/VQconfig-layout")));
  return labels;
}

/// The topics that the sources of the editors name.
std::set<std::string> topics_in_sources() {
  static const std::regex topic("\"(vqc_[a-z_]+)\"");
  std::set<std::string> topics;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root + "/src/vqc/cmd/editors")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string source = read_file(entry.path());
    for (std::sregex_iterator match(source.begin(), source.end(), topic), none; match != none; ++match) {
      topics.insert((*match)[1]);
    }
  }
  return topics;
}

/// Why a link leads nowhere, or "".
std::string dead_link(const Pages& pages, const std::string& from, const std::string& link) {
  const std::size_t sharp = link.find('#');
  const std::string file = link.substr(0, sharp);
  const auto page = pages.find(file.empty() ? from : file);
  if (page == pages.end()) return from + " leads to " + link + ", and there is no such page";
  if (sharp == std::string::npos || page->second.anchors.contains(link.substr(sharp + 1))) return "";
  return from + " leads to " + link + ", and there is no such place on the page";
}

Complaints dead_links(const Pages& pages) {
  Complaints complaints;
  for (const auto& [file, page] : pages) {
    for (const std::string& link : page.links) {
      if (std::string complaint = dead_link(pages, file, link); !complaint.empty()) complaints.push_back(complaint);
    }
  }
  return complaints;
}

class HelpPages : public testing::TestWithParam<Language> {
 protected:
  const Pages pages = pages_in(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpPages,
                         testing::Values(Language{"C", "app-defaults/VQconfig"},
                                         Language{"de", "de/app-defaults/VQconfig"}),
                         [](const auto& language) { return language.param.folder; });

TEST_P(HelpPages, AreThereForEveryTopic) {
  std::set<std::string> topics = topics_in_sources();
  EXPECT_TRUE(topics.contains("vqc_family") && topics.contains("vqc_gen_options")) << "where are the topics?";
  topics.insert({"entry", "keyboard", "tutorial"});
  for (const std::string& topic : topics) EXPECT_TRUE(pages.contains(topic + ".html")) << topic;
}

TEST_P(HelpPages, AreAboutTopicsThatAreThere) {
  const std::set<std::string> topics = topics_in_sources();
  for (const auto& [file, page] : pages) {
    if (!file.starts_with("vqc_")) continue;
    EXPECT_TRUE(topics.contains(file.substr(0, file.find('.')))) << file;
  }
}

TEST_P(HelpPages, HaveEveryFieldAndButtonOfTheirDialog) {
  const TextsByTopic texts = texts_by_topic(dialogs, labels_of(GetParam()));
  for (const std::string& topic : topics_in_sources()) {
    ASSERT_TRUE(texts.contains(topic) && !texts.at(topic).empty()) << "nothing to read in the dialog of " << topic;
    ASSERT_TRUE(pages.contains(topic + ".html")) << topic;
    const HtmlPage& page = pages.at(topic + ".html");
    for (const std::string& text : texts.at(topic)) EXPECT_TRUE(page.bold.contains(text)) << topic << ": " << text;
  }
}

TEST_P(HelpPages, ExplainEveryError) {
  const std::set<std::string> errors = errors_in(read_file(resources + GetParam().texts));
  EXPECT_EQ(14U, errors.size());
  const HtmlPage& page = pages.at("vqc_error.html");
  for (const std::string& error : errors) EXPECT_TRUE(page.emphasised.contains(error)) << error;
}

TEST_P(HelpPages, AreWellFormed) {
  for (const auto& [file, page] : pages) EXPECT_EQ(Complaints{}, page.faults) << file;
}

TEST_P(HelpPages, HaveTitlesOfTheirOwn) {
  std::set<std::string> titles;
  for (const auto& [file, page] : pages) {
    EXPECT_NE("", page.title) << file;
    EXPECT_TRUE(titles.insert(page.title).second) << file << ": " << page.title;
  }
}

TEST_P(HelpPages, HaveNoDeadLinks) { EXPECT_EQ(Complaints{}, dead_links(pages)); }

TEST_P(HelpPages, AreAllInTheContentsAndLeadBackThere) {
  const std::vector<std::string>& contents = pages.at("entry.html").links;
  for (const auto& [file, page] : pages) {
    if (file == "entry.html") continue;
    EXPECT_NE(contents.end(), std::ranges::find(contents, file)) << file;
    EXPECT_EQ("entry.html", page.links.back()) << file;
  }
}

TEST_P(HelpPages, HaveTheOutlineOfTheEnglishOnes) {
  const Pages english = pages_in({"C", ""});
  ASSERT_EQ(english.size(), pages.size());
  for (const auto& [file, page] : english) {
    ASSERT_TRUE(pages.contains(file)) << file;
    EXPECT_EQ(page.outline, pages.at(file).outline) << file;
    EXPECT_EQ(page.anchors, pages.at(file).anchors) << file;
  }
}

std::string page_with(const std::string& body) {
  return std::string(page_start) + "en\">\n<body>\n" + body + "\n</body>\n</html>\n";
}

Complaints faults_of(const std::string& body) { return read_html(page_with(body)).faults; }

TEST(HtmlPage, HasTitleLinksAndLabels) {
  const HtmlPage page = read_html(page_with(
      "<h2><a name=\"x\">X</a></h2>\n<p>See <b>Save\nAs...</b> &amp; <a href=\"y.html#z\">Y</a></p><pre>a &lt; b</pre>"));
  EXPECT_EQ(Complaints{}, page.faults);
  EXPECT_EQ(std::set<std::string>{"x"}, page.anchors);
  EXPECT_EQ(std::vector<std::string>{"y.html#z"}, page.links);
  EXPECT_EQ(std::set<std::string>{"Save As..."}, page.bold);
  EXPECT_EQ(std::vector<std::string>{"a < b"}, page.examples);
  EXPECT_EQ((std::vector<std::string>{"html", "body", "h2", "p", "pre"}), page.outline);
}

TEST(HtmlPage, ClosesWhatItOpens) {
  EXPECT_EQ((Complaints{"</p> closes nothing", "</body> closes nothing", "</html> closes nothing",
                        "<html> is not closed", "<body> is not closed", "<p> is not closed", "<b> is not closed"}),
            faults_of("<p><b>x</p>"));
  EXPECT_EQ(Complaints{"</b> closes nothing"}, faults_of("<p>x</b></p>"));
}

TEST(HtmlPage, HasItsElementsInTheirPlaces) {
  EXPECT_EQ(Complaints{"<li> stands in <body>"}, faults_of("<li>x</li>"));
  EXPECT_EQ(Complaints{"<td> stands in <table>"}, faults_of("<table><td>x</td></table>"));
  EXPECT_EQ(Complaints{"<pre> stands in a paragraph"}, faults_of("<p><pre>x</pre></p>"));
  EXPECT_EQ(Complaints{"<font> is not among the elements of help pages"}, faults_of("<font>x</font>"));
}

TEST(HtmlPage, IsAsciiWithEntities) {
  EXPECT_EQ(std::set<std::string>{"L\xc3\xb6schen"}, read_html(page_with("<p><b>L&ouml;schen</b></p>")).bold);
  EXPECT_EQ(Complaints{"not a known entity: & b"}, faults_of("<p>a & b</p>"));
  EXPECT_EQ(Complaints{"not a known entity: &mdash; b"}, faults_of("<p>a &mdash; b</p>"));
  EXPECT_EQ(Complaints{"a character is not ASCII"}, faults_of("<p>\xe4</p>"));
  EXPECT_EQ(Complaints{"a tag cannot be read: < b</p>\n</body>\n</ht"}, faults_of("<p>a < b</p>"));
}

TEST(HtmlPage, BeginsAsOne) {
  EXPECT_EQ(Complaints{"does not begin as an HTML page"}, read_html("<!DOCTYPE html>\n<html>\n</html>\n").faults);
}

TEST(DeadLink, IsOneToNoPageOrNoPlace) {
  const Pages pages = {{"a.html", read_html(page_with("<h2><a name=\"x\">X</a></h2>"))}, {"b.html", {}}};
  EXPECT_EQ("", dead_link(pages, "b.html", "a.html"));
  EXPECT_EQ("", dead_link(pages, "b.html", "a.html#x"));
  EXPECT_EQ("", dead_link(pages, "a.html", "#x"));
  EXPECT_NE("", dead_link(pages, "b.html", "c.html"));
  EXPECT_NE("", dead_link(pages, "b.html", "a.html#y"));
  EXPECT_NE("", dead_link(pages, "b.html", "#x"));
}

const char table[] = R"(
const WidgetRow rows[] = {
    {"shell",   XmCreateDialogShell, nullptr,  on_close(hide), SHELL},
    {"menu_b",  XmCreatePushButton,  "shell"},
    {"file",    create_file_box,     "shell",
     on_answer(open, hide, "vqc_file"), FILE},
    {"form",    XmCreateForm,        "shell"},
    {"field_l", XmCreateLabel,       "form"},
    {"help_b",  XmCreatePushButton,  "form",   on_press(vqc_do_help, "vqc_form")},
};
const WidgetLink links[] = {{"form", XmNcancelButton, "help_b"}};
const ListPage page = {.name = "list",
                       .parent = "shell",
                       .topic = "vqc_list",
                       .ok = add,
                       .quit = hide,
                       .form = "list_form"};
)";

const char texts[] =
    "! Names\n*XmSelectionBox.okLabelString: Edit\n*XmSelectionBox.applyLabelString: Add\n*list_selection.okLabelString: Add\n"
    "*list_selection.listLabelString: Names\n*list_quitb.labelString: Close\n*field_l.labelString:  Type of it\n"
    "*help_b.labelString: Help\n*menu_b.labelString: View\nVQconfig.title: %s\n";

TEST(DialogTable, HasRowsWithTheirTopics) {
  const std::vector<DialogRow> rows = rows_of(table);
  ASSERT_LE(6U, rows.size());
  EXPECT_EQ("file", rows[2].name);
  EXPECT_EQ("create_file_box", rows[2].creator);
  EXPECT_EQ("shell", rows[2].parent);
  EXPECT_EQ("vqc_file", rows[2].topic);
  EXPECT_EQ("", rows[3].topic);
  EXPECT_EQ((std::set<std::string>{"vqc_file", "vqc_form", "vqc_list"}), topics_of(rows));
}

TEST(DialogTable, HasTheRowsOfTheFramesOfLists) {
  const std::vector<DialogRow> rows = rows_of(table);
  std::set<std::string> names;
  for (const DialogRow& row : rows) {
    if (row.parent == "list_selection") names.insert(row.name);
  }
  EXPECT_EQ((std::set<std::string>{"list_form", "Apply", "list_quitb"}), names);
  EXPECT_EQ("vqc_list", topic_around(rows, "list_form"));
}

TEST(DialogTable, HasATogglePerStopClass) {
  const std::vector<DialogRow> rows = rows_of("{\"stop_a\",  \"XmA\", 1},\n    {\"stop_b\", \"XmB\", 8},\n");
  ASSERT_EQ(2U, rows.size());
  EXPECT_EQ("stop_b", rows[1].name);
  EXPECT_EQ("XmCreateToggleButton", rows[1].creator);
}

TEST(DialogTable, GivesEachTopicWhatItsBoxShows) {
  TextsByTopic found;
  add_texts("entity", rows_of(table), labels_in(texts), found);
  EXPECT_EQ((TextsByTopic{{"vqc_family", {"View"}},
                          {"vqc_file", {}},
                          {"vqc_form", {"Help", "Type of it"}},
                          {"vqc_list", {"Add", "Close", "Names"}}}),
            found);
}

}  // namespace
