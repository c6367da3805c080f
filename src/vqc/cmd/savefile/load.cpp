// Reads a document, by a function for each rule of its grammar.

#include "vqc/cmd/savefile/load.h"

#include <strings.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <string_view>
#include <utility>

#include "vqc/cmd/savefile/actions.h"
#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/lexer.h"

namespace vqc {

namespace {

/// Whether `text` is `word` but for the case of its letters.
bool same_word(std::string_view text, std::string_view word) {
  return text.size() == word.size() && strncasecmp(text.data(), word.data(), word.size()) == 0;
}

/// The message that states an error of the editor's.
const char* message_name(FindingId id) {
  switch (id) {
    case FindingId::expected_name:
    case FindingId::expected_text:
      return "se_string";
    case FindingId::expected_boolean:
      return "se_boolean";
    case FindingId::expected_integer:
      return "se_integer";
    case FindingId::unknown_item:
      return "se_reserved";
    default:
      return "se_unexpected_keyword";
  }
}

/// Each function for a rule returns false, with the error noted, where the rule cannot be followed.
///
///   NAME   a string or an identifier          BOOL   a NAME; "False" is false
///   STRING a string                           INT    an integer
class Reader {
 public:
  Reader(const Source& source, Actions actions, Diagnostics& findings, AfterError after_error)
      : source_(source),
        actions_(actions),
        findings_(findings),
        found_before_(findings.findings().size()),
        goes_on_(after_error == AfterError::go_on),
        lexer_(source) {
    lexer_.next_token();
    first_token_ = lexer_.range();
  }

  LoadResult document();

 private:
  struct Item {
    Kw word;
    bool (Reader::*read)();
  };
  static const Item kItems[10];
  /// A block in braces: what it belongs to, and where its "{" stands.
  struct Block {
    Kw of;
    Range open;
  };

  Document& into() { return actions_.document(); }

  // Errors, and going on after them.
  bool error(FindingId id, const char* stated, Range range, std::vector<std::string> arguments = {});
  bool error(FindingId id) { return error(id, message_name(id), lexer_.range()); }
  int stated_line() const;
  bool misplaced();
  std::string current_text() const { return std::string(source_.text(lexer_.range())); }
  bool at_end() const { return lexer_.is(SaveFileToken::end_of_input); }
  template <class What>
  bool next_is(What what) const;
  bool next_is_name() const;
  bool at_item() const;
  bool at_field() const;
  bool block_is_unclosed() const;
  bool go_on_in_header();
  bool go_on_in_block();
  bool go_on_in_resources(bool& another);
  void go_on_in_items();

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
  template <auto pool>
  auto* named();
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
  template <auto references, auto pool>
  bool family_use(Family& family);
  bool family_converter(Family& family);

  // Resources.
  bool resource_definitions(WidgetDef& widget);
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
  Block block_;      // that is being read
  Range swallowed_;  // a "}" that was skipped at the end of a list of resources
  bool past_visible_ = false;
  LoadResult result_;
};

// Errors, and going on after them.

/// Notes an error; only what the editor's reading stops at is stated. Always false.
bool Reader::error(FindingId id, const char* stated, Range range, std::vector<std::string> arguments) {
  const bool first = findings_.findings().size() == found_before_;
  findings_.add({id, range, std::move(arguments)});
  if (first) result_.first_error = StatedError{stated, stated_line()};
  return false;
}

/// Lines are counted from the first token, whichever line that stands on, to the end of the current one.
int Reader::stated_line() const {
  const std::string_view read = source_.text({first_token_.end, std::max(first_token_.end, lexer_.range().end)});
  return 1 + static_cast<int>(std::ranges::count(read, '\n'));
}

/// Notes a token that stands where a block wants a field or its end.
bool Reader::misplaced() {
  const bool word = at_name() || lexer_.is(SaveFileToken::keyword) || lexer_.is(SaveFileToken::integer);
  const char* stated = word ? "se_unexpected_keyword" : "'}'";
  if (block_is_unclosed()) {
    const bool swallowed = swallowed_.end > block_.open.end;
    return swallowed ? error(FindingId::expected_character, stated, swallowed_, {";"})
                     : error(FindingId::unclosed_block, stated, block_.open);
  }
  const FindingId id = word ? FindingId::misplaced_word : FindingId::expected_character;
  error(id, stated, lexer_.range(), {word ? current_text() : "}"});
  if (goes_on_ && !lexer_.is('{')) lexer_.next_token();
  return false;
}

template <class What>
bool Reader::next_is(What what) const {
  Lexer ahead = lexer_;
  ahead.next_token();
  return ahead.is(what);
}

bool Reader::next_is_name() const { return next_is(SaveFileToken::string) || next_is(SaveFileToken::identifier); }

/// Whether an item begins here. In a block the same words are followed by "=".
bool Reader::at_item() const {
  if (!lexer_.is(SaveFileToken::keyword)) return false;
  const auto* found = std::ranges::find(kItems, lexer_.keyword(), &Item::word);
  return found != std::end(kItems) && next_is_name();
}

/// Whether a field begins here.
bool Reader::at_field() const {
  if (!lexer_.is(SaveFileToken::keyword)) return false;
  if (lexer_.is(Kw::enumentry)) return block_.of == Kw::enumeration && next_is_name();
  return next_is('=');
}

/// Whether what stands here shows that the "}" of a block is missing.
bool Reader::block_is_unclosed() const {
  return at_end() || at_item() || (lexer_.is(Kw::enumentry) && block_.of == Kw::enumentry && next_is_name());
}

// Each of these goes on after an error where that is wanted; false where what is being read is over.

bool Reader::go_on_in_header() {
  if (!goes_on_) return false;
  while (!at_end() && !at_field() && !at_item()) lexer_.next_token();
  return true;
}

bool Reader::go_on_in_block() {
  if (!goes_on_) return false;
  int depth = 0;
  for (; !block_is_unclosed(); lexer_.next_token()) {
    if (depth == 0 && (lexer_.is('}') || at_field())) return true;
    depth += lexer_.is('{') ? 1 : 0;
    depth -= lexer_.is('}') ? 1 : 0;
  }
  return false;
}

/// The next resource begins with a string after a comma, but so may the popup and the page of this one.
bool Reader::go_on_in_resources(bool& another) {
  another = false;
  if (!goes_on_) return false;
  for (; !block_is_unclosed() && !lexer_.is('}') && !lexer_.is(';') && !at_field(); lexer_.next_token()) {
    past_visible_ = past_visible_ || lexer_.is(SaveFileToken::identifier);
    another = past_visible_ && lexer_.is(',') && next_is(SaveFileToken::string);
    if (another) break;
  }
  if (another) lexer_.next_token();
  return another || lexer_.is(';');
}

void Reader::go_on_in_items() {
  while (!at_end() && !at_item()) lexer_.next_token();
}

// The small rules.

bool Reader::expect(char character) {
  if (try_take(character)) return true;
  const std::string wanted(1, character);
  return error(FindingId::expected_character, ("'" + wanted + "'").c_str(), lexer_.range(), {wanted});
}

bool Reader::try_take(char character) {
  if (!lexer_.is(character)) return false;
  lexer_.next_token();
  return true;
}

/// The text of the current token, kept for the document, and a step to the next.
Value Reader::taken() {
  const Range range = lexer_.range();
  const bool is_view = lexer_.text_is_in_source();
  const Value value{is_view ? Text(lexer_.text()) : actions_.keep(lexer_.text(), range), range};
  lexer_.next_token();
  return value;
}

bool Reader::take_name(Value& name) {
  if (!at_name()) return error(FindingId::expected_name);
  name = taken();
  return true;
}

// assigned := "=" NAME
bool Reader::assigned(Value& name) { return expect('=') && take_name(name); }

bool Reader::assigned(Text& member) {
  Value value;
  if (!assigned(value)) return false;
  member = value.text;
  return true;
}

/// An empty value takes the place of none.
bool Reader::assigned_optional(Text& member) {
  if (!assigned(member)) return false;
  member = non_empty(member);
  return true;
}

// assigned := "=" BOOL
bool Reader::assigned(bool& member) {
  if (!expect('=')) return false;
  if (!at_name()) return error(FindingId::expected_boolean);
  member = !same_word(lexer_.text(), "False");
  lexer_.next_token();
  return true;
}

// Blocks.

// block := "{" { body } "}"
// `body` is called with a keyword current. It reads what the keyword begins, or notes it as misplaced.
template <class Body>
bool Reader::block(Kw of, Body body) {
  const Block outer = std::exchange(block_, {of, lexer_.range()});
  bool whole = expect('{');
  for (bool inside = whole || go_on_in_block(); inside;) {
    if (try_take('}')) break;
    inside = (lexer_.is(SaveFileToken::keyword) ? body() : misplaced()) || go_on_in_block();
    whole = inside;
  }
  block_ = outer;
  return whole;
}

/// The field that the current keyword names, or null.
template <class Record, std::size_t n>
const Field<Record>* Reader::find_field(const Field<Record> (&fields)[n]) const {
  for (const Field<Record>& each : fields) {
    if (lexer_.is(each.word)) return &each;
  }
  return nullptr;
}

// field := keyword "=" (NAME | BOOL)
template <class Record, std::size_t n>
bool Reader::field(const Field<Record> (&fields)[n], Record& record) {
  const Field<Record>* found = find_field(fields);
  if (!found) return misplaced();
  lexer_.next_token();
  if (const auto* text = found->text()) return assigned_optional(record.**text);
  return assigned(record.*std::get<bool Record::*>(found->member));
}

// document := "VQconfig" header { item }
LoadResult Reader::document() try {
  if (!lexer_.is(Kw::vqconfig)) {
    findings_.add({FindingId::no_document, lexer_.range()});
    return result_;
  }
  lexer_.next_token();
  result_.has_header = header();
  if (!result_.has_header && !goes_on_) return result_;
  while (!at_end()) {
    if (item()) continue;
    if (!goes_on_) break;
    go_on_in_items();
  }
  return result_;
} catch (const std::bad_alloc&) {  // what has been read stays
  result_.out_of_memory = true;
  return result_;
}

// header := { key "=" NAME }, in the order of the keys
bool Reader::header() {
  bool whole = true;
  const auto key = [&](Kw word, Text& value) {
    if (!lexer_.is(word)) return true;
    lexer_.next_token();
    whole = assigned_optional(value) && whole;
    return whole || go_on_in_header();
  };
  for (const HeaderKey& each : header_keys) {
    if (!key(each.word, each.value(into()))) return false;
  }
  return key(Kw::stop_list, into().excluded_classes) && whole;
}

// Items.

const Reader::Item Reader::kItems[10] = {
    {Kw::widget, &Reader::widget},
    {Kw::enumeration, &Reader::enumeration},
    {Kw::header, &Reader::bare_record<&Document::code_headers>},
    {Kw::cheader, &Reader::bare_record<&Document::config_headers>},
    {Kw::family_header, &Reader::bare_record<&Document::family_headers>},
    {Kw::alias, &Reader::plain_record<Kw::alias, &Document::aliases, alias_fields>},
    {Kw::converter, &Reader::converter},
    {Kw::popup, &Reader::plain_record<Kw::popup, &Document::popups, popup_fields>},
    {Kw::page, &Reader::bare_record<&Document::pages>},
    {Kw::family, &Reader::family},
};

bool Reader::item() {
  for (const Item& each : kItems) {
    if (!lexer_.is(each.word)) continue;
    lexer_.next_token();
    return (this->*each.read)();
  }
  if (!lexer_.is(SaveFileToken::keyword)) return error(FindingId::unknown_item);
  return error(FindingId::misplaced_word, "se_unexpected_keyword", lexer_.range(), {current_text()});
}

/// The record of the pool that the current NAME names, made if there is none. Null when there is no name.
template <auto pool>
auto* Reader::named() {
  Value name;
  take_name(name);
  return actions_.define(into().*pool, name);
}

// header := ("header" | "cheader" | "family_header") NAME
// page   := "page" NAME
template <auto pool>
bool Reader::bare_record() {
  return named<pool>() != nullptr;
}

// alias := "alias" NAME "{" { field } "}"
// popup := "popup" NAME "{" { field } "}"
template <Kw word, auto pool, auto& fields>
bool Reader::plain_record() {
  auto* record = named<pool>();
  return record && block(word, [&] { return field(fields, *record); });
}

// converter := "converter" NAME "{" { field | older } "}"
// older     := ("dialog_create" | "dialog_init" | "dialog_update") "=" NAME
bool Reader::converter() {
  ConverterDef* converter = named<&Document::converters>();
  PopupDef described;  // by the older fields, and
  Value name;          // under this name
  const bool whole = converter && block(Kw::converter, [&] {
                       if (find_field(popup_fields)) return field(popup_fields, described);
                       if (!lexer_.is(Kw::dialog_create)) return field(converter_fields, *converter);
                       lexer_.next_token();
                       if (!assigned(name)) return false;
                       name.text = converter->dialog = non_empty(name.text);
                       return true;
                     });
  if (whole) rewrite_popup(name, described);
  return whole;
}

void Reader::rewrite_popup(const Value& name, const PopupDef& described) {
  PopupDef* popup = actions_.define(into().popups, name);
  if (!popup) return;
  popup->dialog_init = described.dialog_init;
  popup->dialog_update = described.dialog_update;
}

// enumeration := "enumeration" NAME "{" { field | enumentry } "}"
bool Reader::enumeration() {
  EnumDef* enumeration = named<&Document::enumerations>();
  return enumeration && block(Kw::enumeration, [&] {
           return lexer_.is(Kw::enumentry) ? enumentry(*enumeration) : field(enum_fields, *enumeration);
         });
}

// enumentry := "enumentry" NAME "{" { field } "}"
bool Reader::enumentry(EnumDef& owner) {
  lexer_.next_token();
  Value name;
  if (!take_name(name)) return false;
  EnumEntry* entry = into().ensure(owner.entries, name.text);
  return block(Kw::enumentry, [&] { return field(enum_entry_fields, *entry); });
}

// widget := "widget" NAME "{" { field | resource_definitions | resource_popups } "}"
bool Reader::widget() {
  WidgetDef* widget = named<&Document::widgets>();
  return widget && block(Kw::widget, [&] {
           if (lexer_.is(Kw::resource_definitions)) return resource_definitions(*widget);
           if (lexer_.is(Kw::resource_popups)) return resource_popups(*widget);
           return field(widget_fields, *widget);
         });
}

// family := "family" NAME "{" { family_field } "}"
bool Reader::family() {
  Value name;
  if (!take_name(name)) return false;
  Family* family = actions_.define(into().families, name);
  if (!family) findings_.add({FindingId::nameless_family, name.range});  // which is stated nowhere
  return family && block(Kw::family, [&] { return family_field(*family); });
}

// family_field := ("family_init" | use) "=" NAME | flag "=" BOOL
// use          := "widget" | "enumeration" | "header" | "cheader" | "family_header" | "alias" | "popup" | "page"
bool Reader::family_field(Family& family) {
  struct Use {
    Kw word;
    bool (Reader::*read)(Family& family);
  };
  static constexpr Use kUses[] = {
      {Kw::widget, &Reader::family_use<&Family::widgets, &Document::widgets>},
      {Kw::enumeration, &Reader::family_use<&Family::enumerations, &Document::enumerations>},
      {Kw::header, &Reader::family_use<&Family::code_headers, &Document::code_headers>},
      {Kw::cheader, &Reader::family_use<&Family::config_headers, &Document::config_headers>},
      {Kw::family_header, &Reader::family_use<&Family::family_headers, &Document::family_headers>},
      {Kw::alias, &Reader::family_use<&Family::aliases, &Document::aliases>},
      {Kw::converter, &Reader::family_converter},
      {Kw::popup, &Reader::family_use<&Family::popups, &Document::popups>},
      {Kw::page, &Reader::family_use<&Family::pages, &Document::pages>},
  };
  for (const Use& use : kUses) {
    if (lexer_.is(use.word)) return (this->*use.read)(family);
  }
  if (!lexer_.is(Kw::family_init)) return field<FamilyInit>(family_init_fields, family);
  lexer_.next_token();
  return assigned(family.family_init);
}

/// The name of a record that a family uses. Where a block follows instead, the word begins an item: the family is not
/// closed.
bool Reader::used(Value& name) {
  const Range word = lexer_.range();
  lexer_.next_token();
  if (!at_name() || !next_is('{')) return assigned(name);
  error(FindingId::unclosed_block, "'='", block_.open);
  lexer_.go_back(word);
  return false;
}

template <auto references, auto pool>
bool Reader::family_use(Family& family) {
  Value name;
  if (!used(name)) return false;
  actions_.refer(family.*references, into().*pool, name);
  return true;
}

/// A family that uses a converter also uses the converter's popup.
bool Reader::family_converter(Family& family) {
  Value name;
  if (!used(name)) return false;
  actions_.refer(family.converters, into().converters, name);
  into().ensure(family.popups, into().popups, into().converters.find(name.text)->dialog);
  return true;
}

// Resources.

// resource_definitions := "resource_definitions" "=" [ resource { "," resource } ] any-token
bool Reader::resource_definitions(WidgetDef& widget) {
  lexer_.next_token();
  if (!expect('=')) return false;
  for (bool another = lexer_.is(SaveFileToken::string); another;) {
    if (!resource(widget, another) && !go_on_in_resources(another)) return false;
  }
  if (lexer_.is('}')) swallowed_ = lexer_.range();
  lexer_.next_token();
  return true;
}

// resource := STRING "," [ STRING ] "," [ STRING ] "," identifier [ "," tail ]
// Sets `another` if a "," and the name of a further resource follow. The older form has no tail.
bool Reader::resource(WidgetDef& widget, bool& another) {
  past_visible_ = another = false;
  ResourceDef& resource = *named_resource(widget);
  if (!expect(',')) return false;
  take_optional_string(resource.popup);
  if (!expect(',')) return false;
  take_optional_string(resource.page);
  if (!expect(',') || !visible(resource.visible)) return false;
  if (!try_take(',')) return true;
  another = lexer_.is(SaveFileToken::string);
  return another || resource_tail(resource, another);
}

// tail := free-mode "," free-mode [ "access" INT ] [ "counter" STRING ]
bool Reader::resource_tail(ResourceDef& resource, bool& another) {
  if (!free_mode(resource.free_get, "se_free_get") || !expect(',')) return false;
  if (!free_mode(resource.free_set, "se_free_set")) return false;
  if (!access(resource) || !counter(resource)) return false;
  another = try_take(',') && lexer_.is(SaveFileToken::string);
  return true;
}

/// The resource that the current string names, made if there is none.
ResourceDef* Reader::named_resource(WidgetDef& widget) {
  return into().ensure(widget.resource_definitions, taken().text);
}

void Reader::take_optional_string(Text& member) {
  if (!lexer_.is(SaveFileToken::string)) return;
  member = non_empty(taken().text);
}

/// Other than anywhere else, only "True" is true here.
bool Reader::visible(bool& flag) {
  if (!lexer_.is(SaveFileToken::identifier)) return error(FindingId::expected_boolean);
  past_visible_ = true;
  flag = same_word(lexer_.text(), "True");
  lexer_.next_token();
  return true;
}

bool Reader::free_mode(FreeMode& mode, const char* stated) {
  const bool word = lexer_.is(SaveFileToken::identifier);
  const auto* found = std::ranges::find(free_mode_words, lexer_.text());
  if (!word || found == std::end(free_mode_words)) {
    return error(FindingId::expected_free_mode, word ? stated : "se_boolean", lexer_.range());
  }
  mode = static_cast<FreeMode>(found - free_mode_words);
  lexer_.next_token();
  return true;
}

bool Reader::access(ResourceDef& resource) {
  resource.access = ACCESS_NOT_GIVEN;
  if (!lexer_.is(Kw::access)) return true;
  lexer_.next_token();
  if (!lexer_.is(SaveFileToken::integer)) return error(FindingId::expected_integer);
  resource.access = lexer_.integer();
  lexer_.next_token();
  return true;
}

bool Reader::counter(ResourceDef& resource) {
  if (!lexer_.is(Kw::counter)) return true;
  lexer_.next_token();
  if (!lexer_.is(SaveFileToken::string)) return error(FindingId::expected_text);
  take_optional_string(resource.counter);
  return true;
}

// resource_popups := "resource_popups" "=" pair { "," pair }
// pair            := STRING [ "," STRING ]
bool Reader::resource_popups(WidgetDef& widget) {
  lexer_.next_token();
  if (!expect('=')) return false;
  do {
    if (!lexer_.is(SaveFileToken::string)) return error(FindingId::expected_text);
    ResourceDef* resource = named_resource(widget);
    if (!try_take(',')) return true;
    if (!lexer_.is(SaveFileToken::string)) return error(FindingId::expected_text);
    take_optional_string(resource->popup);
  } while (try_take(','));
  return true;
}

}  // namespace

LoadResult load(const std::shared_ptr<const Source>& source, Document& document, Diagnostics& findings,
                AfterError after_error, Places* places) {
  document.keep(source);
  return Reader(*source, Actions(document, places), findings, after_error).document();
}

}  // namespace vqc
