#include "gui/dialogs.h"

#include <algorithm>
#include <iterator>
#include <ostream>

#include "gui/hands.h"
#include "gui/outside.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/recovery.h"

using namespace vqc;

const char document_for_dialogs[] =
    "VQconfig\nwidget 'W' {\n}\nenumeration 'E' {\nenumentry 'e' {\n}\n}\n"
    "family 'F' {\nwidget='W'\nenumeration='E'\n}\n";

namespace {

void open_enumeration_editor() {
  edit_family("F");
  edit_enumeration("E");
}

void pick_page() {
  open_widget_editor();
  press("widgetedit_page_b");
}

void pick_popup() {
  open_widget_editor();
  press("widgetedit_popup_b");
}

void ask_about_resource() {
  open_widget_editor();
  enter("we_resource_t", "r");
  press("widgetedit_closeb");
}

void ask_about_changes() {
  add_family("Changed");
  press("family_exitb");
}

void ask_about_last_session() {
  leave_state(save_file.value_or(""), "VQconfig\nfamily 'Left' { }\n");
  offer_recovery();
}

const Dialog dialogs[] = {
    {"entity_dialog", [] { edit_family("F"); }},
    {"widgetedit_dialog", open_widget_editor},
    {"enumedit_dialog", open_enumeration_editor},
    {"pageedit_dialog", pick_page},
    {"popupedit_dialog", pick_popup},
    {"stop_list_shell", [] { press("family_stop_b"); }},
    {"options_shell", [] { press("family_generate_options_b"); }},
    {"open_dialog", [] { press("family_openb"); }},
    {"read_dialog", [] { press("family_readb"); }},
    {"save_dialog", [] { press("family_saveasb"); }},
    {"goto_dialog", [] { press("family_gotob"); }},
    {"rename_dialog", [] { press("family_renameb"); }},
    {"uses_dialog", [] { press("family_usesb"); }},
    {"problems_dialog", [] { press("family_problemsb"); }},
    {"resources_dialog", [] { press("family_resourcesb"); }},
    {"about_dialog", [] { press("family_helpaboutb"); }},
    {"error_dialog", [] { error_show("bad_save_file"); }},
    {"versions_dialog", [] { press("family_versionsb"); }},
    {"gen_dialog", [] { press("family_genconfigb"); }, Rank::modal},
    {"genall_dialog", [] { press("family_genallb"); }, Rank::modal},
    {"resource_warn_dialog", ask_about_resource, Rank::modal},
    {"savechanges_dialog", ask_about_changes, Rank::modal},
    {"recovery_dialog", ask_about_last_session, Rank::modal},
};

template <class Predicate>
std::vector<Dialog> those(Predicate wanted) {
  std::vector<Dialog> found;
  std::ranges::copy_if(dialogs, std::back_inserter(found), wanted);
  return found;
}

}  // namespace

void PrintTo(const Dialog& dialog, std::ostream* stream) { *stream << dialog.shell; }

std::vector<Dialog> every_dialog() { return {std::begin(dialogs), std::end(dialogs)}; }

std::vector<Dialog> every_dialog(Rank rank) {
  return those([rank](const Dialog& dialog) { return dialog.rank == rank; });
}

std::vector<Dialog> dialogs_of(const std::vector<std::string>& shells) {
  return those([&](const Dialog& dialog) { return std::ranges::find(shells, dialog.shell) != shells.end(); });
}

std::string shell_name(const testing::TestParamInfo<Dialog>& row) { return row.param.shell; }

void open_widget_editor() {
  edit_family("F");
  edit_widget("W");
}
