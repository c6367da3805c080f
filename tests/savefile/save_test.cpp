#include "vqc/cmd/savefile/save.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "support/document.h"
#include "vqc/cmd/model/alias.h"
#include "vqc/cmd/model/converter.h"
#include "vqc/cmd/model/enumedit.h"
#include "vqc/cmd/model/enumentry.h"
#include "vqc/cmd/model/enumlist.h"
#include "vqc/cmd/model/header.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/model/widgetedit.h"

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
  static WidgetDef* new_widget(const char* name) {
    widget_add(name);
    return widget_ptr(name);
  }
  static ResourceDef* new_resource(WidgetDef* widget, const char* name) {
    we_resource_add(name, widget);
    return resource_ptr(widget, name);
  }
  /// What is written after the first line.
  static std::string written_items() {
    const std::string document = written_document();
    EXPECT_EQ("VQconfig\n", document.substr(0, 9));
    return document.substr(9);
  }
};

TEST_F(SaveTest, EmptyModelIsOneLine) { EXPECT_EQ("VQconfig\n", written_document()); }

// The header.

using WriteHeader = SaveTest;

TEST_F(WriteHeader, HasAllNamesInTheirOrder) {
  set_code_file("code.c");
  set_config_file("config.c");
  set_stubs_file("stubs.c");
  vqc_set_family_table_variable("table");
  vqc_set_family_names_variable("names");
  vqc_set_xwidgets_variable("widgets");
  vqc_set_stop_list_variable("stops");
  vqc_set_popups_variable("popups_");
  vqc_set_page_names_variable("pages");
  vqc_set_family_count_variable("count");
  vqc_set_enumerations_variable("enums");
  vqc_set_converters_variable("convs");
  vqc_set_aliases_variable("aliases_");
  stop_list_set("XmFrame,XmLabel");
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
      written_document());
}

TEST_F(WriteHeader, HasANameThatEqualsItsDefault) {
  vqc_set_aliases_variable("aliases");
  EXPECT_EQ("VQconfig\ngenerate_alias_string='aliases'\n", written_document());
}

TEST_F(WriteHeader, LeavesOutANameThatWasTakenBack) {
  vqc_set_aliases_variable("mine");
  vqc_set_aliases_variable(nullptr);
  EXPECT_EQ("VQconfig\n", written_document());
}

TEST_F(WriteHeader, LeavesOutWhatTheResourcesSay) {
  name_options.aliases.resource = "from_resource";
  vqc_set_verbose_code(true);
  vqc_set_comment_code(true);
  EXPECT_EQ("VQconfig\n", written_document());
}

TEST_F(WriteHeader, LeavesOutAnEmptyStopList) {
  stop_list_set("");
  EXPECT_EQ("VQconfig\n", written_document());
}

TEST_F(WriteHeader, HasTheStopListAsItStands) {
  stop_list_set("100%%,it's");
  EXPECT_EQ("VQconfig\nstop_list = '100%%,it's'\n", written_document());
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

TEST_F(WriteWidget, HasNoScratchAndNoCompatibility) {
  WidgetDef& widget = *new_widget("W");
  widget.generated = true;
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
  enum_add("E");
  EnumDef* enumeration = enum_ptr("E");
  enumeration->type_name = "int";
  enumentry_add("z", enumeration);
  enumentry_add("a", enumeration);
  enumentry_ptr(enumeration, "a")->code_symbol = "A";
  enumentry_ptr(enumeration, "a")->resfile_symbol = "a_text";
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
  enum_add("E");
  alias_add("A");
  converter_add("C");
  popup_add("P");
  EXPECT_EQ("enumeration 'E' {\n}\nalias 'A' {\n}\nconverter 'C' {\n}\npopup 'P' {\n}\n", written_items());
}

TEST_F(SaveTest, HeadersArePoolByPool) {
  familyheader_add("f.h");
  confheader_add("n.h");
  codeheader_add("d.h");
  codeheader_add("b.h");
  EXPECT_EQ("header 'b.h'\nheader 'd.h'\ncheader 'n.h'\nfamily_header 'f.h'\n", written_items());
}

TEST_F(SaveTest, AliasHasTheTypeItNames) {
  alias_add("A");
  alias_ptr("A")->to_name = "T";
  EXPECT_EQ("alias 'A' {\n\tto_name='T'\n}\n", written_items());
}

TEST_F(SaveTest, ConverterHasItsTrueFlagsOnly) {
  converter_add("C");
  converter_ptr("C")->proc_name = "convert";
  converter_ptr("C")->dialog = "D";
  converter_ptr("C")->add_in_vq = true;
  converter_ptr("C")->add_in_code = true;
  EXPECT_EQ("converter 'C' {\n\tproc_name='convert'\n\tdialog='D'\n\tadd_in_vq=True\n\tadd_in_code=True\n}\n",
            written_items());
  converter_ptr("C")->add_in_vq = false;
  EXPECT_EQ("converter 'C' {\n\tproc_name='convert'\n\tdialog='D'\n\tadd_in_code=True\n}\n", written_items());
}

TEST_F(SaveTest, PopupHasItsProcedures) {
  popup_add("P");
  popup_ptr("P")->dialog_init = "init";
  popup_ptr("P")->dialog_update = "update";
  EXPECT_EQ("popup 'P' {\n\tdialog_init='init'\n\tdialog_update='update'\n}\n", written_items());
}

TEST_F(SaveTest, PagesStandAsTheyCame) {
  page_add("z");
  page_add("a");
  EXPECT_EQ("page 'z'\npage 'a'\n", written_items());
}

// Families.

using WriteFamily = SaveTest;

TEST_F(WriteFamily, HasThePredefinedPagesAndPopups) {
  new_family("F");
  EXPECT_EQ(predefined_pool + std::string("family 'F' {\n") + predefined_uses + "}\n", written_items());
}

TEST_F(WriteFamily, LeavesOutFlagsWithoutAnInitProcedure) {
  Family* family = new_family("F");
  family->generate_family_init_code = family->generate_family_init_vq = true;
  family->generate_selected = false;
  EXPECT_EQ(predefined_pool + std::string("family 'F' {\n") + predefined_uses + "}\n", written_items());
}

TEST_F(WriteFamily, HasAllFlagsWithAnInitProcedure) {
  Family* family = new_family("F");
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
  new_family("F")->family_init = "";
  EXPECT_NE(std::string::npos,
            written_items().find("family 'F' {\n\tfamily_init=''\n\tgenerate_family_init_code=False\n"
                                 "\tgenerate_family_init_stub=False\n"));
}

TEST_F(WriteFamily, HasItsListsInTheirOrder) {
  Family* family = new_family("F");
  confheaderlist_add("n.h", family);
  familyheaderlist_add("f.h", family);
  codeheaderlist_add("z.h", family);
  codeheaderlist_add("c.h", family);
  converterlist_add("C", family);
  aliaslist_add("A", family);
  enumlist_add("E", family);
  widgetlist_add("V", family);
  widgetlist_add("U", family);
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
  new_family("G");
  new_family("F");
  const std::string items = written_items();
  EXPECT_LT(items.find("family 'G'"), items.find("family 'F'"));
  family_move_up("F");
  const std::string moved = written_items();
  EXPECT_LT(moved.find("family 'F'"), moved.find("family 'G'"));
}

TEST_F(SaveTest, SectionsStandInTheirOrder) {
  new_family("F");
  page_add("own");
  popup_add("a_popup");
  converter_add("C");
  alias_add("A");
  familyheader_add("f.h");
  confheader_add("n.h");
  codeheader_add("c.h");
  enum_add("E");
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
  alias_add("it's a\\b");
  EXPECT_EQ("alias 'it's a\\b' {\n}\n", written_items());
}

TEST_F(SaveTest, DoubledPerCentSignsAreWrittenAsOne) {
  alias_add("100%%");
  alias_ptr("100%%")->to_name = "%s%d %%%%";
  EXPECT_EQ("alias '100%' {\n\tto_name='%s%d %%'\n}\n", written_items());
}

TEST_F(SaveTest, LongTextsAreWrittenWhole) {
  const std::string longest(100000, 'x');
  alias_add(longest.c_str());
  EXPECT_EQ("alias '" + longest + "' {\n}\n", written_items());
}

// What else a save does.

using WriteSaveFile = SaveTest;

TEST_F(WriteSaveFile, ReplacesTheFileAndClearsDirty) {
  const std::string path = folder.with("document.vqc", std::string(1000, 'x'));
  dirty = true;
  write_save_file(path.c_str());
  EXPECT_EQ("VQconfig\n", read_file(path));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Messages{}, messages.shown);
}

struct Seen {
  inline static std::string path;
  inline static Names calls;
  static void titled(const char* title) { calls.push_back(std::string("titled ") + title); }
  static void saved() { calls.push_back("saved " + read_file(path) + (dirty ? "dirty" : "clean")); }
  static void watch(const std::string& file) {
    path = file;
    calls.clear();
    document_hooks = {titled, saved};
  }
};

TEST_F(WriteSaveFile, TitlesTheDocumentAndGoesOnOnceAllIsWritten) {
  Seen::watch(folder / "document.vqc");
  dirty = true;
  write_save_file(Seen::path.c_str());
  EXPECT_EQ((Names{"titled " + Seen::path, "saved VQconfig\nclean"}), Seen::calls);
}

TEST_F(WriteSaveFile, ChangesNothingWhenTheFileCannotBeOpened) {
  messages.texts["file_open_fail"] = "cannot open %s: %s";
  Seen::watch(folder / "missing/document.vqc");
  dirty = true;
  write_save_file(Seen::path.c_str());
  EXPECT_TRUE(dirty);
  EXPECT_EQ(Names{}, Seen::calls);
  EXPECT_EQ(Messages{"cannot open " + Seen::path + ": " + std::strerror(ENOENT)}, messages.shown);
}

TEST_F(WriteSaveFile, RefusesAFolder) {
  dirty = true;
  write_save_file(folder.path().c_str());
  EXPECT_TRUE(dirty);
  EXPECT_EQ(Messages{"file_open_fail"}, messages.shown);
}

TEST_F(WriteSaveFile, GoesOnWhenTheDiskIsFull) {
  messages.texts["file_write_fail"] = "cannot write: %s";
  Seen::watch("/dev/null");
  dirty = true;
  write_save_file("/dev/full");
  EXPECT_FALSE(dirty);
  EXPECT_EQ((Names{"titled /dev/full", "saved clean"}), Seen::calls);
  EXPECT_EQ(Messages{std::string("cannot write: ") + std::strerror(ENOSPC)}, messages.shown);
}

TEST_F(WriteSaveFile, GoesOnWhenALongDocumentDoesNotFit) {
  for (int i = 0; i < 10000; ++i) alias_add(("some_alias_" + std::to_string(i)).c_str());
  write_save_file("/dev/full");
  EXPECT_FALSE(dirty);
  EXPECT_LT(1u, messages.shown.size());
}

// There and back.

class RoundTrip : public DocumentTest {};

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
  const std::string document = everything_with_families();
  ASSERT_EQ(1, read_document(document));
  EXPECT_EQ(document, written_document());
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(RoundTrip, GivesTheSameBytesFromAnyOrder) {
  ASSERT_EQ(1, read_document("VQconfig ! as people type it\n"
                             "family F { alias = b  alias = 'a'  widget = W }\n"
                             "alias a { to_name = T }\n"
                             "widget W { resource_definitions = 'r', , , yes, 's', 'P', , True; can_create = False }"));
  const std::string once = written_document();
  ASSERT_EQ(1, read_document(once));
  EXPECT_EQ(once, written_document());
}

TEST_F(RoundTrip, LosesTheFlagsOfAFamilyWithoutAnInitProcedure) {
  new_family("F")->generate_family_init_vq = true;
  ASSERT_EQ(1, read_document(written_document()));
  EXPECT_FALSE(family_ptr("F")->generate_family_init_vq);
}

TEST_F(RoundTrip, ResolvesBackslashesThatWereWrittenAsTheyStood) {
  alias_add("A");
  alias_ptr("A")->to_name = "a\\tb";
  ASSERT_EQ(1, read_document(written_document()));
  EXPECT_STREQ("a\tb", alias_ptr("A")->to_name);
}

TEST_F(RoundTrip, KeepsALongDocument) {
  std::string document = "VQconfig\n";
  for (int i = 10000; i < 20000; ++i) {
    document += "alias 'alias_" + std::to_string(i) + "' {\n\tto_name='type_" + std::to_string(i % 7) + "'\n}\n";
  }
  ASSERT_EQ(1, read_document(document));
  EXPECT_EQ(10000, alias_count());
  EXPECT_EQ(document, written_document());
}

}  // namespace
