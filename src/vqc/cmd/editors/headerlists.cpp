// The pages of a family's three lists of headers.

#include "vqc/cmd/editors/headerlists.h"

#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/kit/list_page.h"

namespace vqc::editors {

namespace {

const ListPage code_headers = {.name = "codeheaderlist",
                               .parent = "entity_view_form",
                               .slot = CODEHEADERLIST_BOX,
                               .topic = "vqc_code_hdrs",
                               .ok = codeheaderlist_do_add,
                               .cancel = codeheaderlist_do_delete,
                               .select = codeheaderlist_do_select,
                               .type = do_type<codeheaderlist_editor>,
                               .up = codeheaderlist_do_up,
                               .down = codeheaderlist_do_down,
                               .quit = entity_do_hide};

const ListPage config_headers = {.name = "confheaderlist",
                                 .parent = "entity_view_form",
                                 .slot = CONFHEADERLIST_BOX,
                                 .topic = "vqc_conf_hdrs",
                                 .ok = confheaderlist_do_add,
                                 .cancel = confheaderlist_do_delete,
                                 .select = confheaderlist_do_select,
                                 .type = do_type<confheaderlist_editor>,
                                 .up = confheaderlist_do_up,
                                 .down = confheaderlist_do_down,
                                 .quit = entity_do_hide};

const ListPage family_headers = {.name = "familyheaderlist",
                                 .parent = "entity_view_form",
                                 .slot = FAMILYHEADERLIST_BOX,
                                 .topic = "vqc_family_hdrs",
                                 .ok = familyheaderlist_do_add,
                                 .cancel = familyheaderlist_do_delete,
                                 .select = familyheaderlist_do_select,
                                 .type = do_type<familyheaderlist_editor>,
                                 .up = familyheaderlist_do_up,
                                 .down = familyheaderlist_do_down,
                                 .quit = entity_do_hide};

}  // namespace

DialogPart codeheaderlist_page() { return list_page(code_headers); }
DialogPart confheaderlist_page() { return list_page(config_headers); }
DialogPart familyheaderlist_page() { return list_page(family_headers); }

ListEditor codeheaderlist_editor{.part = Part::code_header,
                                 .dialog = entity_dialog,
                                 .box_slot = CODEHEADERLIST_BOX,
                                 .names = names_in_family<code_header_kind>(),
                                 .delete_clears_name = true};

ListEditor confheaderlist_editor{.part = Part::config_header,
                                 .dialog = entity_dialog,
                                 .box_slot = CONFHEADERLIST_BOX,
                                 .names = names_in_family<config_header_kind>(),
                                 .delete_clears_name = true};

ListEditor familyheaderlist_editor{.part = Part::family_header,
                                   .dialog = entity_dialog,
                                   .box_slot = FAMILYHEADERLIST_BOX,
                                   .names = names_in_family<family_header_kind>(),
                                   .delete_clears_name = true};

}  // namespace vqc::editors
