#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// What lands in the file, entered by hand.

namespace {

const char predefined[] =
    "popup 'vq_colour_dialog_create' {\n\tdialog_init='vq_colour_dialog_initialise'\n}\n"
    "popup 'vq_font_dialog_create' {\n\tdialog_init='vq_font_dialog_initialise'\n}\n"
    "popup 'vq_fsb_dialog_create' {\n\tdialog_init='vq_fsb_dialog_initialise'\n}\n"
    "popup 'vq_pixmap_dialog_create' {\n\tdialog_init='vq_pixmap_dialog_initialise'\n}\n"
    "popup 'vq_string_dialog_create' {\n\tdialog_init='vq_string_dialog_initialise'\n}\n"
    "page 'display'\npage 'margins'\npage 'settings'\npage 'callbacks'\npage 'misc'\n";

const char predefined_in_family[] =
    "\tpopup='vq_colour_dialog_create'\n\tpopup='vq_font_dialog_create'\n\tpopup='vq_fsb_dialog_create'\n"
    "\tpopup='vq_pixmap_dialog_create'\n\tpopup='vq_string_dialog_create'\n"
    "\tpage='display'\n\tpage='margins'\n\tpage='settings'\n\tpage='callbacks'\n\tpage='misc'\n";

class Saving : public Session {
 protected:
  Saving() { start(); }

  static void add(const std::string& box, const std::string& name) {
    enter(box, name);
    press_apply(box);
  }
};

TEST_F(Saving, AnEmptyDocumentIsOneLine) { EXPECT_EQ("VQconfig\n", saved()); }

TEST_F(Saving, AnEmptyDocumentKeepsItsStopList) {
  press("family_stop_b");
  toggle("stop_form", true);
  press("stop_list_apply");
  EXPECT_EQ("VQconfig\nstop_list = 'XmForm'\n", saved());
}

TEST_F(Saving, AFamilyHasWhatIsPredefined) {
  add_family("F");
  EXPECT_EQ(std::string("VQconfig\n") + predefined + "family 'F' {\n" + predefined_in_family + "}\n", saved());
}

TEST_F(Saving, ADemonstrationOfEveryKindOfLine) {
  add_family("Demo");
  edit_family("Demo");
  add("widgetlist_selection", "XmDial");
  press_ok("widgetlist_selection");
  enter("widgetedit_include_filename", "Dial.h");
  toggle("widgetedit_can_manage", false);
  press("widgetedit_applyb");
  enter("we_resource_t", "value");
  enter("widgetedit_page_t", "settings");
  toggle("widgetedit_visible_tog", true);
  choose_option("widgetedit_free_set_opt", "widgetedit_set_free_b");
  toggle("widgetedit_create_t", true);
  toggle("widgetedit_get_t", true);
  toggle("widgetedit_set_t", false);
  press("we_resource_upd_b");
  add("enumlist_selection", "DialMode");
  press_ok("enumlist_selection");
  enter("enumedit_code_symbol", "DIAL_FAST");
  enter("enumedit_selection", "fast");
  press_apply("enumedit_selection");
  press("family_gencodeb");
  choose_file("gen_fsb", folder / "demo_code.c");
  EXPECT_EQ("VQconfig\ncode_name='" + folder / "demo_code.c" +
                "'\nwidget 'XmDial' {\n\tinclude_filename='Dial.h'\n\tcan_manage=False\n"
                "\tresource_definitions='value', , 'settings', True, VQC_FREE_DEFAULT, VQC_FREE access 3;\n}\n"
                "enumeration 'DialMode' {\n\tenumentry 'fast'{\n\t\tcode_symbol='DIAL_FAST'\n\t}\n}\n" +
                predefined + "family 'Demo' {\n\twidget='XmDial'\n\tenumeration='DialMode'\n" + predefined_in_family +
                "}\n",
            saved());
}

TEST_F(Saving, WithoutAProcedureFamilyInitLinesAreLeftOut) {
  add_family("F");
  edit_family("F");
  toggle("familyinit_add_vq_t", true);
  EXPECT_EQ(std::string::npos, saved().find("family_init"));
}

TEST_F(Saving, WhatWasSavedComesBack) {
  add_family("F");
  edit_family("F");
  add("widgetlist_selection", "W");
  add("aliaslist_selection", "Angle");
  const std::string before = saved();
  press("family_newb");
  open_file(folder / "saved.vqc");
  EXPECT_EQ(before, saved());
}

TEST_F(Saving, ABackslashAndAQuoteChangeOnTheWay) {
  add_family("back\\slash");
  save_as(folder / "a.vqc");
  open_file(folder / "a.vqc");
  EXPECT_EQ(Items{"backslash"}, items("family_selection"));
}

TEST_F(Saving, APercentSignComesBack) {
  add_family("100%");
  add_family("50%s");
  save_as(folder / "a.vqc");
  open_file(folder / "a.vqc");
  EXPECT_EQ((Items{"100%", "50%s"}), items("family_selection"));
}

TEST_F(Saving, SaveWritesTheSameAgain) {
  add_family("F");
  const std::string first = saved();
  EXPECT_EQ(first, saved());
}

}  // namespace
