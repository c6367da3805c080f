#include "vqc/cmd/savefile/keywords.h"

#include <array>
#include <cstddef>

namespace {

constexpr Keyword keywords[] = {
    {"VQconfig", Kw::vqconfig},
    {"abstract", Kw::abstract},
    {"access", Kw::access},
    {"add_in_code", Kw::add_in_code},
    {"add_in_vq", Kw::add_in_vq},
    {"alias", Kw::alias},
    {"appropriate_parent", Kw::appropriate_parent},
    {"can_add_child", Kw::can_add_child},
    {"can_create", Kw::can_create},
    {"can_edit_abstract", Kw::can_edit_abstract},
    {"can_manage", Kw::can_manage},
    {"cheader", Kw::cheader},
    {"code_name", Kw::code_name},
    {"code_symbol", Kw::code_symbol},
    {"config_name", Kw::config_name},
    {"converter", Kw::converter},
    {"counter", Kw::counter},
    {"default_is_dont_free", Kw::default_is_dont_free},
    {"defined_name", Kw::defined_name},
    {"dialog", Kw::dialog},
    {"dialog_create", Kw::dialog_create},
    {"dialog_init", Kw::dialog_init},
    {"dialog_update", Kw::dialog_update},
    {"dialogue_doc", Kw::dialogue_doc},
    {"dialogue_tag", Kw::dialogue_tag},
    {"disablefgswap", Kw::disablefgswap},
    {"disablegoto", Kw::disablegoto},
    {"enumentry", Kw::enumentry},
    {"enumeration", Kw::enumeration},
    {"family", Kw::family},
    {"family_header", Kw::family_header},
    {"family_init", Kw::family_init},
    {"generate_alias_string", Kw::generate_alias_string},
    {"generate_converter_string", Kw::generate_converter_string},
    {"generate_enumeration_string", Kw::generate_enumeration_string},
    {"generate_family_count_string", Kw::generate_family_count_string},
    {"generate_family_init_code", Kw::generate_family_init_code},
    {"generate_family_init_pre_shell", Kw::generate_family_init_pre_shell},
    {"generate_family_init_stub", Kw::generate_family_init_stub},
    {"generate_family_init_vq", Kw::generate_family_init_vq},
    {"generate_family_name_string", Kw::generate_family_name_string},
    {"generate_family_table_string", Kw::generate_family_table_string},
    {"generate_initialise", Kw::generate_initialise},
    {"generate_page_name_string", Kw::generate_page_name_string},
    {"generate_popup_string", Kw::generate_popup_string},
    {"generate_stop_list_string", Kw::generate_stop_list_string},
    {"generate_xwidget_string", Kw::generate_xwidget_string},
    {"header", Kw::header},
    {"include_filename", Kw::include_filename},
    {"largeicon", Kw::largeicon},
    {"largeiconheader", Kw::largeiconheader},
    {"page", Kw::page},
    {"pixmap_resource", Kw::pixmap_resource},
    {"popup", Kw::popup},
    {"proc_name", Kw::proc_name},
    {"realise", Kw::realise},
    {"resfile_symbol", Kw::resfile_symbol},
    {"resource_definitions", Kw::resource_definitions},
    {"resource_popups", Kw::resource_popups},
    {"smallicon", Kw::smallicon},
    {"smalliconheader", Kw::smalliconheader},
    {"stop_list", Kw::stop_list},
    {"stubs_name", Kw::stubs_name},
    {"to_name", Kw::to_name},
    {"typename", Kw::type_name},
    {"widget", Kw::widget},
    {"widget_doc", Kw::widget_doc},
    {"widget_tag", Kw::widget_tag},
};

constexpr std::size_t kSlots = 256;

/// Where to look for `word`, which is not empty. The factors are chosen so that nearly every keyword has a slot of its
/// own, and so that the words of which a document has most (True, VQC_FREE and so on) come to slots without a keyword.
constexpr std::size_t slot_of(std::string_view word) {
  const auto code = [&](std::size_t i) -> std::size_t { return static_cast<unsigned char>(word[i]); };
  const std::size_t size = word.size();
  return (17 * size + code(0) + 11 * code(size / 2) + 13 * code(size - 1)) % kSlots;
}

/// A hash table of the keywords. One whose slot is taken has the next that is free.
constexpr auto slots = [] {
  std::array<const Keyword*, kSlots> table{};
  for (const Keyword& keyword : keywords) {
    std::size_t slot = slot_of(keyword.word);
    while (table[slot]) slot = (slot + 1) % kSlots;
    table[slot] = &keyword;
  }
  return table;
}();

constexpr auto text_of = [] {
  std::array<const char*, 256> texts{};
  for (const Keyword& keyword : keywords) texts[static_cast<std::size_t>(keyword.kw)] = keyword.word.data();
  return texts;
}();

}  // namespace

const Keyword* find_keyword(std::string_view word) {
  if (word.empty()) return nullptr;
  std::size_t slot = slot_of(word);
  while (slots[slot] && slots[slot]->word != word) slot = (slot + 1) % kSlots;
  return slots[slot];
}

const char* keyword_text(Kw kw) { return text_of[static_cast<std::size_t>(kw)]; }
