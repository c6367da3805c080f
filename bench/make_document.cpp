// Writes a large document for the benchmark, laid out as the program itself saves one. The same seed gives the same
// document. Its order (sorted, reversed, shuffled) concerns only what the program keeps sorted, so that all three
// documents stand for the same model.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "arguments.h"
#include "names.h"

namespace {

using bench::number;
using bench::Random;
using bench::subject;

/// How many of everything there are, over all families. Resources are counted per widget, entries per enumeration.
struct Plan {
  std::size_t families = 1;
  std::size_t widgets = 25;
  std::size_t resources = 20;
  std::size_t enumerations = 5;
  std::size_t entries = 4;
  std::size_t aliases = 4;
  std::size_t converters = 3;
  std::size_t popups = 2;
  std::size_t pages = 2;
  std::size_t code_headers = 2;
  std::size_t config_headers = 2;
  std::size_t family_headers = 2;
  bool all_shared = false;  // every family lists everything there is
};

enum class Order { sorted, reversed, shuffled };

struct Setting {
  Plan plan;
  std::size_t seed;
  Order order;
};

using Texts = std::vector<std::string>;

/// Kinds of things, to draw the chances of each from a place of its own (0 is where the names of resources are drawn).
enum class Kind : std::size_t { order = 1, family, widget, enumeration, alias, converter, popup };

Random chances(const Setting& setting, Kind kind, std::size_t i) {
  return {setting.seed, (static_cast<std::size_t>(kind) << 48U) + i};
}

// Names.

std::string quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

std::string enumeration_name(std::size_t i) { return subject(i) + "Mode"; }
std::string alias_name(std::size_t i) { return "XmR" + subject(i) + "Alias"; }
std::string converter_name(std::size_t i) { return "XmR" + subject(i) + "Value"; }
std::string popup_name(std::size_t i) { return "create" + subject(i) + "Dialog"; }
std::string page_name(std::size_t i) { return subject(i) + " page"; }
std::string code_header(std::size_t i) { return "X11/widgets/" + subject(i) + "Support.h"; }
std::string config_header(std::size_t i) { return "config/" + subject(i) + "Strings.h"; }
std::string family_header(std::size_t i) { return "widgets/" + subject(i) + "Family.h"; }

constexpr std::array<std::string_view, 5> kBuiltinPages = {"display", "margins", "settings", "callbacks", "misc"};
constexpr std::array<std::string_view, 5> kBuiltinDialogs = {"font", "colour", "pixmap", "string", "fsb"};

std::string builtin_popup(std::string_view dialog) { return "vq_" + std::string(dialog) + "_dialog_create"; }

std::size_t round_up(std::size_t value, std::size_t by) { return (value + by - 1) / by; }

/// The part of `count` things that belongs to one family: first and one past the last.
std::pair<std::size_t, std::size_t> share(const Plan& plan, std::size_t count, std::size_t family) {
  if (plan.all_shared) return {0, count};
  return {round_up(family * count, plan.families), round_up((family + 1) * count, plan.families)};
}

/// One of a family's own things, or an empty text when it has none.
std::string one_of(const Plan& plan, std::size_t count, std::size_t family, Random& random,
                   std::string (*name)(std::size_t)) {
  const auto [first, end] = share(plan, count, family);
  return first == end ? "" : name(first + random.below(end - first));
}

// Pieces of text.

void field(std::string& text, std::string_view word, std::string_view value) {
  text.append("\t").append(word).append("='").append(value).append("'\n");
}

void flag(std::string& text, std::string_view word, bool value) {
  text.append("\t").append(word).append(value ? "=True\n" : "=False\n");
}

/// Puts definitions of sorted kinds in order. Each begins with its name in quotes behind the same word, and a quote
/// is less than any character of a name here, so the texts are in the order of the names.
void arrange(Texts& texts, Order order, Random random) {
  std::sort(texts.begin(), texts.end());
  if (order == Order::reversed) std::reverse(texts.begin(), texts.end());
  if (order != Order::shuffled) return;
  for (std::size_t i = texts.size(); i > 1; --i) std::swap(texts[i - 1], texts[random.below(i)]);
}

void write(std::FILE* out, std::string_view text) { std::fwrite(text.data(), 1, text.size(), out); }

// Resources and widgets.

std::string popup_of(const Setting& setting, std::size_t family, Random& random) {
  const std::size_t draw = random.below(100);
  if (draw < 10) return quoted(builtin_popup(kBuiltinDialogs[draw / 2]));
  if (draw >= 15) return "";
  const std::string own = one_of(setting.plan, setting.plan.popups, family, random, popup_name);
  return own.empty() ? "" : quoted(own);
}

std::string page_of(const Setting& setting, std::size_t family, Random& random) {
  const std::size_t draw = random.below(100);
  if (draw < 70) return quoted(kBuiltinPages[draw / 14]);
  if (draw >= 85) return "";
  const std::string own = one_of(setting.plan, setting.plan.pages, family, random, page_name);
  return own.empty() ? "" : quoted(own);
}

std::string_view free_mode(Random& random) {
  const std::size_t draw = random.below(100);
  return draw < 85 ? "VQC_FREE_DEFAULT" : draw < 93 ? "VQC_FREE" : "VQC_DONT_FREE";
}

std::string resource(const Setting& setting, std::size_t family, const std::string& name, Random& random) {
  std::string text = "'XmN" + name + "', ";
  text.append(popup_of(setting, family, random)).append(", ");
  text.append(page_of(setting, family, random)).append(", ");
  text.append(random.chance(92) ? "True, " : "False, ");
  text.append(free_mode(random)).append(", ");
  text.append(free_mode(random));
  if (random.chance(15)) text.append(" access ").append(std::to_string(1 + random.below(7)));
  if (random.chance(3)) text.append(" counter 'XmN" + name + "Count'");
  return text;
}

void add_resources(std::string& text, const Setting& setting, std::size_t widget, std::size_t family, Random& random) {
  if (setting.plan.resources == 0) return;
  const bench::ResourceNames names(setting.seed, widget);
  Texts lines;
  for (std::size_t i = 0; i < setting.plan.resources; ++i) {
    lines.push_back(resource(setting, family, names.name(i), random));
  }
  arrange(lines, setting.order, random);
  text.append("\tresource_definitions=");
  for (const std::string& line : lines) text.append(line).append(&line == &lines.back() ? ";\n" : ",\n");
}

/// A procedure of the widget's own, or one that it has in common with other widgets of its family.
void procedure(std::string& text, std::string_view word, std::string_view verb, std::size_t percent,
               const std::string& own, const std::string& common, Random& random) {
  if (!random.chance(percent)) return;
  field(text, word, std::string(verb) + (random.chance(50) ? own : common));
}

void add_procedures(std::string& text, const std::string& own, const std::string& common, Random& random) {
  procedure(text, "defined_name", "defined_name_of_", 5, own, common, random);
  procedure(text, "realise", "create_", 10, own, common, random);
  procedure(text, "abstract", "abstract_edit_", 5, own, common, random);
  procedure(text, "can_add_child", "child_test_", 8, own, common, random);
  procedure(text, "appropriate_parent", "parent_test_", 8, own, common, random);
}

void add_flags(std::string& text, Random& random) {
  if (random.chance(4)) flag(text, "can_manage", false);
  if (random.chance(4)) flag(text, "can_edit_abstract", false);
  if (random.chance(4)) flag(text, "disablegoto", true);
  if (random.chance(8)) flag(text, "disablefgswap", true);
  if (random.chance(8)) flag(text, "can_create", false);
  if (random.chance(10)) flag(text, "default_is_dont_free", true);
  if (random.chance(5)) flag(text, "generate_initialise", true);
}

void add_icons_and_help(std::string& text, const std::string& own, Random& random) {
  const bool icons = random.chance(25);
  if (icons) field(text, "largeicon", own + "Large");
  if (icons) field(text, "smallicon", own + "Small");
  if (icons) field(text, "largeiconheader", "icons/" + own + "Large.xbm");
  if (icons) field(text, "smalliconheader", "icons/" + own + "Small.xbm");
  if (random.chance(8)) field(text, "pixmap_resource", "labelPixmap");
  const bool dialogue = random.chance(10);
  if (dialogue) field(text, "dialogue_doc", "dialogues.html");
  if (dialogue) field(text, "dialogue_tag", own + "Dialogue");
  const bool help = random.chance(30);
  if (help) field(text, "widget_doc", "widgets.html");
  if (help) field(text, "widget_tag", own);
}

std::string widget(const Setting& setting, std::size_t i) {
  Random random = chances(setting, Kind::widget, i);
  const std::size_t family = i * setting.plan.families / setting.plan.widgets;
  const std::string own = subject(i);
  std::string text = "widget " + quoted(bench::widget_name(i)) + " {\n";
  if (random.chance(90))
    field(text, "include_filename", "X11/widgets/" + subject(random.chance(90) ? i : i / 2) + ".h");
  add_procedures(text, own, bench::family_name(family), random);
  add_flags(text, random);
  add_icons_and_help(text, own, random);
  add_resources(text, setting, i, family, random);
  return text.append("}\n");
}

// The other definitions.

std::string enumeration(const Setting& setting, std::size_t i) {
  Random random = chances(setting, Kind::enumeration, i);
  std::string text = "enumeration " + quoted(enumeration_name(i)) + " {\n";
  field(text, "typename", "XmR" + subject(i));
  for (std::size_t entry = 0; entry < setting.plan.entries; ++entry) {
    const std::string word = bench::vocabulary_word(random.below(bench::kVocabulary)) + number(entry);
    text.append("\tenumentry " + quoted(word) + "{\n");
    text.append("\t").append("\tcode_symbol='Xm").append(word).append("'\n");
    text.append("\t").append("\tresfile_symbol='").append(word).append("'\n\t}\n");
  }
  return text.append("}\n");
}

std::string alias(const Setting& setting, std::size_t i) {
  Random random = chances(setting, Kind::alias, i);
  std::string text = "alias " + quoted(alias_name(i)) + " {\n";
  field(text, "to_name", "XmR" + std::string(random.word(bench::kAttributes)));
  return text.append("}\n");
}

std::string converter(const Setting& setting, std::size_t i) {
  Random random = chances(setting, Kind::converter, i);
  const std::size_t family = i * setting.plan.families / setting.plan.converters;
  std::string text = "converter " + quoted(converter_name(i)) + " {\n";
  if (random.chance(90)) field(text, "proc_name", "convertStringTo" + subject(i));
  const std::string popup = one_of(setting.plan, setting.plan.popups, family, random, popup_name);
  if (!popup.empty() && random.chance(40)) field(text, "dialog", popup);
  if (random.chance(70)) flag(text, "add_in_vq", true);
  if (random.chance(70)) flag(text, "add_in_code", true);
  return text.append("}\n");
}

std::string popup(const Setting& setting, std::size_t i) {
  Random random = chances(setting, Kind::popup, i);
  std::string text = "popup " + quoted(popup_name(i)) + " {\n";
  field(text, "dialog_init", "initialise" + subject(i) + "Dialog");
  if (random.chance(60)) field(text, "dialog_update", "update" + subject(i) + "Dialog");
  return text.append("}\n");
}

std::string builtin_popup_definition(std::string_view dialog) {
  std::string text = "popup " + quoted(builtin_popup(dialog)) + " {\n";
  field(text, "dialog_init", "vq_" + std::string(dialog) + "_dialog_initialise");
  return text.append("}\n");
}

// Families.

/// One line for each of a family's things of one kind.
Texts references(const Setting& setting, std::size_t family, std::string_view word, std::size_t count,
                 std::string (*name)(std::size_t)) {
  Texts lines;
  const auto [first, end] = share(setting.plan, count, family);
  for (std::size_t i = first; i < end; ++i) field(lines.emplace_back(), word, name(i));
  return lines;
}

void add_lines(std::string& text, const Texts& lines) {
  for (const std::string& line : lines) text.append(line);
}

/// For the lists that a family keeps sorted.
void add_arranged(std::string& text, const Setting& setting, std::size_t family, Texts lines) {
  arrange(lines, setting.order, chances(setting, Kind::order, family));
  add_lines(text, lines);
}

void add_family_init(std::string& text, std::size_t i, Random& random) {
  field(text, "family_init", "initialise" + bench::family_name(i) + "Family");
  flag(text, "generate_family_init_code", random.chance(50));
  flag(text, "generate_family_init_stub", random.chance(50));
  flag(text, "generate_family_init_vq", random.chance(50));
  flag(text, "generate_family_init_pre_shell", random.chance(10));
}

/// The family's own widgets and, as families do, a few that its neighbour has too.
void add_widgets(std::string& text, const Setting& setting, std::size_t i) {
  add_lines(text, references(setting, i, "widget", setting.plan.widgets, bench::widget_name));
  if (setting.plan.all_shared || i + 1 == setting.plan.families) return;
  const auto [first, end] = share(setting.plan, setting.plan.widgets, i + 1);
  for (std::size_t w = first; w < end; w += 50) field(text, "widget", bench::widget_name(w));
}

void add_popups(std::string& text, const Setting& setting, std::size_t i) {
  Texts lines = references(setting, i, "popup", setting.plan.popups, popup_name);
  for (const std::string_view dialog : kBuiltinDialogs) field(lines.emplace_back(), "popup", builtin_popup(dialog));
  add_arranged(text, setting, i, std::move(lines));
}

void add_pages(std::string& text, const Setting& setting, std::size_t i) {
  for (const std::string_view page : kBuiltinPages) field(text, "page", page);
  add_lines(text, references(setting, i, "page", setting.plan.pages, page_name));
}

std::string family(const Setting& setting, std::size_t i) {
  const Plan& plan = setting.plan;
  Random random = chances(setting, Kind::family, i);
  std::string text = "family " + quoted(bench::family_name(i)) + " {\n";
  if (random.chance(50)) add_family_init(text, i, random);
  add_widgets(text, setting, i);
  add_arranged(text, setting, i, references(setting, i, "enumeration", plan.enumerations, enumeration_name));
  add_lines(text, references(setting, i, "header", plan.code_headers, code_header));
  add_lines(text, references(setting, i, "cheader", plan.config_headers, config_header));
  add_lines(text, references(setting, i, "family_header", plan.family_headers, family_header));
  add_arranged(text, setting, i, references(setting, i, "alias", plan.aliases, alias_name));
  add_arranged(text, setting, i, references(setting, i, "converter", plan.converters, converter_name));
  add_popups(text, setting, i);
  add_pages(text, setting, i);
  return text.append("}\n");
}

// The document.

Texts definitions(const Setting& setting, std::size_t count, std::string (*define)(const Setting&, std::size_t)) {
  Texts texts;
  texts.reserve(count);
  for (std::size_t i = 0; i < count; ++i) texts.push_back(define(setting, i));
  return texts;
}

Texts header_lines(std::string_view word, std::size_t count, std::string (*name)(std::size_t)) {
  Texts lines;
  for (std::size_t i = 0; i < count; ++i) lines.push_back(std::string(word) + " " + quoted(name(i)) + "\n");
  return lines;
}

void write_pool(std::FILE* out, const Setting& setting, Texts texts) {
  arrange(texts, setting.order, chances(setting, Kind::order, 0));
  for (const std::string& text : texts) write(out, text);
}

void write_popups(std::FILE* out, const Setting& setting) {
  Texts popups = definitions(setting, setting.plan.popups, popup);
  for (const std::string_view dialog : kBuiltinDialogs) popups.push_back(builtin_popup_definition(dialog));
  write_pool(out, setting, std::move(popups));
}

/// Pages and families keep the order in which they were added, whatever the order of the rest.
void write_pages(std::FILE* out, const Plan& plan) {
  for (const std::string_view page : kBuiltinPages) write(out, "page " + quoted(page) + "\n");
  for (std::size_t i = 0; i < plan.pages; ++i) write(out, "page " + quoted(page_name(i)) + "\n");
}

constexpr std::string_view kHead =
    "VQconfig\n"
    "code_name='bench_code.c'\n"
    "config_name='bench_config.c'\n"
    "stubs_name='bench_stubs.c'\n"
    "generate_family_table_string='bench_families'\n"
    "stop_list = 'acmeArrowBarWidgetClass,acmeArrowBoardWidgetClass'\n";

void write_document(std::FILE* out, const Setting& setting) {
  const Plan& plan = setting.plan;
  write(out, kHead);
  write_pool(out, setting, definitions(setting, plan.widgets, widget));
  write_pool(out, setting, definitions(setting, plan.enumerations, enumeration));
  write_pool(out, setting, header_lines("header", plan.code_headers, code_header));
  write_pool(out, setting, header_lines("cheader", plan.config_headers, config_header));
  write_pool(out, setting, header_lines("family_header", plan.family_headers, family_header));
  write_pool(out, setting, definitions(setting, plan.aliases, alias));
  write_pool(out, setting, definitions(setting, plan.converters, converter));
  write_popups(out, setting);
  write_pages(out, plan);
  for (std::size_t i = 0; i < plan.families; ++i) write(out, family(setting, i));
}

// Shapes: the plain one grows everything with the number of families; each of the others lets one list grow.

void plain(Plan& plan, std::size_t) {
  const std::size_t families = plan.families;
  for (std::size_t Plan::*count : {&Plan::enumerations, &Plan::aliases, &Plan::converters, &Plan::popups, &Plan::pages,
                                   &Plan::code_headers, &Plan::config_headers, &Plan::family_headers}) {
    plan.*count *= families;
  }
}

void all_shared(Plan& plan, std::size_t count) {
  plan.widgets = 1000;
  plan.families = std::max<std::size_t>(2, count / plan.widgets);
  plan.enumerations = plan.aliases = plan.converters = plan.popups = plan.pages = 100;
  plan.code_headers = plan.config_headers = plan.family_headers = 100;
  plan.all_shared = true;
}

/// Widgets that use the pages or popups grow with them, so that looking one up is measured too.
void used_by_widgets(Plan& plan, std::size_t count) { plan.widgets = std::max<std::size_t>(25, count / 50); }

using Shape = void (*)(Plan&, std::size_t count);

const std::map<std::string, Shape> kShapes = {
    {"plain", plain},
    {"one-family", [](Plan& plan, std::size_t count) { plan.widgets = count; }},
    {"all-shared", all_shared},
    {"family-per-widget", [](Plan& plan, std::size_t count) { plan.families = plan.widgets = count; }},
    {"headers", [](Plan& plan, std::size_t count) { plan.family_headers = count; }},
    {"code-headers", [](Plan& plan, std::size_t count) { plan.code_headers = count; }},
    {"config-headers", [](Plan& plan, std::size_t count) { plan.config_headers = count; }},
    {"enumerations", [](Plan& plan, std::size_t count) { plan.enumerations = count; }},
    {"enum-entries", [](Plan& plan, std::size_t count) { plan.enumerations = 1, plan.entries = count; }},
    {"aliases", [](Plan& plan, std::size_t count) { plan.aliases = count; }},
    {"converters", [](Plan& plan, std::size_t count) { plan.converters = plan.popups = count; }},
    {"popups", [](Plan& plan, std::size_t count) { plan.popups = count, used_by_widgets(plan, count); }},
    {"pages", [](Plan& plan, std::size_t count) { plan.pages = count, used_by_widgets(plan, count); }},
    {"resources", [](Plan& plan, std::size_t count) { plan.widgets = 1, plan.resources = count; }},
};

const std::map<std::string, Order> kOrders = {
    {"sorted", Order::sorted}, {"reversed", Order::reversed}, {"shuffled", Order::shuffled}};

}  // namespace

int main(int argc, char** argv) {
  const bench::Arguments arguments({{"--families", "1"},
                                    {"--widgets", "25"},
                                    {"--resources", "20"},
                                    {"--seed", "1"},
                                    {"--order", "sorted"},
                                    {"--shape", "plain"},
                                    {"--count", "50000"},
                                    {"--output", "-"}},
                                   argc, argv);
  Setting setting{{}, arguments.number("--seed"), arguments.choice("--order", kOrders)};
  setting.plan.families = arguments.positive("--families");
  setting.plan.widgets = arguments.positive("--widgets");
  setting.plan.resources = arguments.number("--resources");
  arguments.choice("--shape", kShapes)(setting.plan, arguments.positive("--count"));
  std::FILE* out = bench::open_output(arguments.text("--output"));
  write_document(out, setting);
  return bench::close_output(out);
}
