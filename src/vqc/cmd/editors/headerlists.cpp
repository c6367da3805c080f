#include "vqc/cmd/editors/headerlists.h"

#include "vqc/cmd/editors/dialogs/entity_dialog.h"

ListEditor codeheaderlist_editor{.dialog = entity_dialog,
                                 .box_slot = CODEHEADERLIST_BOX,
                                 .names = names_in_family<code_header_kind>(),
                                 .delete_clears_name = true};

ListEditor confheaderlist_editor{.dialog = entity_dialog,
                                 .box_slot = CONFHEADERLIST_BOX,
                                 .names = names_in_family<config_header_kind>(),
                                 .delete_clears_name = true};

ListEditor familyheaderlist_editor{.dialog = entity_dialog,
                                   .box_slot = FAMILYHEADERLIST_BOX,
                                   .names = names_in_family<family_header_kind>(),
                                   .delete_clears_name = true};
