#ifndef SUPPORT_RANDOM_DOCUMENT_H
#define SUPPORT_RANDOM_DOCUMENT_H

#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Documents that the grammar allows, of any of its items and fields, and such as lie beside them. The same seed gives
/// the same document.
class RandomDocument {
 public:
  explicit RandomDocument(unsigned seed) : random_(seed) { header(), items(); }

  /// The document, with an item behind all others that is like no other.
  std::string text() { return laid_out(words_) + last_item(); }

  /// The same with some words before that item lost, doubled, swapped or taken from elsewhere, or with some characters
  /// lost.
  std::string broken_text() {
    std::vector<std::string> words = words_;
    for (int count = 1 + below(3); count > 0; --count) break_words(words);
    std::string text = laid_out(words);
    if (!text.empty() && below(4) == 0) text.erase(pick(text), 1U + static_cast<unsigned>(below(4)));
    return text + last_item();
  }

  /// The name of the last item, a family.
  static constexpr std::string_view kLast = "the last one";

 private:
  using Choices = std::initializer_list<const char*>;

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  /// A place in something that is not empty.
  template <class Container>
  std::size_t pick(const Container& in) {
    return random_() % in.size();
  }

  void add(std::string word) { words_.push_back(std::move(word)); }
  void one_of(Choices choices) { add(choices.begin()[pick(choices)]); }

  // Words. Names are few, so that many refer to each other.

  void text_word() {
    one_of({"'A'", "'B'", "'C'", "'D'", "'E'", "'two words'", "'a\\'b'", "'%d'", "'/*'", "'gr\xC3\xBC'"});
  }
  void name() { below(4) == 0 ? one_of({"A", "B", "_c1", "Truely"}) : text_word(); }
  void flag() { one_of({"True", "False", "'false'", "no", "FALSE", "A"}); }

  void field(const char* keyword) { add(keyword), add("="), name(); }
  void flag_field(const char* keyword) { add(keyword), add("="), flag(); }
  void some_fields(Choices keywords) {
    for (const char* keyword : keywords) {
      if (below(3) == 0) field(keyword);
    }
  }
  void some_flags(Choices keywords) {
    for (const char* keyword : keywords) {
      if (below(6) == 0) flag_field(keyword);
    }
  }

  // The grammar.

  void header() {
    add("VQconfig");
    if (below(3) > 0) return;
    some_fields({"code_name", "config_name", "stubs_name", "generate_family_table_string",
                 "generate_family_name_string", "generate_xwidget_string", "generate_stop_list_string",
                 "generate_popup_string", "generate_page_name_string", "generate_family_count_string",
                 "generate_enumeration_string", "generate_converter_string", "generate_alias_string", "stop_list"});
  }

  void items() {
    for (int count = below(12); count > 0; --count) item();
  }

  void item() {
    switch (below(10)) {
      case 0:
        one_of({"header", "cheader", "family_header", "page"});
        return name();
      case 1:
        return block("alias", [this] { some_fields({"to_name"}); });
      case 2:
        return block("popup", [this] { some_fields({"dialog_init", "dialog_update"}); });
      case 3:
        return block("converter", [this] { converter_fields(); });
      case 4:
      case 5:
        return block("enumeration", [this] { enumeration_fields(); });
      case 6:
      case 7:
        return block("widget", [this] { widget_fields(); });
      default:
        return block("family", [this] { family_fields(); });
    }
  }

  template <class Fields>
  void block(const char* keyword, Fields fields) {
    add(keyword), name(), add("{"), fields(), add("}");
  }

  void converter_fields() {
    some_fields({"proc_name", "dialog", "dialog_create", "dialog_init", "dialog_update"});
    some_flags({"add_in_vq", "add_in_code"});
  }

  void enumeration_fields() {
    some_fields({"typename"});
    for (int count = below(4); count > 0; --count) {
      block("enumentry", [this] { some_fields({"code_symbol", "resfile_symbol"}); });
    }
  }

  void widget_fields() {
    some_fields({"include_filename", "defined_name", "realise", "abstract", "can_add_child", "appropriate_parent",
                 "largeicon", "smallicon", "largeiconheader", "smalliconheader", "pixmap_resource", "widget_doc",
                 "widget_tag", "dialogue_doc", "dialogue_tag"});
    some_flags({"disablefgswap", "disablegoto", "can_create", "can_edit_abstract", "can_manage", "default_is_dont_free",
                "generate_initialise"});
    if (below(2) == 0) resources();
    if (below(6) == 0) older_popups();
  }

  void resources() {
    add("resource_definitions"), add("=");
    for (int count = below(4); count > 0; --count) {
      resource();
      if (count > 1) add(",");
    }
    one_of({";", ";", ";", "header", "{"});
  }

  void resource() {
    text_word(), add(",");
    if (below(2) == 0) text_word();
    add(",");
    if (below(2) == 0) text_word();
    add(","), one_of({"True", "False", "maybe"});
    if (below(4) == 0) return;
    add(","), free_mode(), add(","), free_mode();
    if (below(3) == 0) add("access"), one_of({"1", "7", "0", "-1", "99999999999"});
    if (below(3) == 0) add("counter"), text_word();
  }

  void free_mode() { one_of({"VQC_FREE_DEFAULT", "VQC_FREE", "VQC_DONT_FREE"}); }

  void older_popups() {
    add("resource_popups"), add("="), text_word();
    for (int count = below(3); count > 0; --count) {
      add(","), text_word(), add(","), text_word();
    }
  }

  void family_fields() {
    for (int count = below(8); count > 0; --count) {
      const Choices lists = {"widget", "enumeration", "header",      "cheader", "family_header",
                             "alias",  "converter",   "family_init", "popup",   "page"};
      field(lists.begin()[pick(lists)]);
    }
    some_flags({"generate_family_init_vq", "generate_family_init_code", "generate_family_init_stub",
                "generate_family_init_pre_shell"});
  }

  // Text.

  static std::string last_item() { return "\nfamily '" + std::string(kLast) + "' { }\n"; }

  std::string laid_out(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += word + space();
    return text;
  }

  std::string space() {
    const Choices spaces = {" ", " ", " ", "\n", "\n\t", "\r\n", " /* a comment's */ ", " /***/\n", " ! and another\n"};
    return spaces.begin()[pick(spaces)];
  }

  /// Does to words what a hand does that slips.
  void break_words(std::vector<std::string>& words) {
    const auto at = words.begin() + static_cast<std::ptrdiff_t>(pick(words));
    switch (below(6)) {
      case 0:
        words.erase(at);
        if (words.empty()) words.emplace_back();
        break;
      case 1:
        words.insert(at, std::string(*at));
        break;
      case 2:
        std::swap(*at, words[pick(words)]);
        break;
      case 3:
        *at = words[pick(words)];
        break;
      case 4:
        *at = other_word();
        break;
      default:
        words.insert(at, other_word());
    }
  }

  std::string other_word() {
    const Choices others = {"",       "''",     "{",         "}",       ",",        ";",   "=",  "1",
                            "-",      "/*",     "*/",        "'",       "x",        "\"",  "\\", "family",
                            "widget", "access", "enumentry", "counter", "VQconfig", "\x80"};
    return others.begin()[pick(others)];
  }

  std::minstd_rand random_;
  std::vector<std::string> words_;
};

#endif
