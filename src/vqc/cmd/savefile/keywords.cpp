#include "vqc/cmd/savefile/keywords.h"

#include <algorithm>
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
static_assert(std::ranges::is_sorted(keywords, {}, &Keyword::word), "looked up by halves");

/// Where the keywords of each first letter begin: most words of a document are no keywords, and few letters have many.
constexpr auto first_with_letter = [] {
  std::array<std::uint8_t, 257> first{};
  std::size_t k = 0;
  for (std::size_t letter = 0; letter < first.size(); ++letter) {
    while (k < std::size(keywords) && static_cast<unsigned char>(keywords[k].word[0]) < letter) ++k;
    first[letter] = static_cast<std::uint8_t>(k);
  }
  return first;
}();

constexpr auto text_of = [] {
  std::array<const char*, 256> texts{};
  for (const Keyword& keyword : keywords) texts[static_cast<std::size_t>(keyword.kw)] = keyword.word.data();
  return texts;
}();

}  // namespace

const Keyword* find_keyword(std::string_view word) {
  if (word.empty()) return nullptr;
  const auto letter = static_cast<unsigned char>(word[0]);
  const Keyword* begin = keywords + first_with_letter[letter];
  const Keyword* end = keywords + first_with_letter[letter + std::size_t{1}];
  const Keyword* found =
      std::lower_bound(begin, end, word, [](const Keyword& k, std::string_view w) { return k.word < w; });
  return found != end && found->word == word ? found : nullptr;
}

const char* keyword_text(Kw kw) { return text_of[static_cast<std::size_t>(kw)]; }
