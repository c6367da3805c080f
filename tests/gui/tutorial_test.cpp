#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The tutorial of the help pages, done step by step as it says.

namespace {

// What the tutorial ends with, up to the items that every document has.
const char document[] = R"(VQconfig
stop_list = 'XmLabel'
widget 'commandWidgetClass' {
	include_filename='X11/Xaw/Command.h'
	can_add_child='labels_have_no_children'
	resource_definitions='XtNcallback', , 'callbacks', True, VQC_DONT_FREE, VQC_DONT_FREE access 7;
}
widget 'labelWidgetClass' {
	include_filename='X11/Xaw/Label.h'
	can_add_child='labels_have_no_children'
	resource_definitions='XtNforeground', 'vq_colour_dialog_create', 'display', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 7,
'XtNjustify', , 'settings', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 7,
'XtNlabel', 'vq_string_dialog_create', 'settings', True, VQC_DONT_FREE, VQC_FREE access 7;
}
enumeration 'Justify' {
	typename='XtRJustify'
	enumentry 'left'{
		code_symbol='XtJustifyLeft'
		resfile_symbol='left'
	}
	enumentry 'centre'{
		code_symbol='XtJustifyCenter'
		resfile_symbol='center'
	}
	enumentry 'right'{
		code_symbol='XtJustifyRight'
		resfile_symbol='right'
	}
}
cheader 'X11/Xmu/Converters.h'
family_header 'X11/Xaw/XawInit.h'
popup )";

class Tutorial : public Session {
 protected:
  /// Types a name into a list's field, and presses one of the list's buttons.
  static void name_and_press(const std::string& box, const std::string& name, const std::string& button) {
    enter(box, name);
    press(box + "." + button);
  }
  static void choose_free_modes(const std::string& get, const std::string& set) {
    choose_option("widgetedit_free_get_opt", "widgetedit_get_" + get + "_b");
    choose_option("widgetedit_free_set_opt", "widgetedit_set_" + set + "_b");
  }
  static void update_resource(const std::string& name, const std::string& popup, const std::string& page) {
    enter("we_resource_t", name);
    enter("widgetedit_popup_t", popup);
    enter("widgetedit_page_t", page);
    press("we_resource_upd_b");
  }
  static void update_value(const std::string& name, const std::string& code, const std::string& resfile) {
    enter("enumedit_code_symbol", code);
    enter("enumedit_resfile_symbol", resfile);
    name_and_press("enumedit_selection", name, "OK");
  }
  static void update_class(const std::string& include) {
    enter("widgetedit_include_filename", include);
    enter("widgetedit_can_add_child", "labels_have_no_children");
    press("widgetedit_applyb");
  }

  static void type_and_add_widget(const std::string& name) {
    type(name);
    click("widgetlist_selection.Apply");
    click("widgetlist_selection.Text");
  }

  static void make_the_family() {
    name_and_press("family_selection", "Labels", "Apply");
    select("family_selection", "Labels");
    press_ok("family_selection");
    type_and_add_widget("labelWidgetClass");
    EXPECT_EQ("labelWidgetClass", text("widgetlist_selection")) << "the field keeps it";
    key("ctrl+a");
    type_and_add_widget("commandWidgetClass");
  }

  static void describe_the_label() {
    select("widgetlist_selection", "labelWidgetClass");
    press_ok("widgetlist_selection");
    EXPECT_EQ("Widget: labelWidgetClass", title("widgetedit_dialog"));
    update_class("X11/Xaw/Label.h");
    choose_free_modes("dont", "free");
    update_resource("XtNlabel", "vq_string_dialog_create", "settings");
    choose_free_modes("default", "default");
    update_resource("XtNjustify", "", "settings");
    enter("we_resource_t", "XtNforeground");
    pick_colour_popup();
    enter("widgetedit_page_t", "display");
    press("we_resource_upd_b");
  }

  static void pick_colour_popup() {
    press("widgetedit_popup_b");
    select("popupedit_selection", "vq_colour_dialog_create");
    press_apply("popupedit_selection");
    press_cancel("popupedit_selection");
  }

  static void describe_the_button() {
    select("widgetlist_selection", "commandWidgetClass");
    EXPECT_EQ("Widget: commandWidgetClass", title("widgetedit_dialog"));
    EXPECT_EQ("", text("widgetedit_include_filename") + text("we_resource_t") + text("widgetedit_page_t"));
    update_class("X11/Xaw/Command.h");
    choose_free_modes("dont", "dont");
    update_resource("XtNcallback", "", "callbacks");
    press("widgetedit_closeb");
  }

  static void describe_the_type() {
    choose_menu("entity_viewb", "entity_opt_enums_t");
    name_and_press("enumlist_selection", "Justify", "Apply");
    name_and_press("enumlist_selection", "Justify", "OK");
    EXPECT_EQ("Enumeration: (none)", title("enumedit_dialog"));
    enter("enumedit_type", "XtRJustify");
    update_value("left", "XtJustifyLeft", "left");
    EXPECT_EQ("left", text("enumedit_selection"));
    EXPECT_EQ("XtRJustify", text("enumedit_type"));
    update_value("centre", "XtJustifyCenter", "center");
    update_value("right", "XtJustifyRight", "right");
    press("enumedit_quitb");
  }

  static void add_headers() {
    choose_menu("entity_viewb", "entity_opt_config_headers_t");
    name_and_press("confheaderlist_selection", "X11/Xmu/Converters.h", "OK");
    choose_menu("entity_viewb", "entity_opt_family_headers_t");
    name_and_press("familyheaderlist_selection", "X11/Xaw/XawInit.h", "OK");
    press("familyheaderlist_quitb");
  }

  static void leave_out_the_other_label() {
    choose_menu("family_edit_cascade", "family_stop_b");
    toggle("stop_label", true);
    press("stop_list_apply");
    press("stop_list_close");
  }
};

TEST_F(Tutorial, EndsWithTheDocumentThatItIsAbout) {
  start();
  make_the_family();
  move_aside("entity_dialog");
  describe_the_label();
  describe_the_button();
  EXPECT_FALSE(is_shown("widgetedit_dialog")) << "everything was updated, so nothing is asked";
  describe_the_type();
  add_headers();
  leave_out_the_other_label();
  save_as("labels.vqc");
  EXPECT_EQ(document, read_file("labels.vqc").substr(0, sizeof document - 1));
  EXPECT_EQ((std::vector<std::string>{"labelWidgetClass", "commandWidgetClass"}), saved_names("Labels", "widget"));
  EXPECT_EQ(std::vector<std::string>{"X11/Xmu/Converters.h"}, saved_names("Labels", "cheader"));
}

}  // namespace
