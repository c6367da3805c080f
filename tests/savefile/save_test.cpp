#include "vqc/cmd/savefile/save.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "support/document.h"

using namespace vqc;

namespace {

const char predefined_pool[] =
    "popup 'vq_colour_dialog_create' {\n\tdialog_init='vq_colour_dialog_initialise'\n}\n"
    "popup 'vq_font_dialog_create' {\n\tdialog_init='vq_font_dialog_initialise'\n}\n"
    "popup 'vq_fsb_dialog_create' {\n\tdialog_init='vq_fsb_dialog_initialise'\n}\n"
    "popup 'vq_pixmap_dialog_create' {\n\tdialog_init='vq_pixmap_dialog_initialise'\n}\n"
    "popup 'vq_string_dialog_create' {\n\tdialog_init='vq_string_dialog_initialise'\n}\n"
    "page 'display'\n"
    "page 'margins'\n"
    "page 'settings'\n"
    "page 'callbacks'\n"
    "page 'misc'\n";

const char predefined_uses[] =
    "\tpopup='vq_colour_dialog_create'\n"
    "\tpopup='vq_font_dialog_create'\n"
    "\tpopup='vq_fsb_dialog_create'\n"
    "\tpopup='vq_pixmap_dialog_create'\n"
    "\tpopup='vq_string_dialog_create'\n"
    "\tpage='display'\n"
    "\tpage='margins'\n"
    "\tpage='settings'\n"
    "\tpage='callbacks'\n"
    "\tpage='misc'\n";

class SaveTest : public DocumentTest {
 protected:
  WidgetDef* new_widget(const char* name) { return document.ensure(document.widgets, name); }
  ResourceDef* new_resource(WidgetDef* widget, const char* name) {
    return document.ensure(widget->resource_definitions, name);
  }
  /// What is written after the first line.
  std::string written_items() const {
    const std::string text = saved(document);
    EXPECT_EQ("VQconfig\n", text.substr(0, 9));
    return text.substr(9);
  }
};

TEST_F(SaveTest, EmptyDocumentIsOneLine) { EXPECT_EQ("VQconfig\n", saved(document)); }

// The header.

using WriteHeader = SaveTest;

TEST_F(WriteHeader, HasAllNamesInTheirOrder) {
  document.output_names.code = "code.c";
  document.output_names.config = "config.c";
  document.output_names.stubs = "stubs.c";
  document.names.family_table.document = "table";
  document.names.family_names.document = "names";
  document.names.xwidgets.document = "widgets";
  document.names.stop_list.document = "stops";
  document.names.popups.document = "popups_";
  document.names.page_names.document = "pages";
  document.names.family_count.document = "count";
  document.names.enumerations.document = "enums";
  document.names.converters.document = "convs";
  document.names.aliases.document = "aliases_";
  document.excluded_classes = "XmFrame,XmLabel";
  EXPECT_EQ(
      "VQconfig\n"
      "code_name='code.c'\n"
      "config_name='config.c'\n"
      "stubs_name='stubs.c'\n"
      "generate_family_table_string='table'\n"
      "generate_family_name_string='names'\n"
      "generate_xwidget_string='widgets'\n"
      "generate_stop_list_string='stops'\n"
      "generate_popup_string='popups_'\n"
      "generate_page_name_string='pages'\n"
      "generate_family_count_string='count'\n"
      "generate_enumeration_string='enums'\n"
      "generate_converter_string='convs'\n"
      "generate_alias_string='aliases_'\n"
      "stop_list = 'XmFrame,XmLabel'\n",
      saved(document));
}

TEST_F(WriteHeader, HasANameThatEqualsItsDefault) {
  document.names.aliases.document = "aliases";
  EXPECT_EQ("VQconfig\ngenerate_alias_string='aliases'\n", saved(document));
}

TEST_F(WriteHeader, LeavesOutANameThatWasTakenBack) {
  document.names.aliases.document = "mine";
  document.names.aliases.document = nullptr;
  EXPECT_EQ("VQconfig\n", saved(document));
}

TEST_F(WriteHeader, LeavesOutWhatTheResourcesSay) {
  document.names.aliases.resource = "from_resource";
  EXPECT_EQ("VQconfig\n", saved(document));
}

TEST_F(WriteHeader, LeavesOutAnEmptyStopList) {
  document.excluded_classes = "";
  EXPECT_EQ("VQconfig\n", saved(document));
}

TEST_F(WriteHeader, HasTheStopListAsItStands) {
  document.excluded_classes = "100%%,it's";
  EXPECT_EQ("VQconfig\nstop_list = '100%%,it's'\n", saved(document));
}

// Widgets.

using WriteWidget = SaveTest;

TEST_F(WriteWidget, LeavesOutWhatANewRecordHas) {
  new_widget("W");
  EXPECT_EQ("widget 'W' {\n}\n", written_items());
}

TEST_F(WriteWidget, HasAllFieldsInTheirOrder) {
  WidgetDef& widget = *new_widget("W");
  widget.include_filename = "W.h";
  widget.defined_name = "wClass";
  widget.realise = "real";
  widget.abstract = "abs";
  widget.can_add_child = "add";
  widget.appropriate_parent = "parent";
  widget.can_manage = widget.can_edit_abstract = widget.can_create = false;
  widget.disablegoto = widget.disablefgswap = widget.default_is_dont_free = widget.generate_initialise = true;
  widget.largeicon = "large";
  widget.smallicon = "small";
  widget.largeiconheader = "large.h";
  widget.smalliconheader = "small.h";
  widget.pixmap_resource = "pixmap";
  widget.dialogue_doc = "ddoc";
  widget.dialogue_tag = "dtag";
  widget.widget_doc = "wdoc";
  widget.widget_tag = "wtag";
  EXPECT_EQ(
      "widget 'W' {\n"
      "\tinclude_filename='W.h'\n"
      "\tdefined_name='wClass'\n"
      "\trealise='real'\n"
      "\tabstract='abs'\n"
      "\tcan_add_child='add'\n"
      "\tappropriate_parent='parent'\n"
      "\tcan_manage=False\n"
      "\tcan_edit_abstract=False\n"
      "\tdisablegoto=True\n"
      "\tdisablefgswap=True\n"
      "\tcan_create=False\n"
      "\tdefault_is_dont_free=True\n"
      "\tgenerate_initialise=True\n"
      "\tlargeicon='large'\n"
      "\tsmallicon='small'\n"
      "\tlargeiconheader='large.h'\n"
      "\tsmalliconheader='small.h'\n"
      "\tpixmap_resource='pixmap'\n"
      "\tdialogue_doc='ddoc'\n"
      "\tdialogue_tag='dtag'\n"
      "\twidget_doc='wdoc'\n"
      "\twidget_tag='wtag'\n"
      "}\n",
      written_items());
}

TEST_F(WriteWidget, HasNoCompatibility) {
  WidgetDef& widget = *new_widget("W");
  ResourceDef& resource = *new_resource(&widget, "r");
  resource.mfc_compatible = resource.java_compatible = true;
  EXPECT_EQ("widget 'W' {\n\tresource_definitions='r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT;\n}\n",
            written_items());
}

TEST_F(WriteWidget, HasAnEmptyTextThatIsNotNull) {
  new_widget("W")->realise = "";
  EXPECT_EQ("widget 'W' {\n\trealise=''\n}\n", written_items());
}

TEST_F(WriteWidget, HasEveryPartOfAResource) {
  ResourceDef& resource = *new_resource(new_widget("W"), "r");
  resource.popup = "P";
  resource.page = "settings";
  resource.visible = false;
  resource.free_get = FreeMode::free;
  resource.free_set = FreeMode::dont_free;
  resource.access = 7;
  resource.counter = "n";
  EXPECT_EQ(
      "widget 'W' {\n"
      "\tresource_definitions='r', 'P', 'settings', False, VQC_FREE, VQC_DONT_FREE access 7 counter 'n';\n"
      "}\n",
      written_items());
}

TEST_F(WriteWidget, HasALineForEachResource) {
  WidgetDef* widget = new_widget("W");
  new_resource(widget, "c")->counter = "n";
  new_resource(widget, "a")->access = 0;
  new_resource(widget, "b")->page = "misc";
  EXPECT_EQ(
      "widget 'W' {\n"
      "\tresource_definitions='a', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 0,\n"
      "'b', , 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT,\n"
      "'c', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT counter 'n';\n"
      "}\n",
      written_items());
}

TEST_F(WriteWidget, ComesInOrderOfNames) {
  new_widget("b");
  new_widget("a");
  new_widget("C");
  EXPECT_EQ("widget 'C' {\n}\nwidget 'a' {\n}\nwidget 'b' {\n}\n", written_items());
}

// The other records.

TEST_F(SaveTest, EnumerationHasItsTypeAndEntriesAsTheyCame) {
  EnumDef* enumeration = document.ensure(document.enumerations, "E");
  enumeration->type_name = "int";
  document.ensure(enumeration->entries, "z");
  EnumEntry* entry = document.ensure(enumeration->entries, "a");
  entry->code_symbol = "A";
  entry->resfile_symbol = "a_text";
  EXPECT_EQ(
      "enumeration 'E' {\n"
      "\ttypename='int'\n"
      "\tenumentry 'z'{\n"
      "\t}\n"
      "\tenumentry 'a'{\n"
      "\t\tcode_symbol='A'\n"
      "\t\tresfile_symbol='a_text'\n"
      "\t}\n"
      "}\n",
      written_items());
}

TEST_F(SaveTest, NewRecordsAreEmptyBlocks) {
  document.ensure(document.enumerations, "E");
  document.ensure(document.aliases, "A");
  document.ensure(document.converters, "C");
  document.ensure(document.popups, "P");
  EXPECT_EQ("enumeration 'E' {\n}\nalias 'A' {\n}\nconverter 'C' {\n}\npopup 'P' {\n}\n", written_items());
}

TEST_F(SaveTest, HeadersArePoolByPool) {
  document.ensure(document.family_headers, "f.h");
  document.ensure(document.config_headers, "n.h");
  document.ensure(document.code_headers, "d.h");
  document.ensure(document.code_headers, "b.h");
  EXPECT_EQ("header 'b.h'\nheader 'd.h'\ncheader 'n.h'\nfamily_header 'f.h'\n", written_items());
}

TEST_F(SaveTest, AliasHasTheTypeItNames) {
  AliasDef* alias = document.ensure(document.aliases, "A");
  alias->to_name = "T";
  EXPECT_EQ("alias 'A' {\n\tto_name='T'\n}\n", written_items());
}

TEST_F(SaveTest, ConverterHasItsTrueFlagsOnly) {
  ConverterDef* converter = document.ensure(document.converters, "C");
  converter->proc_name = "convert";
  converter->dialog = "D";
  converter->add_in_vq = true;
  converter->add_in_code = true;
  EXPECT_EQ("converter 'C' {\n\tproc_name='convert'\n\tdialog='D'\n\tadd_in_vq=True\n\tadd_in_code=True\n}\n",
            written_items());
  converter->add_in_vq = false;
  EXPECT_EQ("converter 'C' {\n\tproc_name='convert'\n\tdialog='D'\n\tadd_in_code=True\n}\n", written_items());
}

TEST_F(SaveTest, PopupHasItsProcedures) {
  PopupDef* popup = document.ensure(document.popups, "P");
  popup->dialog_init = "init";
  popup->dialog_update = "update";
  EXPECT_EQ("popup 'P' {\n\tdialog_init='init'\n\tdialog_update='update'\n}\n", written_items());
}

TEST_F(SaveTest, PagesStandAsTheyCame) {
  document.ensure(document.pages, "z");
  document.ensure(document.pages, "a");
  EXPECT_EQ("page 'z'\npage 'a'\n", written_items());
}

// Families.

using WriteFamily = SaveTest;

TEST_F(WriteFamily, HasThePredefinedPagesAndPopups) {
  document.ensure(document.families, "F");
  EXPECT_EQ(predefined_pool + std::string("family 'F' {\n") + predefined_uses + "}\n", written_items());
}

TEST_F(WriteFamily, LeavesOutFlagsWithoutAnInitProcedure) {
  Family* family = document.ensure(document.families, "F");
  family->generate_family_init_code = family->generate_family_init_vq = true;
  EXPECT_EQ(predefined_pool + std::string("family 'F' {\n") + predefined_uses + "}\n", written_items());
}

TEST_F(WriteFamily, HasAllFlagsWithAnInitProcedure) {
  Family* family = document.ensure(document.families, "F");
  family->family_init = "init";
  family->generate_family_init_code = true;
  family->generate_family_init_pre_shell = true;
  EXPECT_EQ(predefined_pool +
                std::string("family 'F' {\n"
                            "\tfamily_init='init'\n"
                            "\tgenerate_family_init_code=True\n"
                            "\tgenerate_family_init_stub=False\n"
                            "\tgenerate_family_init_vq=False\n"
                            "\tgenerate_family_init_pre_shell=True\n") +
                predefined_uses + "}\n",
            written_items());
}

TEST_F(WriteFamily, TakesAnEmptyInitProcedureForOne) {
  document.ensure(document.families, "F")->family_init = "";
  EXPECT_NE(std::string::npos,
            written_items().find("family 'F' {\n\tfamily_init=''\n\tgenerate_family_init_code=False\n"
                                 "\tgenerate_family_init_stub=False\n"));
}

TEST_F(WriteFamily, HasItsListsInTheirOrder) {
  Family* family = document.ensure(document.families, "F");
  document.ensure(family->config_headers, document.config_headers, "n.h");
  document.ensure(family->family_headers, document.family_headers, "f.h");
  document.ensure(family->code_headers, document.code_headers, "z.h");
  document.ensure(family->code_headers, document.code_headers, "c.h");
  document.ensure(family->converters, document.converters, "C");
  document.ensure(family->aliases, document.aliases, "A");
  document.ensure(family->enumerations, document.enumerations, "E");
  document.ensure(family->widgets, document.widgets, "V");
  document.ensure(family->widgets, document.widgets, "U");
  EXPECT_NE(std::string::npos, written_items().find("family 'F' {\n"
                                                    "\twidget='V'\n"
                                                    "\twidget='U'\n"
                                                    "\tenumeration='E'\n"
                                                    "\theader='z.h'\n"
                                                    "\theader='c.h'\n"
                                                    "\tcheader='n.h'\n"
                                                    "\tfamily_header='f.h'\n"
                                                    "\talias='A'\n"
                                                    "\tconverter='C'\n" +
                                                    std::string(predefined_uses) + "}\n"));
}

TEST_F(WriteFamily, ComesInTheOrderOfTheFamilies) {
  document.ensure(document.families, "G");
  document.ensure(document.families, "F");
  const std::string items = written_items();
  EXPECT_LT(items.find("family 'G'"), items.find("family 'F'"));
  document.families.move_up(document.families.find("F"));
  const std::string moved = written_items();
  EXPECT_LT(moved.find("family 'F'"), moved.find("family 'G'"));
}

TEST_F(SaveTest, SectionsStandInTheirOrder) {
  document.ensure(document.families, "F");
  document.ensure(document.pages, "own");
  document.ensure(document.popups, "a_popup");
  document.ensure(document.converters, "C");
  document.ensure(document.aliases, "A");
  document.ensure(document.family_headers, "f.h");
  document.ensure(document.config_headers, "n.h");
  document.ensure(document.code_headers, "c.h");
  document.ensure(document.enumerations, "E");
  new_widget("W");
  EXPECT_EQ(
      "widget 'W' {\n}\n"
      "enumeration 'E' {\n}\n"
      "header 'c.h'\n"
      "cheader 'n.h'\n"
      "family_header 'f.h'\n"
      "alias 'A' {\n}\n"
      "converter 'C' {\n}\n"
      "popup 'a_popup' {\n}\n" +
          std::string(predefined_pool) + "page 'own'\nfamily 'F' {\n" + predefined_uses + "}\n",
      written_items());
}

// Texts.

TEST_F(SaveTest, NothingInATextIsEscaped) {
  document.ensure(document.aliases, "it's a\\b");
  EXPECT_EQ("alias 'it's a\\b' {\n}\n", written_items());
}

TEST_F(SaveTest, DoubledPerCentSignsAreWrittenAsOne) {
  AliasDef* alias = document.ensure(document.aliases, "100%%");
  alias->to_name = "%s%d %%%%";
  EXPECT_EQ("alias '100%' {\n\tto_name='%s%d %%'\n}\n", written_items());
}

TEST_F(SaveTest, LongTextsAreWrittenWhole) {
  const std::string longest(100000, 'x');
  document.ensure(document.aliases, document.keep(longest.c_str()));
  EXPECT_EQ("alias '" + longest + "' {\n}\n", written_items());
}

// Failures.

TEST_F(SaveTest, TellsAtTheEndThatTheDiskIsFull) {
  const std::unique_ptr<FileSink> full = FileSink::open("/dev/full");
  ASSERT_TRUE(full);
  save(document, *full);
  errno = 0;
  EXPECT_FALSE(full->finish());
  EXPECT_EQ(ENOSPC, errno);
}

/// Takes nothing, and counts what it has been offered.
class RefusingSink : public Sink {
 public:
  std::size_t offered = 0;

 private:
  bool take(std::string_view text) override {
    offered += text.size();
    return false;
  }
};

TEST_F(SaveTest, GoesOnWhenALongDocumentDoesNotFit) {
  for (int i = 0; i < 10000; ++i) {
    const std::string name = "some_alias_" + std::to_string(i);
    document.ensure(document.aliases, document.keep(name.c_str()));
  }
  RefusingSink sink;
  save(document, sink);
  EXPECT_FALSE(sink.finish());
  EXPECT_EQ(saved(document).size(), sink.offered);
}

TEST_F(SaveTest, LeavesTheDocumentAsItIs) {
  for (bool dirty : {false, true}) {
    document.dirty = dirty;
    EXPECT_EQ("VQconfig\n", saved(document));
    EXPECT_EQ(dirty, document.dirty);
  }
}

// There and back.

class RoundTrip : public DocumentTest {
 protected:
  /// Reads into the document, in place of what is there, what must be free of faults.
  void read_saved(const std::string& text) {
    document.clear();
    const LoadResult result = read_document(text);
    EXPECT_TRUE(result.has_header);
    EXPECT_EQ(Findings{}, diagnostics.findings());
  }
  std::string read_and_saved(const std::string& text) {
    read_saved(text);
    return saved(document);
  }
};

const char everything[] =
    "VQconfig\n"
    "code_name='demo_code.c'\n"
    "stubs_name='demo_stubs.c'\n"
    "generate_xwidget_string='my_widgets'\n"
    "stop_list = 'XmFrame,XmLabel'\n"
    "widget 'XmDial' {\n"
    "\tinclude_filename='Dial.h'\n"
    "\tcan_manage=False\n"
    "\twidget_tag='caf\xc3\xa9 100% \n\"two lines\"'\n"
    "\tresource_definitions='maximum', 'P', , False, VQC_DONT_FREE, VQC_FREE counter 'n',\n"
    "'value', , 'settings', True, VQC_FREE_DEFAULT, VQC_FREE access 3;\n"
    "}\n"
    "enumeration 'DialMode' {\n"
    "\ttypename='int'\n"
    "\tenumentry 'slow'{\n"
    "\t}\n"
    "\tenumentry 'fast'{\n"
    "\t\tcode_symbol='DIAL_FAST'\n"
    "\t}\n"
    "}\n"
    "header 'c.h'\n"
    "cheader 'n.h'\n"
    "family_header 'f.h'\n"
    "alias 'A' {\n"
    "\tto_name='T'\n"
    "}\n"
    "converter 'C' {\n"
    "\tproc_name='convert'\n"
    "\tadd_in_code=True\n"
    "}\n"
    "popup 'P' {\n"
    "\tdialog_update='update'\n"
    "}\n";

std::string everything_with_families() {
  return everything + std::string(predefined_pool) +
         "page 'own'\n"
         "family 'Demo' {\n"
         "\tfamily_init='init'\n"
         "\tgenerate_family_init_code=True\n"
         "\tgenerate_family_init_stub=False\n"
         "\tgenerate_family_init_vq=False\n"
         "\tgenerate_family_init_pre_shell=False\n"
         "\twidget='XmDial'\n"
         "\tenumeration='DialMode'\n"
         "\theader='c.h'\n"
         "\tcheader='n.h'\n"
         "\tfamily_header='f.h'\n"
         "\talias='A'\n"
         "\tconverter='C'\n" +
         predefined_uses +
         "\tpage='own'\n"
         "}\n"
         "family 'Bare' {\n" +
         predefined_uses + "}\n";
}

TEST_F(RoundTrip, GivesTheSameBytesAgain) {
  EXPECT_EQ(everything_with_families(), read_and_saved(everything_with_families()));
}

TEST_F(RoundTrip, GivesTheSameBytesFromAnyOrder) {
  const std::string once = read_and_saved(
      "VQconfig ! as people type it\n"
      "family F { alias = b  alias = 'a'  widget = W }\n"
      "alias a { to_name = T }\n"
      "widget W { resource_definitions = 'r', , , yes, 's', 'P', , True; can_create = False }");
  EXPECT_EQ(once, read_and_saved(once));
}

TEST_F(RoundTrip, LosesTheFlagsOfAFamilyWithoutAnInitProcedure) {
  Document before;
  before.ensure(before.families, "F")->generate_family_init_vq = true;
  read_saved(saved(before));
  EXPECT_FALSE(document.families.find("F")->generate_family_init_vq);
}

TEST_F(RoundTrip, ResolvesBackslashesThatWereWrittenAsTheyStood) {
  Document before;
  before.ensure(before.aliases, "A")->to_name = "a\\tb";
  read_saved(saved(before));
  EXPECT_EQ("a\tb", document.aliases.find("A")->to_name);
}

TEST_F(RoundTrip, KeepsALongDocument) {
  std::string text = "VQconfig\n";
  for (int i = 10000; i < 20000; ++i) {
    text += "alias 'alias_" + std::to_string(i) + "' {\n\tto_name='type_" + std::to_string(i % 7) + "'\n}\n";
  }
  EXPECT_EQ(text, read_and_saved(text));
  EXPECT_EQ(10000U, document.aliases.size());
}

}  // namespace
