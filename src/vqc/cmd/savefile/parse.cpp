#include "vqc/cmd/savefile/parse.h"

#include <strings.h>

#include <new>
#include <string>
#include <utility>

#include "libkel/message.h"
#include "vqc/cmd/model/alias.h"
#include "vqc/cmd/model/converter.h"
#include "vqc/cmd/model/enumedit.h"
#include "vqc/cmd/model/enumentry.h"
#include "vqc/cmd/model/enumlist.h"
#include "vqc/cmd/model/family.h"
#include "vqc/cmd/model/header.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/model/widgetedit.h"
#include "vqc/cmd/savefile/document_hooks.h"
#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/header_keys.h"
#include "vqc/cmd/savefile/lexer.h"
#include "vqc/cmd/savefile/util.h"

namespace {

/// Whether `text` is `word` but for the case of its letters.
bool same_word(std::string_view text, std::string_view word) {
  return text.size() == word.size() && strncasecmp(text.data(), word.data(), word.size()) == 0;
}

/// Reads one document into the model, by a function for each rule of its grammar. Each returns false, with the error
/// reported, where the rule cannot be followed; reading stops there.
///
///   NAME   a string or an identifier          BOOL   a NAME; "False" is false
///   STRING a string                           INT    an integer
class Reader {
 public:
  explicit Reader(std::unique_ptr<Stream> stream) : lexer_(std::move(stream)) {
    lexer_.next_token();
    lineno = 1;
  }

  bool header();
  void items();

 private:
  // Reporting and the small rules.
  bool error(const char* message_name);
  bool expect(char character);
  bool try_take(char character);
  bool misplaced();
  bool at_name() const { return lexer_.is(SaveFileToken::string) || lexer_.is(SaveFileToken::identifier); }
  bool take_name(Text& name);
  bool take_boolean(bool& flag);
  bool assigned(Text& name);
  bool assigned_optional(Text& value);
  bool assigned(bool& flag);

  // Blocks.
  template <class Body>
  bool block(Body body);
  template <class Record, std::size_t n>
  const Field<Record>* find_field(const Field<Record> (&fields)[n]) const;
  template <class Record, std::size_t n>
  bool field(const Field<Record> (&fields)[n], Record& record);
  template <class Record, std::size_t n>
  bool record_block(const Field<Record> (&fields)[n], Record& record);

  // Items.
  bool item();
  template <auto& pool>
  auto* named();
  template <auto& pool>
  bool bare_record();
  bool alias();
  bool popup();
  bool converter();
  static void rewrite_popup(const PopupDef& described);
  bool enumeration();
  bool enumentry(EnumDef& owner);
  bool widget();
  bool family();
  bool family_field(Family& family);
  bool family_list(Family& family);
  bool family_converter(Family& family);

  // Resources.
  bool resource_definitions(WidgetDef& widget);
  bool resource(WidgetDef& widget, bool& another);
  bool usual_end(ResourceDef& resource);
  bool resource_tail(ResourceDef& resource, bool& another);
  bool resource_options(ResourceDef& resource, bool& another);
  ResourceDef* named_resource(WidgetDef& widget);
  void take_optional_string(Text& value);
  bool visible(bool& flag);
  bool free_mode(FreeMode& mode, const char* message_name);
  bool access(ResourceDef& resource);
  bool counter(ResourceDef& resource);
  bool resource_popups(WidgetDef& widget);

  Lexer lexer_;
};

// Reporting and the small rules.

/// Counts a syntax error and shows the first of the process. Always false.
bool Reader::error(const char* message_name) {
  if (parse_errors++ == 0) vq_syntax_error(lineno, message_name);
  lexer_.close();
  return false;
}

bool Reader::expect(char character) {
  if (try_take(character)) return true;
  const char message[] = {'\'', character, '\'', '\0'};
  return error(message);
}

bool Reader::try_take(char character) {
  if (!lexer_.is(character)) return false;
  lexer_.next_token();
  return true;
}

/// Reports a token that stands where a block wants a field or its end.
bool Reader::misplaced() {
  const bool word = at_name() || lexer_.is(SaveFileToken::keyword) || lexer_.is(SaveFileToken::integer);
  return word ? error("se_unexpected_keyword") : expect('}');
}

bool Reader::take_name(Text& name) {
  if (!at_name()) return error("se_string");
  name = Text(lexer_.text());
  lexer_.next_token();
  return true;
}

bool Reader::take_boolean(bool& flag) {
  if (!at_name()) return error("se_boolean");
  flag = !same_word(lexer_.text(), "False");
  lexer_.next_token();
  return true;
}

// assigned := "=" NAME
bool Reader::assigned(Text& name) { return expect('=') && take_name(name); }

/// An empty value takes the place of none.
bool Reader::assigned_optional(Text& value) {
  if (!assigned(value)) return false;
  value = non_empty(value);
  return true;
}

// assigned := "=" BOOL
bool Reader::assigned(bool& flag) { return expect('=') && take_boolean(flag); }

// Blocks.

// block := "{" { body } "}"
// `body` is called with a keyword current. It reads what the keyword begins, or reports it as misplaced.
template <class Body>
bool Reader::block(Body body) {
  if (!expect('{')) return false;
  while (lexer_.is(SaveFileToken::keyword)) {
    if (!body()) return false;
  }
  return try_take('}') || misplaced();
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
  if (const auto* text = std::get_if<Text Record::*>(&found->member)) return assigned_optional(record.**text);
  return assigned(record.*std::get<bool Record::*>(found->member));
}

template <class Record, std::size_t n>
bool Reader::record_block(const Field<Record> (&fields)[n], Record& record) {
  return block([&] { return field(fields, record); });
}

// document := "VQconfig" header { item }
// header   := { key "=" NAME }, in the order of the keys
bool Reader::header() try {
  if (!lexer_.is(Kw::vqconfig)) {
    error_show("bad_save_file");
    return false;
  }
  lexer_.next_token();
  for (const HeaderKey& key : header_keys) {
    if (!lexer_.is(key.word)) continue;
    lexer_.next_token();
    if (!assigned_optional(*key.value)) return false;
  }
  if (!lexer_.is(Kw::stop_list)) return true;
  lexer_.next_token();
  Text classes;
  if (!assigned_optional(classes)) return false;
  stop_list_set(classes);
  return true;
} catch (const std::bad_alloc&) {
  error_show("out_of_memory");
  return false;
}

// Items.

/// Where memory runs out, what has been read stays.
void Reader::items() try {
  while (!lexer_.is(SaveFileToken::end_of_input) && item()) continue;
} catch (const std::bad_alloc&) {
  error_show("out_of_memory");
}

bool Reader::item() {
  struct Item {
    Kw word;
    bool (Reader::*read)();
  };
  static constexpr Item kItems[] = {
      {Kw::widget, &Reader::widget},
      {Kw::enumeration, &Reader::enumeration},
      {Kw::header, &Reader::bare_record<code_header_pool>},
      {Kw::cheader, &Reader::bare_record<config_header_pool>},
      {Kw::family_header, &Reader::bare_record<family_header_pool>},
      {Kw::alias, &Reader::alias},
      {Kw::converter, &Reader::converter},
      {Kw::popup, &Reader::popup},
      {Kw::page, &Reader::bare_record<page_pool>},
      {Kw::family, &Reader::family},
  };
  for (const Item& each : kItems) {
    if (!lexer_.is(each.word)) continue;
    lexer_.next_token();
    return (this->*each.read)();
  }
  return error(lexer_.is(SaveFileToken::keyword) ? "se_unexpected_keyword" : "se_reserved");
}

/// The record of the pool that the current NAME names, made if there is none. Null when there is no name.
template <auto& pool>
auto* Reader::named() {
  Text name;
  if (take_name(name)) with_memory(pool.add(name));
  return name ? pool.ptr(name) : nullptr;
}

// header := ("header" | "cheader" | "family_header") NAME
// page   := "page" NAME
template <auto& pool>
bool Reader::bare_record() {
  return named<pool>() != nullptr;
}

// alias := "alias" NAME "{" { field } "}"
bool Reader::alias() {
  AliasDef* alias = named<alias_pool>();
  return alias && record_block(alias_fields, *alias);
}

// popup := "popup" NAME "{" { field } "}"
bool Reader::popup() {
  PopupDef* popup = named<popup_pool>();
  return popup && record_block(popup_fields, *popup);
}

// converter := "converter" NAME "{" { field | older } "}"
// older     := ("dialog_create" | "dialog_init" | "dialog_update") "=" NAME
bool Reader::converter() {
  ConverterDef* converter = named<converter_pool>();
  PopupDef described;  // by the older fields
  const bool whole = converter && block([&] {
                       if (find_field(popup_fields)) return field(popup_fields, described);
                       if (!lexer_.is(Kw::dialog_create)) return field(converter_fields, *converter);
                       lexer_.next_token();
                       if (!assigned_optional(described.name)) return false;
                       converter->dialog = described.name;
                       return true;
                     });
  if (whole && described.name) rewrite_popup(described);
  return whole;
}

void Reader::rewrite_popup(const PopupDef& described) {
  with_memory(popup_add(described.name));
  PopupDef* popup = popup_ptr(described.name);
  if (!popup) return;
  popup->dialog_init = described.dialog_init;
  popup->dialog_update = described.dialog_update;
}

// enumeration := "enumeration" NAME "{" { field | enumentry } "}"
bool Reader::enumeration() {
  EnumDef* enumeration = named<enum_pool>();
  return enumeration &&
         block([&] { return lexer_.is(Kw::enumentry) ? enumentry(*enumeration) : field(enum_fields, *enumeration); });
}

// enumentry := "enumentry" NAME "{" { field } "}"
bool Reader::enumentry(EnumDef& owner) {
  lexer_.next_token();
  Text name;
  if (!take_name(name)) return false;
  with_memory(enumentry_add(name, &owner));
  EnumEntry* entry = enumentry_ptr(&owner, name);
  return entry && record_block(enum_entry_fields, *entry);
}

// widget := "widget" NAME "{" { field | resource_definitions | resource_popups } "}"
bool Reader::widget() {
  WidgetDef* widget = named<widget_pool>();
  return widget && block([&] {
           if (lexer_.is(Kw::resource_definitions)) return resource_definitions(*widget);
           if (lexer_.is(Kw::resource_popups)) return resource_popups(*widget);
           return field(widget_fields, *widget);
         });
}

// family := "family" NAME "{" { family_field } "}"
bool Reader::family() {
  Text name;
  if (!take_name(name)) return false;
  with_memory(family_add(name));
  Family* family = family_ptr(name);
  return family && block([&] { return family_field(*family); });
}

// family_field := ("family_init" | list) "=" NAME | flag "=" BOOL
bool Reader::family_field(Family& family) {
  if (const Field<FamilyInit>* flag = find_field(family_init_flags)) {
    lexer_.next_token();
    return assigned(static_cast<FamilyInit&>(family).*std::get<bool FamilyInit::*>(flag->member));
  }
  if (lexer_.is(Kw::converter)) return family_converter(family);
  if (lexer_.is(Kw::family_init)) {
    lexer_.next_token();
    return assigned(family.family_init);
  }
  return family_list(family);
}

// list := "widget" | "enumeration" | "header" | "cheader" | "family_header" | "alias" | "popup" | "page"
bool Reader::family_list(Family& family) {
  struct List {
    Kw word;
    ErrorCode (*add)(const Text& name, Family* family);
  };
  static constexpr List kLists[] = {
      {Kw::widget, widgetlist_add},
      {Kw::enumeration, enumlist_add},
      {Kw::header, codeheaderlist_add},
      {Kw::cheader, confheaderlist_add},
      {Kw::family_header, familyheaderlist_add},
      {Kw::alias, aliaslist_add},
      {Kw::popup, popuplist_add},
      {Kw::page, pagelist_add},
  };
  for (const List& list : kLists) {
    if (!lexer_.is(list.word)) continue;
    lexer_.next_token();
    Text name;
    if (!assigned(name)) return false;
    with_memory(list.add(name, &family));
    return true;
  }
  return misplaced();
}

/// A family that uses a converter also uses the converter's popup.
bool Reader::family_converter(Family& family) {
  lexer_.next_token();
  Text name;
  if (!assigned(name)) return false;
  with_memory(converterlist_add(name, &family));
  const ConverterDef* converter = converter_ptr(name);
  if (converter && converter->dialog) with_memory(popuplist_add(converter->dialog, &family));
  return true;
}

// Resources.

// resource_definitions := "resource_definitions" "=" [ resource { "," resource } ] any-token
bool Reader::resource_definitions(WidgetDef& widget) {
  lexer_.next_token();
  if (!expect('=')) return false;
  for (bool another = lexer_.is(SaveFileToken::string); another;) {
    if (!resource(widget, another)) return false;
  }
  lexer_.next_token();
  return true;
}

// resource := STRING "," [ STRING ] "," [ STRING ] "," identifier [ "," tail ]
// Sets `another` if a "," and the name of a further resource follow. The older form has no tail.
bool Reader::resource(WidgetDef& widget, bool& another) {
  ResourceDef* resource = named_resource(widget);
  if (!resource) return error("se_bad_resource");
  if (!expect(',')) return false;
  take_optional_string(resource->popup);
  if (!expect(',')) return false;
  take_optional_string(resource->page);
  if (usual_end(*resource)) return resource_options(*resource, another);
  if (!expect(',') || !visible(resource->visible)) return false;
  another = false;
  if (!try_take(',')) return true;
  another = lexer_.is(SaveFileToken::string);
  return another || resource_tail(*resource, another);
}

/// Takes what most resources of a document end with at one look, instead of word by word.
bool Reader::usual_end(ResourceDef& resource) {
  if (!lexer_.is(',') || !lexer_.skip(" True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT")) return false;
  resource.visible = true;
  resource.free_get = resource.free_set = FreeMode::by_default;
  lexer_.next_token();
  return true;
}

// tail := free-mode "," free-mode options
bool Reader::resource_tail(ResourceDef& resource, bool& another) {
  if (!free_mode(resource.free_get, "se_free_get") || !expect(',')) return false;
  if (!free_mode(resource.free_set, "se_free_set")) return false;
  return resource_options(resource, another);
}

// options := [ "access" INT ] [ "counter" STRING ]
bool Reader::resource_options(ResourceDef& resource, bool& another) {
  if (!access(resource) || !counter(resource)) return false;
  another = try_take(',') && lexer_.is(SaveFileToken::string);
  return true;
}

/// The resource that the current string names, made if there is none.
ResourceDef* Reader::named_resource(WidgetDef& widget) {
  const Text name(lexer_.text());
  lexer_.next_token();
  with_memory(we_resource_add(name, &widget));
  return resource_ptr(&widget, name);
}

void Reader::take_optional_string(Text& value) {
  if (!lexer_.is(SaveFileToken::string)) return;
  value = non_empty(Text(lexer_.text()));
  lexer_.next_token();
}

/// Other than anywhere else, only "True" is true here.
bool Reader::visible(bool& flag) {
  if (!lexer_.is(SaveFileToken::identifier)) return error("se_boolean");
  flag = same_word(lexer_.text(), "True");
  lexer_.next_token();
  return true;
}

bool Reader::free_mode(FreeMode& mode, const char* message_name) {
  if (!lexer_.is(SaveFileToken::identifier)) return error("se_boolean");
  for (std::size_t i = 0; i < std::size(free_mode_words); ++i) {
    if (lexer_.text() != free_mode_words[i]) continue;
    mode = static_cast<FreeMode>(i);
    lexer_.next_token();
    return true;
  }
  return error(message_name);
}

bool Reader::access(ResourceDef& resource) {
  resource.access = ACCESS_NOT_GIVEN;
  if (!lexer_.is(Kw::access)) return true;
  lexer_.next_token();
  if (!lexer_.is(SaveFileToken::integer)) return error("se_integer");
  resource.access = lexer_.integer();
  lexer_.next_token();
  return true;
}

bool Reader::counter(ResourceDef& resource) {
  if (!lexer_.is(Kw::counter)) return true;
  lexer_.next_token();
  if (!lexer_.is(SaveFileToken::string)) return error("se_string");
  take_optional_string(resource.counter);
  return true;
}

// resource_popups := "resource_popups" "=" pair { "," pair }
// pair            := STRING [ "," STRING ]
bool Reader::resource_popups(WidgetDef& widget) {
  lexer_.next_token();
  if (!expect('=')) return false;
  do {
    if (!lexer_.is(SaveFileToken::string)) return error("se_string");
    ResourceDef* resource = named_resource(widget);
    if (!resource) return error("se_bad_resource");
    if (!try_take(',')) return true;
    if (!lexer_.is(SaveFileToken::string)) return error("se_string");
    take_optional_string(resource->popup);
  } while (try_take(','));
  return true;
}

}  // namespace

int parseit(Text* path, int fresh) {
  if (!path || !*path) return 0;
  std::unique_ptr<Stream> stream = openfile(*path, "r");
  if (!stream) {
    *path = nullptr;
    return 0;
  }
  Reader reader(std::move(stream));
  if (fresh) clear_document();
  if (!reader.header()) {
    if (!fresh) return 0;
    clear_document();  // of what the header said before it went wrong
    *path = nullptr;
    return 0;
  }
  reader.items();
  if (fresh && document_hooks.titled) document_hooks.titled(*path);
  return 1;
}
