#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "support/document.h"
#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

namespace {

std::string saved_whole(const Document& document) {
  StringSink out;
  save_whole(document, out);
  EXPECT_TRUE(out.finish());
  return out.text();
}

/// All that documents can differ in and that is saved, a line for each value.
class Contents {
 public:
  explicit Contents(const Document& document) {
    for (const HeaderKey& key : header_keys) add(keyword_text(key.word), key.value(document));
    add("stop list", document.excluded_classes);
    for (const WidgetDef& widget : document.widgets) add(widget);
    for (const EnumDef& enumeration : document.enumerations) add(enumeration);
    for (const AliasDef& alias : document.aliases) add_record("alias", alias_fields, alias), add_uses(alias);
    for (const ConverterDef& each : document.converters)
      add_record("converter", converter_fields, each), add_uses(each);
    for (const PopupDef& popup : document.popups) add_record("popup", popup_fields, popup);
    add_names("page", document.pages);
    add_names("header", document.code_headers);
    add_names("cheader", document.config_headers);
    add_names("family_header", document.family_headers);
    for (const Family& family : document.families) add(family);
  }

  std::vector<std::string> lines;

 private:
  void add(std::string_view what, Text text) {
    lines.push_back(std::string(what) + (text ? " is " + std::string(text.view()) : " is null"));
  }
  void add(std::string_view what, int number) { lines.push_back(std::string(what) + " " + std::to_string(number)); }

  template <class Record, std::size_t n>
  void add_fields(const Field<Record> (&fields)[n], const Record& record) {
    for (const Field<Record>& field : fields) {
      std::visit([&](auto member) { add(keyword_text(field.word), record.*member); }, field.member);
    }
  }
  template <class Record, std::size_t n>
  void add_record(std::string_view kind, const Field<Record> (&fields)[n], const Record& record) {
    add(kind, record.name);
    add_fields(fields, record);
  }
  template <class Record>
  void add_uses(const Record& record) {
    add("uses", record.uses);
  }
  template <class List>
  void add_names(std::string_view kind, const List& list) {
    for (const auto& element : list) add(kind, name_of(element));
  }

  void add(const WidgetDef& widget) {
    add_record("widget", widget_fields, widget), add_uses(widget);
    for (const ResourceDef& resource : widget.resource_definitions) {
      add("resource", resource.name);
      add("popup", resource.popup);
      add("page", resource.page);
      add("counter", resource.counter);
      add("access", resource.access);
      add("visible", resource.visible);
      add("get", static_cast<int>(resource.free_get));
      add("set", static_cast<int>(resource.free_set));
    }
  }

  void add(const EnumDef& enumeration) {
    add_record("enumeration", enum_fields, enumeration), add_uses(enumeration);
    for (const EnumEntry& entry : enumeration.entries) add_record("entry", enum_entry_fields, entry);
  }

  void add(const Family& family) {
    add("family", family.name);
    add_fields<FamilyInit>(family_init_fields, family);
    add_names("uses widget", family.widgets);
    add_names("uses enumeration", family.enumerations);
    add_names("uses alias", family.aliases);
    add_names("uses converter", family.converters);
    add_names("uses header", family.code_headers);
    add_names("uses cheader", family.config_headers);
    add_names("uses family_header", family.family_headers);
    add_names("uses popup", family.popups);
    add_names("uses page", family.pages);
  }
};

/// Makes documents of all kinds of records, whose texts hold what is hard to write.
class OddDocument {
 public:
  OddDocument(unsigned seed, Document& document) : random_(seed), document_(document) {
    header();
    some([this] { widget(); });
    some([this] { enumeration(); });
    some([this] { fill(alias_fields, *document_.ensure(document_.aliases, name())); });
    some([this] { fill(popup_fields, *document_.ensure(document_.popups, name())); });
    some([this] { fill(converter_fields, *document_.ensure(document_.converters, name())); });
    some([this] { document_.ensure(document_.pages, name()); });
    some([this] { document_.ensure(document_.code_headers, name()); });
    some([this] { family(); });
    for (const PredefinedPopup& each : predefined_popups) {
      if (PopupDef* popup = document_.popups.find(each.name); popup && below(3) == 0) fill(popup_fields, *popup);
    }
  }

  /// Lets families have less than they are given, and in another order.
  void rearrange() {
    for (Family& family : document_.families) {
      each_family_list([&](auto list, auto pool) {
        using Reference = typename std::remove_reference_t<decltype(family.*list)>::Element;
        std::vector<Reference*> references;
        for (Reference& reference : family.*list) references.push_back(&reference);
        std::ranges::shuffle(references, random_);
        (family.*list).arrange(references);
        if (below(2) == 0 && !references.empty()) document_.remove(family.*list, document_.*pool, references.back());
      });
    }
  }

 private:
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  template <class Make>
  void some(Make make) {
    for (int count = below(5); count > 0; --count) make();
  }

  std::string odd_text() {
    static const std::string pieces[] = {
        "'", "\\", "\n", "\r", "\t", "\b", "\x01", "\x1B", "\x7F", "%",        "%%",   "%s",  "!",    "/*",       "*/",
        "0", "12", "n",  "\"", " ",  "A",  "}",    "\xFF", "\x80", "\xC3\xBC", "True", "\\'", "\\\\", "\xE2\x82", ";"};
    std::string text;
    for (int count = 1 + below(8); count > 0; --count) text += pieces[below(std::size(pieces))];
    if (below(40) == 0) text.resize(2047, '\'');
    return text;
  }
  Text text() { return document_.keep(Text(odd_text())); }
  Text optional_text() { return below(3) == 0 ? Text() : text(); }
  /// Names are few, so that many refer to each other; one is empty.
  Text name() {
    return below(3) == 0 ? text()
                         : Text(std::string_view("AABBCC").substr(static_cast<std::size_t>(below(6)), below(2)));
  }

  void fill(Text& member) { member = optional_text(); }
  void fill(bool& member) { member = below(2) == 0; }
  template <class Record, std::size_t n>
  void fill(const Field<Record> (&fields)[n], Record& record) {
    for (const Field<Record>& field : fields) std::visit([&](auto member) { fill(record.*member); }, field.member);
  }

  void header() {
    if (below(3) == 0) return;
    for (const HeaderKey& key : header_keys) fill(key.value(document_));
    document_.excluded_classes = optional_text();
  }

  void widget() {
    WidgetDef& widget = *document_.ensure(document_.widgets, name());
    fill(widget_fields, widget);
    some([&] { resource(*document_.ensure(widget.resource_definitions, name())); });
  }

  void resource(ResourceDef& resource) {
    static constexpr int accesses[] = {ACCESS_NOT_GIVEN, 0, 1, 7, 8, -2, 2147483647, -2147483647 - 1};
    fill(resource.popup), fill(resource.page), fill(resource.counter), fill(resource.visible);
    resource.access = accesses[below(std::size(accesses))];
    resource.free_get = static_cast<FreeMode>(below(3));
    resource.free_set = static_cast<FreeMode>(below(3));
  }

  void enumeration() {
    EnumDef& enumeration = *document_.ensure(document_.enumerations, name());
    fill(enum_fields, enumeration);
    some([&] { fill(enum_entry_fields, *document_.ensure(enumeration.entries, name())); });
  }

  template <class References, class Pool>
  void use(References& references, Pool& pool) {
    some([&] { document_.ensure(references, pool, name()); });
  }

  void family() {
    Family* family = document_.ensure(document_.families, name());
    if (!family) return;  // none is without a name
    fill<FamilyInit>(family_init_fields, *family);
    if (below(4) == 0) family->family_init = "";
    use(family->widgets, document_.widgets);
    use(family->enumerations, document_.enumerations);
    use(family->aliases, document_.aliases);
    use(family->code_headers, document_.code_headers);
    use(family->config_headers, document_.config_headers);
    use(family->family_headers, document_.family_headers);
    use(family->popups, document_.popups);
    use(family->pages, document_.pages);
    some([&] { use_converter(*family); });
  }
  void use_converter(Family& family) {
    const ConverterDef& used = *document_.ensure(family.converters, document_.converters, name())->record;
    document_.ensure(family.popups, document_.popups, used.dialog);
  }

  std::minstd_rand random_;
  Document& document_;
};

class SaveWhole : public DocumentTest {
 protected:
  /// The document as load_whole() reads it again.
  std::vector<std::string> read_again(const Document& written) {
    document.clear();
    return contents_after(load_whole(Source::from_text(saved_whole(written)), document, diagnostics));
  }
  std::vector<std::string> read_as_any(const Document& written) {
    document.clear();
    return contents_after(read_document(saved_whole(written)));
  }

 private:
  std::vector<std::string> contents_after(const LoadResult& result) const {
    EXPECT_TRUE(result.has_header);
    EXPECT_FALSE(result.first_error);
    return Contents(document).lines;
  }
};

TEST_F(SaveWhole, IsReadAsTheSameDocument) {
  for (unsigned seed = 1; seed <= 1000; ++seed) {
    Document written;
    OddDocument odd(seed, written);
    ASSERT_EQ(Contents(written).lines, read_as_any(written)) << "seed " << seed << '\n' << saved_whole(written);
    odd.rearrange();
    ASSERT_EQ(Contents(written).lines, read_again(written)) << "seed " << seed << '\n' << saved_whole(written);
  }
}

TEST_F(SaveWhole, KeepsTheOrderOfWhatAFamilyHas) {
  Document written;
  Family* family = written.ensure(written.families, "F");
  for (const char* name : {"a", "b"}) written.ensure(family->aliases, written.aliases, name);
  family->aliases.move_down(family->aliases.find("a"));
  family->pages.move_up(family->pages.find("misc"));
  family->pages.move_up(family->pages.find("misc"));
  read_again(written);
  ASSERT_TRUE(document.families.find("F"));
  EXPECT_EQ((Names{"b", "a"}), names_in(document.families.find("F")->aliases));
  EXPECT_EQ((Names{"display", "margins", "misc", "settings", "callbacks"}),
            names_in(document.families.find("F")->pages));
}

TEST_F(SaveWhole, PutsABackslashBeforeQuotesAndBackslashes) {
  document.ensure(document.pages, "it's a \\n");
  EXPECT_EQ("VQconfig\npage 'it\\'s a \\\\n'\n", saved_whole(document));
}

TEST_F(SaveWhole, KeepsDoubledPerCentSigns) {
  document.excluded_classes = "100%%";
  document.ensure(document.aliases, "%%")->to_name = "%%%";
  EXPECT_EQ("VQconfig\nstop_list = '100%%'\nalias '%%' {\n\tto_name='%%%'\n}\n", saved_whole(document));
}

TEST_F(SaveWhole, HasTheFlagsOfAFamilyWithoutAnInitialisationProcedure) {
  Document written;
  written.ensure(written.families, "F")->generate_family_init_stub = true;
  read_again(written);
  const Family* family = document.families.find("F");
  ASSERT_TRUE(family);
  EXPECT_EQ(Text(), family->family_init);
  EXPECT_TRUE(family->generate_family_init_stub);
  EXPECT_FALSE(family->generate_family_init_code);
}

TEST_F(SaveWhole, KeepsWhatADocumentMadeOfAPredefinedPopup) {
  Document written;
  written.ensure(written.families, "F");
  written.popups.find("vq_font_dialog_create")->dialog_init = "mine";
  written.popups.find("vq_fsb_dialog_create")->dialog_init = nullptr;
  read_again(written);
  EXPECT_EQ(Text("mine"), document.popups.find("vq_font_dialog_create")->dialog_init);
  EXPECT_EQ(Text(), document.popups.find("vq_fsb_dialog_create")->dialog_init);
  EXPECT_EQ(Text("vq_colour_dialog_initialise"), document.popups.find("vq_colour_dialog_create")->dialog_init);
}

TEST_F(SaveWhole, CutsATextWhereTheLexerDoes) {
  Document written;
  const std::string long_name(3000, '\\');
  written.ensure(written.pages, Text(long_name));
  read_again(written);
  EXPECT_EQ(Names{std::string(2047, '\\')}, names_in(document.pages));
}

}  // namespace
