#ifndef VQC_CMD_SAVEFILE_KEYWORDS_H
#define VQC_CMD_SAVEFILE_KEYWORDS_H

#include <cstdint>
#include <string_view>

/// The keywords of a document. The numbers are the format's own; 5, 12 and 21 belong to none.
enum class Kw : std::uint8_t {
  vqconfig = 1,
  abstract = 60,
  access = 62,
  add_in_code = 34,
  add_in_vq = 33,
  alias = 2,
  appropriate_parent = 27,
  can_add_child = 3,
  can_create = 28,
  can_edit_abstract = 69,
  can_manage = 70,
  cheader = 4,
  code_name = 24,
  code_symbol = 6,
  config_name = 25,
  converter = 29,
  counter = 48,
  default_is_dont_free = 49,
  defined_name = 7,
  dialog = 36,
  dialog_create = 31,
  dialog_init = 32,
  dialog_update = 35,
  dialogue_doc = 43,
  dialogue_tag = 44,
  disablefgswap = 8,
  disablegoto = 68,
  enumentry = 9,
  enumeration = 10,
  family = 11,
  family_header = 61,
  family_init = 63,
  generate_alias_string = 51,
  generate_converter_string = 52,
  generate_enumeration_string = 53,
  generate_family_count_string = 54,
  generate_family_init_code = 65,
  generate_family_init_pre_shell = 71,
  generate_family_init_stub = 66,
  generate_family_init_vq = 64,
  generate_family_name_string = 55,
  generate_family_table_string = 67,
  generate_initialise = 47,
  generate_page_name_string = 56,
  generate_popup_string = 57,
  generate_stop_list_string = 58,
  generate_xwidget_string = 59,
  header = 13,
  include_filename = 15,
  largeicon = 16,
  largeiconheader = 14,
  page = 41,
  pixmap_resource = 39,
  popup = 37,
  proc_name = 30,
  realise = 17,
  resfile_symbol = 18,
  resource_definitions = 42,
  resource_popups = 38,
  smallicon = 19,
  smalliconheader = 26,
  stop_list = 40,
  stubs_name = 50,
  to_name = 20,
  type_name = 22,
  widget = 23,
  widget_doc = 45,
  widget_tag = 46,
};

struct Keyword {
  std::string_view word;
  Kw kw;
};

/// The keyword spelled `word`, or null. Spelling is exact.
const Keyword* find_keyword(std::string_view word);

/// How `kw` is spelled.
const char* keyword_text(Kw kw);

#endif
