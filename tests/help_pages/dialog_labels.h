#ifndef HELP_PAGES_DIALOG_LABELS_H
#define HELP_PAGES_DIALOG_LABELS_H

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "support/files.h"

// What the user reads in each dialog: the tables of the dialogs say which widgets there are and which topic their Help
// button has, the resource file says what is written on them.

/// A row of a dialog's table, as far as help is concerned.
struct DialogRow {
  std::string name, creator, parent;
  std::string topic;  // of the dialogs' own that its Help callback names, or ""
};

inline std::vector<DialogRow> rows_of(const std::string& source) {
  static const std::regex row(R"re(\{"([^"]+)",\s*((?!XmN)\w+),\s*(?:"([^"]+)"|nullptr))re");
  static const std::regex topic(R"re(vqc_do_help, "(vqc_\w+)")re");
  const std::string table = source.substr(0, source.find("const WidgetLink links"));
  std::vector<DialogRow> rows;
  for (std::sregex_iterator match(table.begin(), table.end(), row), none; match != none;) {
    DialogRow found{(*match)[1], (*match)[2], (*match)[3], ""};
    const auto begin = (*match)[0].second;
    const auto end = ++match == none ? table.end() : (*match)[0].first;
    if (std::smatch named; std::regex_search(begin, end, named, topic)) found.topic = named[1];
    rows.push_back(found);
  }
  return rows;
}

/// The topics that a dialog's table names.
inline std::set<std::string> topics_of(const std::vector<DialogRow>& rows) {
  std::set<std::string> topics;
  for (const DialogRow& row : rows) {
    if (!row.topic.empty()) topics.insert(row.topic);
  }
  return topics;
}

/// The topic of the nearest box around the widget that has one, by itself or through its Help button; or "".
inline std::string topic_around(const std::vector<DialogRow>& rows, std::string name) {
  while (!name.empty()) {
    std::string parent;
    for (const DialogRow& row : rows) {
      if (row.parent == name && !row.topic.empty() && row.creator == "XmCreatePushButton") return row.topic;
      if (row.name != name) continue;
      if (!row.topic.empty()) return row.topic;
      parent = row.parent;
    }
    name = parent;
  }
  return "";
}

/// Texts by widget or class and resource: "family_newb.labelString".
using Labels = std::map<std::string, std::string>;

inline Labels labels_in(const std::string& resource_file) {
  static const std::regex line(R"re((?:^|\n)\*(\w+\.\w+):[ \t]*([^\n]*))re");
  Labels labels;
  for (std::sregex_iterator match(resource_file.begin(), resource_file.end(), line), none; match != none; ++match) {
    labels[(*match)[1]] = (*match)[2];
  }
  return labels;
}

/// What a page calls a message: its first line, with dots for what is filled in.
inline std::string headline(const std::string& message) {
  const std::string line = message.substr(0, message.find("\\n"));
  return std::regex_replace(std::regex_replace(line, std::regex("[.:]$"), ""), std::regex("%[sd]"), "...");
}

/// The headlines of the messages of errors in a resource file. That of a syntax error is completed by those of "se_".
inline std::set<std::string> errors_in(const std::string& resource_file) {
  static const std::regex line(
      R"re((?:^|\n)\*(se_\w+|file_\w+_fail|bad_save_file|no_help_topic|out_of_memory):[ \t]*([^\n]*))re");
  std::set<std::string> errors;
  for (std::sregex_iterator match(resource_file.begin(), resource_file.end(), line), none; match != none; ++match) {
    errors.insert(headline((*match)[2]));
  }
  return errors;
}

/// The class under which a row's texts may stand as well.
inline std::string class_of(const DialogRow& row) {
  if (row.creator == "create_editor_box") return "XmSelectionBox";
  return row.creator.ends_with("file_box") ? "XmFileSelectionBox" : "";
}

/// Whether the table does away with the button that has this text: {"Apply", unwanted, box} with applyLabelString.
inline bool is_unwanted(const std::vector<DialogRow>& rows, const DialogRow& box, const std::string& resource) {
  static const std::map<std::string, std::string> buttons = {
      {"okLabelString", "OK"}, {"applyLabelString", "Apply"}, {"cancelLabelString", "Cancel"}};
  const auto button = buttons.find(resource);
  return button != buttons.end() && std::ranges::any_of(rows, [&](const DialogRow& row) {
           return row.creator == "unwanted" && row.parent == box.name && row.name == button->second;
         });
}

/// What is written on the widget of a row.
inline std::set<std::string> texts_on(const std::vector<DialogRow>& rows, const DialogRow& row, const Labels& labels) {
  std::set<std::string> texts;
  for (const char* resource : {"labelString", "okLabelString", "applyLabelString", "cancelLabelString",
                               "helpLabelString", "listLabelString", "selectionLabelString", "filterLabelString",
                               "dirTextLabelString", "dirListLabelString", "fileListLabelString"}) {
    if (is_unwanted(rows, row, resource)) continue;
    auto text = labels.find(row.name + "." + resource);
    if (text == labels.end()) text = labels.find(class_of(row) + "." + resource);
    if (text != labels.end() && !text->second.empty()) texts.insert(text->second);
  }
  return texts;
}

/// The page that is about what no Help button of a dialog covers; "" for a dialog without help.
inline std::string topic_of_the_rest(const std::string& dialog, const std::set<std::string>& topics) {
  if (dialog == "options_shell") return "vqc_gen_options";
  if (dialog == "entity_dialog") return "vqc_family";
  return topics.empty() ? "" : *topics.begin();
}

using TextsByTopic = std::map<std::string, std::set<std::string>>;

/// Adds what one dialog shows to the topics that it belongs to.
inline void add_texts(const std::string& dialog, const std::vector<DialogRow>& rows, const Labels& labels,
                      TextsByTopic& texts) {
  const std::set<std::string> topics = topics_of(rows);
  for (const DialogRow& row : rows) {
    const std::string around = topic_around(rows, row.name);
    const std::string topic = around.empty() ? topic_of_the_rest(dialog, topics) : around;
    if (!topic.empty()) texts[topic].merge(texts_on(rows, row, labels));
  }
}

/// What is to be read in all dialogs, whose tables are the sources in `folder`.
inline TextsByTopic texts_by_topic(const std::string& folder, const Labels& labels) {
  TextsByTopic texts;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".cpp") continue;
    add_texts(entry.path().stem(), rows_of(read_file(entry.path())), labels, texts);
  }
  return texts;
}

#endif
