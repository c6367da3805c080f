// Writes the widgets of a document, with the same names and resources, as descriptions for other generators: a Wayland
// protocol, a Thrift interface, a FlatBuffers schema, a UIL module.

#include <array>
#include <cctype>
#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "arguments.h"
#include "names.h"

namespace {

/// "labelString" as "label_string", for the peers that want their words apart.
std::string lower(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (std::isupper(static_cast<unsigned char>(c)) != 0) text.push_back('_');
    text.push_back(static_cast<char>(std::tolower(c)));
  }
  return text;
}

void append(std::string& text, std::initializer_list<std::string_view> pieces) {
  for (const std::string_view piece : pieces) text.append(piece);
}

/// How a peer's language spells a whole file, a widget and one resource of it.
struct Language {
  std::string_view head;
  std::string_view foot;
  void (*open)(std::string& text, const std::string& widget);
  void (*resource)(std::string& text, const std::string& name, std::size_t index);
  std::string_view close;
};

// A request or event for most resources, an enumeration for some.
void wayland_open(std::string& text, const std::string& widget) {
  append(text, {"  <interface name=\"", lower(widget), "\" version=\"1\">\n"});
}

void wayland_enumeration(std::string& text, const std::string& name) {
  append(text, {"    <enum name=\"", name, "\">\n"});
  append(text, {"      <entry name=\"none\" value=\"0\" summary=\"no ", name, "\"/>\n"});
  append(text, {"      <entry name=\"both\" value=\"1\" summary=\"any ", name, "\"/>\n    </enum>\n"});
}

void wayland_message(std::string& text, std::string_view kind, const std::string& name, std::string_view type) {
  append(text, {"    <", kind, " name=\"", name, "\">\n"});
  append(text, {"      <arg name=\"value\" type=\"", type, "\" summary=\"the new ", name, "\"/>\n"});
  append(text, {"    </", kind, ">\n"});
}

void wayland_resource(std::string& text, const std::string& name, std::size_t index) {
  if (index % 5 == 4) return wayland_enumeration(text, lower(name));
  wayland_message(text, index % 2 == 0 ? "request" : "event", lower(name), index % 3 == 0 ? "string" : "int");
}

void thrift_open(std::string& text, const std::string& widget) { append(text, {"struct ", widget, " {\n"}); }

void thrift_resource(std::string& text, const std::string& name, std::size_t index) {
  constexpr std::array<std::string_view, 4> kTypes = {"string", "i32", "bool", "double"};
  append(text, {"  ", std::to_string(index + 1), ": optional ", kTypes[index % 4], " ", name, ",\n"});
}

void flatbuffers_open(std::string& text, const std::string& widget) { append(text, {"table ", widget, " {\n"}); }

void flatbuffers_resource(std::string& text, const std::string& name, std::size_t index) {
  constexpr std::array<std::string_view, 4> kTypes = {"string", "int", "bool", "double"};
  append(text, {"  ", lower(name), ":", kTypes[index % 4], ";\n"});
}

// UIL knows no classes but a program's own: each widget is an object of a creation procedure, each resource an
// argument. Its names have at most 31 characters, so the last word, "WidgetClass", is left out.
void uil_open(std::string& text, const std::string& widget) {
  append(text, {"object ", widget.substr(0, widget.rfind("WidgetClass"))});
  text.append(" : user_defined procedure create_widget {\n  arguments {\n");
}

void uil_resource(std::string& text, const std::string& name, std::size_t index) {
  const bool is_text = index % 3 == 0;
  append(text, {"    argument('", name, is_text ? "', string) = '" : "', integer) = ", is_text ? name : "17",
                is_text ? "';\n" : ";\n"});
}

const std::map<std::string, Language> kLanguages = {
    {"wayland",
     {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<protocol name=\"bench\">\n", "</protocol>\n", wayland_open,
      wayland_resource, "  </interface>\n"}},
    {"thrift", {"namespace cpp bench\n", "", thrift_open, thrift_resource, "}\n"}},
    {"flatbuffers", {"namespace bench;\n", "", flatbuffers_open, flatbuffers_resource, "}\n"}},
    {"uil",
     {"module bench\nnames = case_sensitive\nprocedure create_widget();\n", "end module;\n", uil_open, uil_resource,
      "  };\n};\n"}},
};

std::string widget(const Language& language, std::size_t seed, std::size_t index, std::size_t resources) {
  const bench::ResourceNames names(seed, index);
  std::string text;
  language.open(text, bench::widget_name(index));
  for (std::size_t i = 0; i < resources; ++i) language.resource(text, names.name(i), i);
  return text.append(language.close);
}

void write(std::FILE* out, std::string_view text) { std::fwrite(text.data(), 1, text.size(), out); }

}  // namespace

int main(int argc, char** argv) {
  const bench::Arguments arguments(
      {{"--language", "wayland"}, {"--widgets", "25"}, {"--resources", "20"}, {"--seed", "1"}, {"--output", "-"}}, argc,
      argv);
  const Language language = arguments.choice("--language", kLanguages);
  std::FILE* out = bench::open_output(arguments.text("--output"));
  write(out, language.head);
  for (std::size_t i = 0; i < arguments.number("--widgets"); ++i) {
    write(out, widget(language, arguments.number("--seed"), i, arguments.number("--resources")));
  }
  write(out, language.foot);
  return bench::close_output(out);
}
