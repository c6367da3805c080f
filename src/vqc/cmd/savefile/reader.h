#ifndef VQC_CMD_SAVEFILE_READER_H
#define VQC_CMD_SAVEFILE_READER_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/savefile/actions.h"
#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/lexer.h"
#include "vqc/cmd/savefile/load_result.h"

namespace vqc {

/// Reads a document, by a function for each rule of its grammar. What is wrong is found and stepped over in
/// recovery.cpp, and what is only odd is noted in oddities.cpp. Each function for a rule returns false, with the error
/// noted, where the rule cannot be followed.
///
///   NAME   a string or an identifier          BOOL   a NAME; "False" is false
///   STRING a string                           INT    an integer
class Reader {
 public:
  Reader(const Source& source, Actions actions, Diagnostics& findings, AfterError after_error);

  LoadResult document();

 private:
  struct Item {
    Kw word;
    bool (Reader::*read)();
  };
  static const Item kItems[10];
  /// What a family can use.
  struct Use {
    Kw word;
    bool (Reader::*read)(Family& family);
  };
  static const Use kUses[9];
  /// A block in braces: what it belongs to, and where its "{" stands.
  struct Block {
    Kw of{};
    Range open;
    std::size_t said = 0;  // the fields that it has said follow as many others
  };
  /// The end of a list of resources that is no ";".
  struct ListEnd {
    Finding finding;  // what it is if it leads to an error
    Range token;
    std::size_t step;                           // when the token after it was read
    bool is_brace;                              // the token was meant to end the block
    std::optional<std::size_t> resume_at = {};  // where reading goes on if it leads to an error
  };
  struct SaidField {
    Kw word;
    Range range;
  };

  Document& into() { return actions_.document(); }
  void step();

  // Errors, and going on after them.
  bool error(FindingId id, const char* stated, Range range, std::vector<std::string> arguments = {},
             std::string_view suggestion = {});
  bool error(FindingId id);
  Finding cause_of(Finding finding);
  bool comment_is_open(Finding& finding);
  bool text_is_open(Finding& finding);
  bool list_end_is_wrong(Finding& finding);
  bool current_text_is_open() const;
  bool last_text_is_open() const;
  bool spans_lines(Range range) const { return source_.text(range).find('\n') != std::string_view::npos; }
  void resume();
  int stated_line() const;
  bool misplaced();
  Range place_of_token() const;
  std::string shown_token() const;
  std::string_view suggested_word() const;
  std::string_view suggested_item() const;
  /// Right behind the last token: where what is missing belongs.
  Range gap() const { return {last_.range.end, last_.range.end}; }
  bool at_unquoted_text() const;
  Range place_of(char missing) const;
  Range place_of_value() const;
  bool at_any_of(std::string_view characters) const;
  bool at_end() const { return lexer_.is(SaveFileToken::end_of_input); }
  Lexer ahead() const;
  bool next_is_name() const;
  bool at_item() const;
  bool at_field() const;
  bool at_list_end() const;
  bool block_is_unclosed() const;
  bool stands_out(Range word) const;
  bool go_on_in_header();
  bool go_on_in_block();
  bool go_on_in_resources(bool& another);
  void go_on_in_items();

  // What is read, and yet odd.
  void warn(Finding finding);
  void warn_of_two(FindingId id, Range second, std::string_view name, Range first);
  void note_token();
  void note_end();
  void note_field(Kw word, Range range);
  void note_flag(bool value);
  void note_list_end();
  Finding list_end_finding() const;

  // The small rules.
  bool expect(char character);
  bool try_take(char character);
  bool at_name() const { return lexer_.is(SaveFileToken::string) || lexer_.is(SaveFileToken::identifier); }
  Value taken();
  bool take_name(Value& name);
  bool assigned(Value& name);
  bool assigned(Text& member);
  bool assigned_optional(Text& member);
  bool assigned(bool& member);

  // Blocks.
  template <class Body>
  bool block(Kw of, Body body);
  template <class Record, std::size_t n>
  const Field<Record>* find_field(const Field<Record> (&fields)[n]) const;
  template <class Record, std::size_t n>
  bool field(const Field<Record> (&fields)[n], Record& record);

  // Items.
  bool header();
  bool item();
  template <auto pool, auto& fields, class Read>
  bool record(Kw word, Read read);
  template <auto pool>
  bool bare_record();
  template <Kw word, auto pool, auto& fields>
  bool plain_record();
  bool converter();
  void rewrite_popup(const Value& name, const PopupDef& described);
  bool enumeration();
  bool enumentry(EnumDef& owner);
  bool widget();
  bool family();
  bool family_field(Family& family);
  bool used(Value& name);
  template <class References, class Pool>
  void refer(References& references, Pool& pool, const Value& name);
  template <auto references, auto pool>
  bool family_use(Family& family);
  bool family_converter(Family& family);

  // Resources.
  bool resource_definitions(WidgetDef& widget);
  bool end_resources();
  bool resource(WidgetDef& widget, bool& another);
  bool resource_tail(ResourceDef& resource, bool& another);
  ResourceDef* named_resource(WidgetDef& widget);
  void take_optional_string(Text& member);
  bool visible(bool& flag);
  bool free_mode(FreeMode& mode, const char* stated);
  bool access(ResourceDef& resource);
  bool counter(ResourceDef& resource);
  bool resource_popups(WidgetDef& widget);

  const Source& source_;
  Actions actions_;
  Diagnostics& findings_;
  const std::size_t found_before_;  // how many findings others have made
  const bool goes_on_;
  Lexer lexer_;
  Range first_token_;
  Range item_;   // the word that the current item begins with
  Block block_;  // that is being read
  bool past_visible_ = false;
  LoadResult result_;

  // What only matters where something is wrong or odd.
  struct LastToken {
    Range range;
    bool is_text = false;
    bool is_open = false;
  } last_;                                // the token before the current one
  std::size_t steps_ = 0;                 // how many tokens have been read
  std::optional<std::size_t> resume_at_;  // where reading goes on after an error, if not here
  std::optional<ListEnd> list_end_;
  std::size_t open_comment_ = 0;  // where the last comment that was found open ends
  std::vector<SaidField> said_;   // in the blocks that are being read
  std::vector<Finding> oddities_;
};

}  // namespace vqc

#endif
