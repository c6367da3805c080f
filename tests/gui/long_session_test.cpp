#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

#include "generate/generate_support.h"

using namespace vqc;

// A day's work: a document is described from nothing but what another one shares, saved, generated from, closed and
// opened again.

namespace {

struct Resource {
  const char* name;
  const char* counter;
  const char* popup;
  const char* page;
  bool visible;
  const char* free_get;
  const char* free_set;
  int access;
};

class LongSession : public Session {
 protected:
  static std::string of_tests(const std::string& path) { return std::string(TEST_DATA) + "/" + path; }
  static void view(const char* page) {
    if (!is_set(page)) choose_menu("entity_viewb", page);
  }
  /// Types a name into a box and presses Return.
  static void name_by_keyboard(const std::string& box, const std::string& name) {
    enter(box, "");
    click(box + ".Text");
    type(name);
    key("Return");
  }
  static void fill(const std::vector<std::pair<const char*, const char*>>& fields) {
    for (const auto& [field, value] : fields) enter(field, value);
  }

  static void edit_resource(const Resource& resource) {
    fill({{"we_resource_t", resource.name},
          {"widgetedit_counter_t", resource.counter},
          {"widgetedit_popup_t", resource.popup},
          {"widgetedit_page_t", resource.page}});
    toggle("widgetedit_visible_tog", resource.visible);
    choose_option("widgetedit_free_get_opt", std::string("widgetedit_get_") + resource.free_get + "_b");
    choose_option("widgetedit_free_set_opt", std::string("widgetedit_set_") + resource.free_set + "_b");
    toggle("widgetedit_create_t", resource.access & 1);
    toggle("widgetedit_get_t", resource.access & 2);
    toggle("widgetedit_set_t", resource.access & 4);
    press("we_resource_upd_b");
  }

  static void describe_dial() {
    view("entity_opt_widgets_t");
    name_by_keyboard("widgetlist_selection", "Dial");
    name_by_keyboard("widgetlist_selection", "Dial");
    ASSERT_TRUE(is_shown("widgetedit_dialog"));
    fill({{"widgetedit_include_filename", "Dial.h"},
          {"widgetedit_defined_name", "DialName"},
          {"widgetedit_realise", "DialCreate"},
          {"widgetedit_abstract", "DialEdit"},
          {"widgetedit_can_add_child", "DialHolds"},
          {"widgetedit_appropriate_parent", "DialFits"},
          {"widgetedit_largeicon", "dial_large"},
          {"widgetedit_smallicon", "dial_small"},
          {"widgetedit_lrg_iconheader", "dial_large.xbm"},
          {"widgetedit_sml_iconheader", "dial_small.xbm"},
          {"widgetedit_pixmap_t", "dialPixmap"},
          {"widgetedit_d_help_doc", "panels.html"},
          {"widgetedit_d_help_tag", "dial-panel"},
          {"widgetedit_w_help_doc", "dials.html"},
          {"widgetedit_w_help_tag", "dial"}});
    for (const char* name :
         {"widgetedit_disablegoto", "widgetedit_default_is_dont_free", "widgetedit_generate_initialise"}) {
      click(name);
    }
    click("widgetedit_applyb");
    edit_resource({"XmNvalue", "", "", "settings", false, "dont", "free", 0});
    edit_resource({"XmNface", "XmNfaceCount", "face_dialog_create", "faces", true, "free", "default", 3});
    click("widgetedit_closeb");
    name_by_keyboard("widgetlist_selection", "Lamp");
  }

  static void describe_dial_mode() {
    view("entity_opt_enums_t");
    name_by_keyboard("enumlist_selection", "DialMode");
    name_by_keyboard("enumlist_selection", "DialMode");
    ASSERT_TRUE(is_shown("enumedit_dialog"));
    fill({{"enumedit_type", "\"DialMode\""},
          {"enumedit_code_symbol", "DIAL_FAST"},
          {"enumedit_resfile_symbol", "dial_fast"}});
    name_by_keyboard("enumedit_selection", "fast");
    fill({{"enumedit_code_symbol", ""}, {"enumedit_resfile_symbol", ""}, {"enumedit_selection", "slow"}});
    click("enumedit_selection.Apply");
    click("enumedit_quitb");
  }

  static void add_headers(const char* page, const std::string& box, const Names& names) {
    view(page);
    for (const std::string& name : names) name_by_keyboard(box, name);
  }
  static void add_alias(const char* name, const char* to_name) {
    view("entity_opt_aliases_t");
    enter("aliaslist_to_name", to_name);
    name_by_keyboard("aliaslist_selection", name);
  }
  static void add_converters() {
    view("entity_opt_converters_t");
    click("convert_popup_b");
    fill({{"popupedit_selection", "face_dialog_create"},
          {"dialog_init", "face_init"},
          {"dialog_update", "face_update"}});
    click("popupedit_applytb");
    click("popupedit_selection.Apply");
    click("popupedit_selection.Cancel");
    enter("converter_proc", "StringToFace");
    toggle("converter_vq_tog", true);
    toggle("converter_code_tog", true);
    name_by_keyboard("converter_selection", "XtRFace");
    fill({{"converter_proc", ""}, {"convert_popup_t", ""}});
    toggle("converter_vq_tog", false);
    toggle("converter_code_tog", false);
    name_by_keyboard("converter_selection", "XtRGlow");
  }

  static void describe_first_family() {
    describe_dial();
    describe_dial_mode();
    add_headers("entity_opt_code_headers_t", "codeheaderlist_selection", {"Xm/Xm.h", "shared.h"});
    add_headers("entity_opt_config_headers_t", "confheaderlist_selection", {"Xm/XmP.h", "sharedP.h"});
    add_headers("entity_opt_family_headers_t", "familyheaderlist_selection", {"Motif.h", "shared.h"});
    add_alias("XtRDegrees", "XtRInt");
    add_converters();
    view("entity_opt_family_init_t");
    enter("familyinit_init_text", "MotifInit");
    for (const char* name : {"familyinit_add_code_t", "familyinit_add_stub_t", "familyinit_pre_shell_t"}) click(name);
    click("familyinit_applyb");
  }

  static void describe_second_family() {
    view("entity_opt_widgets_t");
    name_by_keyboard("widgetlist_selection", "Knob");
    name_by_keyboard("widgetlist_selection", "Knob");
    ASSERT_TRUE(is_shown("widgetedit_dialog"));
    fill({{"widgetedit_include_filename", "Dial.h"},
          {"widgetedit_realise", "DialCreate"},
          {"widgetedit_can_add_child", "KnobHolds"}});
    click("widgetedit_can_manage");
    click("widgetedit_applyb");
    for (const char* page : {"extras", "faces"}) {
      press("widgetedit_page_b");
      enter("pageedit_selection", page);
      press("pageedit_updateb");
    }
    press("widgetedit_popup_b");
    enter("popupedit_selection", "second_dialog_create");
    press("popupedit_applytb");
    press_cancel("pageedit_selection");
    press_cancel("popupedit_selection");
    click("widgetedit_closeb");
    name_by_keyboard("widgetlist_selection", "Dial");
    view("entity_opt_enums_t");
    name_by_keyboard("enumlist_selection", "LampColour");
    name_by_keyboard("enumlist_selection", "DialMode");
    add_headers("entity_opt_code_headers_t", "codeheaderlist_selection", {"shared.h", "second.h"});
    add_headers("entity_opt_config_headers_t", "confheaderlist_selection", {"sharedP.h", "secondP.h"});
    add_headers("entity_opt_family_headers_t", "familyheaderlist_selection", {"shared.h"});
    add_alias("XtRWatts", "XtRFloat");
    add_alias("XtRDegrees", "ignored");
    add_converters();
    click("converter_quitb");
  }

  void expect_generated(const char* item, const char* marked) {
    choose_menu("family_generate_cascade", item);
    ASSERT_TRUE(is_shown("gen_dialog"));
    enter("gen_fsb", folder / "out.c");
    click("gen_fsb.OK");
    EXPECT_EQ(for_switches(read_file(of_tests(marked)), {true, true}), read_file(folder / "out.c"));
  }
};

TEST_F(LongSession, FromNothingToTheGeneratedFilesAndBack) {
  start();
  read_into(of_tests("gui/documents/shared.vqc"));
  name_by_keyboard("family_selection", "Motif");
  name_by_keyboard("family_selection", "Motif");
  ASSERT_TRUE(is_shown("entity_dialog"));
  describe_first_family();
  click("familyinit_cancelb");
  name_by_keyboard("family_selection", "Motif 2");
  name_by_keyboard("family_selection", "Motif 2");
  describe_second_family();
  choose_menu("family_edit_cascade", "family_stop_b");
  ASSERT_TRUE(is_shown("stop_list_shell"));
  click("stop_label");
  click("stop_frame");
  click("stop_list_apply");
  click("stop_list_close");

  key("ctrl+s");
  ASSERT_TRUE(is_shown("save_dialog"));
  enter("save_fsb", folder / "dials.vqc");
  click("save_fsb.OK");
  const std::string expected = read_file(of_tests("gui/documents/dials.vqc"));
  EXPECT_EQ(expected, read_file(folder / "dials.vqc"));

  expect_generated("family_genconfigb", "generate/golden/dials_config.golden");
  expect_generated("family_gencodeb", "generate/golden/dials_code.golden");
  expect_generated("family_genstubs_b", "generate/golden/dials_stubs.golden");

  choose_menu("family_file_cascade", "family_newb");
  EXPECT_EQ(Items(), items("family_selection"));
  open_file(folder / "dials.vqc");
  EXPECT_EQ((Items{"Motif", "Motif 2"}), items("family_selection"));
  EXPECT_EQ(expected, saved());
  choose_menu("family_file_cascade", "family_exitb");
  EXPECT_EQ(0, exit_status);
}

const Resource ten_resources[] = {
    {"background", "", "vq_colour_dialog_create", "display", true, "default", "default", 7},
    {"borderWidth", "", "", "margins", true, "default", "default", 3},
    {"children", "numChildren", "", "misc", false, "dont", "dont", 2},
    {"destroyCallback", "", "", "callbacks", true, "default", "default", 1},
    {"font", "", "vq_font_dialog_create", "display", true, "default", "free", 0},
    {"height", "", "", "geometry", true, "default", "default", 5},
    {"items", "itemCount", "item_popup", "settings", true, "free", "free", 6},
    {"label", "", "vq_string_dialog_create", "settings", true, "free", "default", 4},
    {"pixmap", "", "vq_pixmap_dialog_create", "display", true, "dont", "free", 7},
    {"width", "", "", "geometry", true, "default", "default", 5},
};

TEST_F(LongSession, AWidgetWithTenResources) {
  start();
  add_family("F");
  edit_family("F");
  edit_widget("W");
  press_ok("widgetlist_selection");
  ASSERT_TRUE(is_shown("widgetedit_dialog"));
  for (const Resource& resource : ten_resources) edit_resource(resource);
  const std::string expected =
      "widget 'W' {\n\tresource_definitions="
      "'background', 'vq_colour_dialog_create', 'display', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 7,\n"
      "'borderWidth', , 'margins', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 3,\n"
      "'children', , 'misc', False, VQC_DONT_FREE, VQC_DONT_FREE access 2 counter 'numChildren',\n"
      "'destroyCallback', , 'callbacks', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 1,\n"
      "'font', 'vq_font_dialog_create', 'display', True, VQC_FREE_DEFAULT, VQC_FREE,\n"
      "'height', , 'geometry', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 5,\n"
      "'items', 'item_popup', 'settings', True, VQC_FREE, VQC_FREE access 6 counter 'itemCount',\n"
      "'label', 'vq_string_dialog_create', 'settings', True, VQC_FREE, VQC_FREE_DEFAULT access 4,\n"
      "'pixmap', 'vq_pixmap_dialog_create', 'display', True, VQC_DONT_FREE, VQC_FREE access 7,\n"
      "'width', , 'geometry', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 5;\n}\n";
  EXPECT_EQ(expected, saved_item("widget 'W'"));
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc", "geometry"}), saved_names("F", "page"));
  press("family_newb");
  open_file(folder / "saved.vqc");
  EXPECT_EQ(expected, saved_item("widget 'W'"));
}

}  // namespace
