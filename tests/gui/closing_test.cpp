#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

// The window manager's Close, on every dialog.

namespace {

const char document[] =
    "VQconfig\nwidget 'W' {\nresource_definitions='r',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "enumeration 'E' {\nenumentry 'e' {\n}\n}\nfamily 'F' {\nwidget='W'\nenumeration='E'\n}\n";

struct Dialog {
  const char* shell;
  void (*open)();
};

void PrintTo(const Dialog& dialog, std::ostream* stream) { *stream << dialog.shell; }

void open_widget_editor() {
  edit_family("F");
  enter("widgetlist_selection", "W");
  press_ok("widgetlist_selection");
}

const Dialog dialogs[] = {
    {"about_dialog", [] { press("family_helpaboutb"); }},
    {"open_dialog", [] { press("family_openb"); }},
    {"read_dialog", [] { press("family_readb"); }},
    {"save_dialog", [] { press("family_saveasb"); }},
    {"gen_dialog", [] { press("family_genconfigb"); }},
    {"options_shell", [] { press("family_generate_options_b"); }},
    {"stop_list_shell", [] { press("family_stop_b"); }},
    {"error_dialog", [] { read_into("missing.vqc"); }},
    {"savechanges_dialog",
     [] {
       add_family("G");
       press("family_newb");
     }},
    {"entity_dialog", [] { edit_family("F"); }},
    {"widgetedit_dialog", open_widget_editor},
    {"enumedit_dialog",
     [] {
       edit_family("F");
       enter("enumlist_selection", "E");
       press_ok("enumlist_selection");
     }},
    {"pageedit_dialog",
     [] {
       open_widget_editor();
       press("widgetedit_page_b");
     }},
    {"popupedit_dialog",
     [] {
       open_widget_editor();
       press("widgetedit_popup_b");
     }},
    {"resource_warn_dialog",
     [] {
       open_widget_editor();
       enter("we_resource_t", "new");
       press("widgetedit_closeb");
     }},
};

class Closing : public Session, public testing::WithParamInterface<Dialog> {};
class ClosingTheMainWindow : public Session {};

TEST_P(Closing, ADialogCanBeClosedAndOpenedAgain) {
  start({"-xrm", "VQconfig*generateOptions: True", folder.with("document.vqc", document)});
  for (int time = 1; time <= 2; ++time) {
    GetParam().open();
    ASSERT_TRUE(is_shown(GetParam().shell)) << time;
    close(GetParam().shell);
    EXPECT_FALSE(is_shown(GetParam().shell)) << time;
  }
  EXPECT_TRUE(is_viewable(main_shell()));
  EXPECT_FALSE(exit_status);
  EXPECT_EQ(std::string::npos, saved().find("'new'"));
}

TEST_F(ClosingTheMainWindow, AsksEachTime) {
  open_document(document);
  add_family("G");
  for (int time = 1; time <= 2; ++time) {
    close_main_window();
    ASSERT_TRUE(is_shown("savechanges_dialog")) << time;
    press("savechanges_messagebox.Cancel");
    EXPECT_FALSE(is_shown("savechanges_dialog")) << time;
  }
  EXPECT_FALSE(exit_status);
}

INSTANTIATE_TEST_SUITE_P(Of, Closing, testing::ValuesIn(dialogs),
                         [](const testing::TestParamInfo<Dialog>& row) { return std::string(row.param.shell); });

}  // namespace
