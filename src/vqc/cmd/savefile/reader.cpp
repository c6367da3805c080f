// The rules of the grammar of documents.

#include "vqc/cmd/savefile/reader.h"

#include <strings.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <string_view>
#include <utility>

#include "libkel/nearest.h"

namespace vqc {

namespace {

/// Whether `text` is `word` but for the case of its letters.
bool same_word(std::string_view text, std::string_view word) {
  return text.size() == word.size() && strncasecmp(text.data(), word.data(), word.size()) == 0;
}

/// The values that a record has for the fields of its kind.
template <class Record, std::size_t n>
std::vector<std::variant<Text, bool>> values_of(const Field<Record> (&fields)[n], const Record& record) {
  std::vector<std::variant<Text, bool>> values;
  for (const Field<Record>& each : fields) {
    std::visit([&](auto member) { values.emplace_back(record.*member); }, each.member);
  }
  return values;
}

}  // namespace

Reader::Reader(const Source& source, Actions actions, Diagnostics& findings, AfterError after_error)
    : source_(source),
      actions_(actions),
      findings_(findings),
      found_before_(findings.findings().size()),
      goes_on_(after_error == AfterError::go_on),
      lexer_(source) {
  lexer_.next_token();
  first_token_ = lexer_.range();
}

/// Goes on to the next token.
void Reader::step() {
  last_ = {lexer_.range(), lexer_.is(SaveFileToken::string), (lexer_.oddities() & IS_OPEN) != 0};
  lexer_.next_token();
  ++steps_;
  if (lexer_.oddities() != 0) note_token();
}

// The small rules.

bool Reader::expect(char character) {
  if (try_take(character)) return true;
  const std::string wanted(1, character);
  if (character == ',' && at_unquoted_text()) return error(FindingId::expected_text, "','", lexer_.range());
  return error(FindingId::expected_character, ("'" + wanted + "'").c_str(), place_of(character), {wanted});
}

bool Reader::try_take(char character) {
  if (!lexer_.is(character)) return false;
  step();
  return true;
}

/// The text of the current token, kept for the document, and a step to the next.
Value Reader::taken() {
  const Range range = lexer_.range();
  const bool is_view = lexer_.text_is_in_source();
  const Value value{is_view ? Text(lexer_.text()) : actions_.keep(lexer_.text(), range), range};
  step();
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
  if (member && !same_word(lexer_.text(), "True")) note_flag(member);
  step();
  return true;
}

// Blocks.

// block := "{" { body } "}"
// `body` is called with a keyword current. It reads what the keyword begins, or notes it as misplaced.
template <class Body>
bool Reader::block(Kw of, Body body) {
  const Block outer = std::exchange(block_, {of, lexer_.range(), said_.size()});
  bool whole = expect('{');
  for (bool inside = whole || go_on_in_block(); inside;) {
    if (try_take('}')) break;
    inside = (lexer_.is(SaveFileToken::keyword) ? body() : misplaced()) || go_on_in_block();
    whole = inside;
  }
  note_list_end();
  said_.resize(block_.said);
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
  note_field(found->word, lexer_.range());
  step();
  if (const auto* text = found->text()) return assigned_optional(record.**text);
  return assigned(record.*std::get<bool Record::*>(found->member));
}

// document := "VQconfig" header { item }
LoadResult Reader::document() try {
  if (!lexer_.is(Kw::vqconfig)) {
    findings_.add({FindingId::no_document, lexer_.range()});
    return result_;
  }
  step();
  result_.has_header = header();
  if (!result_.has_header && !goes_on_) return result_;
  while (!at_end()) {
    if (item()) continue;
    if (!goes_on_) break;
    go_on_in_items();
  }
  note_end();
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
    step();
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

/// The word of an item, or of the header while that goes on, that an unknown one was perhaps meant to be.
std::string_view Reader::suggested_item() const {
  if (!lexer_.is(SaveFileToken::identifier)) return {};
  std::vector<std::string_view> words;
  for (const Item& each : kItems) words.push_back(keyword_text(each.word));
  for (const HeaderKey& each : header_keys) words.push_back(keyword_text(each.word));
  return nearest(lexer_.text(), words);
}

bool Reader::item() {
  for (const Item& each : kItems) {
    if (!lexer_.is(each.word)) continue;
    item_ = lexer_.range();
    step();
    return (this->*each.read)();
  }
  if (lexer_.is(SaveFileToken::keyword)) {
    return error(FindingId::misplaced_word, "se_unexpected_keyword", lexer_.range(), {shown_token()});
  }
  return error(FindingId::unknown_item, "se_reserved", place_of_token(), {}, suggested_item());
}

/// A record of a pool, made if there is none, and its block, which `read` reads into it.
template <auto pool, auto& fields, class Read>
bool Reader::record(Kw word, Read read) {
  Value name;
  if (!take_name(name)) return false;
  const std::optional<Range> first = actions_.place_of(into().*pool, name);
  auto* record = actions_.define(into().*pool, name);
  const auto before = first ? values_of(fields, *record) : std::vector<std::variant<Text, bool>>();
  const bool whole = block(word, [&] { return read(*record); });
  if (first && before != values_of(fields, *record)) {
    warn_of_two(FindingId::defined_twice, name.range, name.text.view(), *first);
  }
  return whole;
}

// header := ("header" | "cheader" | "family_header") NAME
// page   := "page" NAME
template <auto pool>
bool Reader::bare_record() {
  Value name;
  return take_name(name) && actions_.define(into().*pool, name);
}

// alias := "alias" NAME "{" { field } "}"
// popup := "popup" NAME "{" { field } "}"
template <Kw word, auto pool, auto& fields>
bool Reader::plain_record() {
  return record<pool, fields>(word, [this](auto& each) { return this->field(fields, each); });
}

// converter := "converter" NAME "{" { field | older } "}"
// older     := ("dialog_create" | "dialog_init" | "dialog_update") "=" NAME
bool Reader::converter() {
  PopupDef described;  // by the older fields, and
  Value name;          // under this name
  const bool whole = record<&Document::converters, converter_fields>(Kw::converter, [&](ConverterDef& converter) {
    if (find_field(popup_fields)) return field(popup_fields, described);
    if (!lexer_.is(Kw::dialog_create)) return field(converter_fields, converter);
    step();
    if (!assigned(name)) return false;
    name.text = converter.dialog = non_empty(name.text);
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
  return record<&Document::enumerations, enum_fields>(Kw::enumeration, [this](EnumDef& enumeration) {
    return lexer_.is(Kw::enumentry) ? enumentry(enumeration) : field(enum_fields, enumeration);
  });
}

// enumentry := "enumentry" NAME "{" { field } "}"
bool Reader::enumentry(EnumDef& owner) {
  step();
  Value name;
  if (!take_name(name)) return false;
  EnumEntry* entry = into().ensure(owner.entries, name.text);
  return block(Kw::enumentry, [&] { return field(enum_entry_fields, *entry); });
}

// widget := "widget" NAME "{" { field | resource_definitions | resource_popups } "}"
bool Reader::widget() {
  return record<&Document::widgets, widget_fields>(Kw::widget, [this](WidgetDef& widget) {
    if (lexer_.is(Kw::resource_definitions)) return resource_definitions(widget);
    if (lexer_.is(Kw::resource_popups)) return resource_popups(widget);
    return field(widget_fields, widget);
  });
}

// family := "family" NAME "{" { family_field } "}"
bool Reader::family() {
  Value name;
  if (!take_name(name)) return false;
  const std::optional<Range> first = actions_.place_of(into().families, name);
  Family* family = actions_.define(into().families, name);
  if (first) warn_of_two(FindingId::family_twice, name.range, name.text.view(), *first);
  if (!family) findings_.add({FindingId::nameless_family, name.range});  // which is stated nowhere
  return family && block(Kw::family, [&] { return family_field(*family); });
}

const Reader::Use Reader::kUses[9] = {
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

// family_field := ("family_init" | use) "=" NAME | flag "=" BOOL
// use          := "widget" | "enumeration" | "header" | "cheader" | "family_header" | "alias" | "popup" | "page"
bool Reader::family_field(Family& family) {
  for (const Use& use : kUses) {
    if (lexer_.is(use.word)) return (this->*use.read)(family);
  }
  if (!lexer_.is(Kw::family_init)) return field<FamilyInit>(family_init_fields, family);
  step();
  return assigned(family.family_init);
}

/// The name of a record that a family uses. Where a block follows instead, the word begins an item: the family is not
/// closed.
bool Reader::used(Value& name) {
  const Range word = lexer_.range();
  step();
  if (!at_name() || !(ahead().is('{') || stands_out(word))) return assigned(name);
  error(FindingId::unclosed_block, "'='", block_.open);
  resume_at_ = word.begin;
  return false;
}

template <class References, class Pool>
void Reader::refer(References& references, Pool& pool, const Value& name) {
  const std::optional<Range> first = actions_.refer(references, pool, name);
  if (first) warn_of_two(FindingId::named_twice, name.range, name.text.view(), *first);
}

template <auto references, auto pool>
bool Reader::family_use(Family& family) {
  Value name;
  if (!used(name)) return false;
  refer(family.*references, into().*pool, name);
  return true;
}

/// A family that uses a converter also uses the converter's popup.
bool Reader::family_converter(Family& family) {
  Value name;
  if (!used(name)) return false;
  refer(family.converters, into().converters, name);
  into().ensure(family.popups, into().popups, into().converters.find(name.text)->dialog);
  return true;
}

// Resources.

// resource_definitions := "resource_definitions" "=" [ resource { "," resource } ] any-token
bool Reader::resource_definitions(WidgetDef& widget) {
  step();
  if (!expect('=')) return false;
  for (bool another = lexer_.is(SaveFileToken::string); another;) {
    if (!resource(widget, another) && !go_on_in_resources(another)) return false;
  }
  return end_resources();
}

/// Any token ends the list.
bool Reader::end_resources() {
  if (at_end() || try_take(';')) return true;
  ListEnd end{list_end_finding(), lexer_.range(), 0, lexer_.is('}')};
  if (at_field()) end.resume_at = lexer_.range().begin;
  if (text_is_open(end.finding)) end.resume_at = std::exchange(resume_at_, std::nullopt);
  step();
  end.step = steps_;
  list_end_ = std::move(end);
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
  if (!flag && !same_word(lexer_.text(), "False")) note_flag(flag);
  step();
  return true;
}

bool Reader::free_mode(FreeMode& mode, const char* stated) {
  const bool word = lexer_.is(SaveFileToken::identifier);
  const auto* found = std::ranges::find(free_mode_words, lexer_.text());
  if (!word || found == std::end(free_mode_words)) {
    const bool next_resource = lexer_.is(SaveFileToken::string) && found == std::end(free_mode_words);
    const Range place = next_resource ? gap() : place_of_value();
    return error(FindingId::expected_free_mode, word ? stated : "se_boolean", place, {},
                 word ? nearest(lexer_.text(), free_mode_words) : std::string_view());
  }
  mode = static_cast<FreeMode>(found - free_mode_words);
  step();
  return true;
}

bool Reader::access(ResourceDef& resource) {
  resource.access = ACCESS_NOT_GIVEN;
  if (!lexer_.is(Kw::access)) return true;
  step();
  if (!lexer_.is(SaveFileToken::integer)) return error(FindingId::expected_integer);
  resource.access = lexer_.integer();
  const bool wraps = lexer_.oddities() & WRAPS;
  if (!wraps && (resource.access < 1 || resource.access > 7)) warn({FindingId::odd_access, lexer_.range(), {shown_token()}});
  step();
  return true;
}

bool Reader::counter(ResourceDef& resource) {
  if (!lexer_.is(Kw::counter)) return true;
  step();
  if (!lexer_.is(SaveFileToken::string)) return error(FindingId::expected_text);
  take_optional_string(resource.counter);
  return true;
}

// resource_popups := "resource_popups" "=" pair { "," pair }
// pair            := STRING [ "," STRING ]
bool Reader::resource_popups(WidgetDef& widget) {
  step();
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

}  // namespace vqc
