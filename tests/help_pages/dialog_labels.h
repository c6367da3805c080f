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

/// The value that a designated initialiser gives to a member; "" when it gives none.
inline std::string value_of(const std::string& initialiser, const std::string& member) {
  std::smatch found;
  const std::regex value("\\." + member + " = \"?(\\w+)");
  return std::regex_search(initialiser, found, value) ? found[1].str() : "";
}

/// The rows that the frame of a list gives: its box, without the buttons that have no callback, the form beside the
/// list, and the button that closes the dialog.
inline std::vector<DialogRow> rows_of_page(const std::string& page) {
  const std::string box = value_of(page, "name") + "_selection";
  std::vector<DialogRow> rows = {
      {box, "create_editor_box", value_of(page, "parent"), value_of(page, "topic")},
      {value_of(page, "form"), "create_form", box, ""},
  };
  if (value_of(page, "ok").empty()) rows.push_back({"OK", "unmanage_child", box, ""});
  if (value_of(page, "apply").empty()) rows.push_back({"Apply", "unmanage_child", box, ""});
  if (!value_of(page, "quit").empty()) {
    rows.push_back({value_of(page, "name") + "_quitb", "XmCreatePushButton", box, ""});
  }
  return rows;
}

/// The rows of all tables of a source, and those of the frames of its lists.
inline std::vector<DialogRow> rows_of(const std::string& source) {
  static const std::regex row(R"re(\{"([^"]+)",\s*((?!XmN)\w+),\s*(?:"([^"]+)"|nullptr))re");
  static const std::regex stop_class(R"re(\{"(\w+)",\s*"Xm\w+",\s*\d\})re");
  static const std::regex topic(R"re("(vqc_\w+)")re");
  static const std::regex page(R"re(const ListPage \w+ = \{([^}]*)\})re");
  const std::sregex_iterator none;
  std::vector<DialogRow> rows;
  for (std::sregex_iterator match(source.begin(), source.end(), row); match != none; ++match) {
    const auto end = source.find("},\n", static_cast<std::size_t>(match->position()));
    const std::string rest(match->suffix().first,
                           source.begin() + static_cast<std::ptrdiff_t>(std::min(end, source.size())));
    std::smatch named;
    rows.push_back(
        {(*match)[1], (*match)[2], (*match)[3], std::regex_search(rest, named, topic) ? named[1].str() : ""});
  }
  for (std::sregex_iterator match(source.begin(), source.end(), stop_class); match != none; ++match) {
    rows.push_back({(*match)[1], "XmCreateToggleButton", "stop_list_form", ""});
  }
  for (std::sregex_iterator match(source.begin(), source.end(), page); match != none; ++match) {
    for (const DialogRow& each : rows_of_page((*match)[1])) rows.push_back(each);
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
      R"re((?:^|\n)\*(se_\w+|file_\w+_fail|bad_save_file|no_help_topic|out_of_memory|other_session):[ \t]*([^\n]*))re");
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

/// Whether the table does away with the button that has this text: {"Apply", unmanage_child, box} with
/// applyLabelString.
inline bool is_unwanted(const std::vector<DialogRow>& rows, const DialogRow& box, const std::string& resource) {
  static const std::map<std::string, std::string> buttons = {
      {"okLabelString", "OK"}, {"applyLabelString", "Apply"}, {"cancelLabelString", "Cancel"}};
  const auto button = buttons.find(resource);
  return button != buttons.end() && std::ranges::any_of(rows, [&](const DialogRow& row) {
           return row.creator == "unmanage_child" && row.parent == box.name && row.name == button->second;
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

/// The page that is about what no Help button of a module's dialog covers; "" for a dialog without help.
inline std::string topic_of_the_rest(const std::string& module, const std::set<std::string>& topics) {
  if (module == "options") return "vqc_gen_options";
  if (module == "entity") return "vqc_family";
  return topics.empty() ? "" : *topics.begin();
}

using TextsByTopic = std::map<std::string, std::set<std::string>>;

/// Adds what one dialog shows to the topics that it belongs to.
inline void add_texts(const std::string& module, const std::vector<DialogRow>& rows, const Labels& labels,
                      TextsByTopic& texts) {
  const std::set<std::string> topics = topics_of(rows);
  for (const DialogRow& row : rows) {
    const std::string around = topic_around(rows, row.name);
    const std::string topic = around.empty() ? topic_of_the_rest(module, topics) : around;
    if (!topic.empty()) texts[topic].merge(texts_on(rows, row, labels));
  }
}

/// What is to be read in all dialogs, whose tables stand in the sources in `folder`.
inline TextsByTopic texts_by_topic(const std::string& folder, const Labels& labels) {
  TextsByTopic texts;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".cpp") continue;
    add_texts(entry.path().stem(), rows_of(read_file(entry.path())), labels, texts);
  }
  return texts;
}

#endif
