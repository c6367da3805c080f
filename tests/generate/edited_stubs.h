#ifndef GENERATE_EDITED_STUBS_H
#define GENERATE_EDITED_STUBS_H

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// Random stubs files as people leave them behind. Every line that a person writes has a word of its own, which begins
// with "mine_". What comes out compiles.

/// Where random numbers come from. The same seed gives the same numbers everywhere.
class Dice {
 public:
  explicit Dice(unsigned seed) : numbers_(seed) {}

  /// From 0 up to, and without, `end`.
  std::size_t below(std::size_t end) { return numbers_() % end; }
  bool once_in(std::size_t times) { return below(times) == 0; }
  template <class Thing>
  const Thing& one_of(const std::vector<Thing>& things) {
    return things[below(things.size())];
  }
  template <class Thing>
  void shuffle(std::vector<Thing>& things) {
    for (std::size_t i = things.size(); i > 1; --i) std::swap(things[i - 1], things[below(i)]);
  }

 private:
  std::mt19937 numbers_;
};

/// The procedures that a random document names: each as "WORD='NAME'" of a widget or popup of its own.
struct RandomDocument {
  std::vector<std::pair<std::string, std::string>> procedures;  // word and name
  std::vector<std::string> headers;

  static RandomDocument make(Dice& dice) {
    const std::vector<std::string> words = {"defined_name",       "realise",     "abstract",      "can_add_child",
                                            "appropriate_parent", "dialog_init", "dialog_update", "popup"};
    RandomDocument document;
    for (int i = 0; i < 7; ++i) {
      if (!dice.once_in(3)) document.procedures.emplace_back(dice.one_of(words), "p" + std::to_string(i));
    }
    for (const char* header : {"stdio.h", "X11/Shell.h", "X11/Core.h"}) {
      if (dice.once_in(2)) document.headers.emplace_back(header);
    }
    return document;
  }

  /// The same without some procedures.
  RandomDocument smaller(Dice& dice) const {
    RandomDocument document = *this;
    std::erase_if(document.procedures, [&](const auto&) { return dice.once_in(3); });
    return document;
  }

  std::string items() const {
    std::string items;
    std::string family = "family 'F' { ";
    for (const auto& [word, name] : procedures) {
      const bool is_popup = word == "popup" || word.starts_with("dialog");
      const std::string record = word == "popup" ? name : "own_" + name;
      items += std::string(is_popup ? "popup '" : "widget '") + record + "' { ";
      items += word == "popup" ? "}\n" : word + "='" + name + "' }\n";
      family += std::string(is_popup ? "popup" : "widget") + "='" + record + "' ";
    }
    for (const std::string& header : headers) family += "header='" + header + "' ";
    return items + family + "}\n";
  }
};

/// A person who edits a fresh stubs file.
class Person {
 public:
  Person(Dice& dice, std::string_view fresh) : dice_(dice) { edit(fresh); }

  /// The file as it is then.
  const std::string& file() const { return file_; }
  /// The procedures about which nothing can be done for certain: defined twice, declared, or without their mark.
  const std::set<std::string>& unclear() const { return unclear_; }

 private:
  std::string word() { return "mine_" + std::to_string(++words_); }

  static std::string between(std::string_view text, std::string_view begin, std::string_view end) {
    const std::size_t first = text.find(begin) + begin.size();
    return std::string(text.substr(first, text.find(end, first) - first));
  }

  std::string body() {
    std::string body = dice_.once_in(2) ? "{\n" : "{ /* } " + word() + " */\n";
    for (std::size_t i = dice_.below(4); i > 0; --i) {
      const std::string name = word();
      body += dice_.one_of<std::string>({
          "\tchar *" + name + " = \"}\" \"\\\"{\";\n",
          "\tint " + name + " = '{' + '\\'' + '}'; // don't } {\n",
          "#if 1 /* " + name + " */\n\t{ int " + word() + " = 1;\n#else /* " + word() + " */\n\t{ int " + word() +
              " = 2;\n#endif /* " + word() + " */\n\t} /* " + word() + " */\n",
          "\t/* " + name + " {{{\n\t** " + word() + " '\n\t" + word() + " */\n",
          "#if 0\n\tdon't { " + name + "\n#endif\n",
          "\tint " + name + "[] = { 1, \\\n\t\t2 }; /* " + word() + " */\n",
          "\n\t  \n",
      });
    }
    return body + (dice_.once_in(4) ? "\t/* " + word() + " */ }\n" : "}\n");
  }

  /// A helper or whatever else stands between stubs.
  std::string extra() {
    const std::string name = word();
    return dice_.one_of<std::string>({
        "int " + name + "(a, b)\n\tint a; /* " + word() + " */\n\tchar *b;\n{ /* " + word() +
            " */\n\treturn a + !b; /* " + word() + " } */\n}\n",
        "static char *" + name + "[] = { \"}\", \"{\" };\n",
        "#include <stddef.h> /* " + name + " */\n",
        "/* " + name + "\n** vqconfig " + word() + " {\n*/\n\n",
        "// " + name + " isn't \\\n   over yet, " + word() + " {\n",
        "#define " + name + "(x) { x; \\\n\t} /* " + word() + " */\n",
        "struct " + name + " { int a; };\nstruct " + name + " *of_" + name + "(void) { return 0; } /* " + word() +
            " */\n",
        "\n\n",
    });
  }

  /// The head as a person may have made it.
  std::string head(const std::string& generated) {
    const std::string new_style = between(generated, "#ifndef   _NO_PROTO\n", "#else");
    const std::string old_style = between(generated, "#else  /* _NO_PROTO */\n", "#endif");
    switch (dice_.below(8)) {
      case 0:
        return new_style;
      case 1:
        return old_style;
      case 2:
        return "/* " + word() + " */ " + new_style;
      case 3:
        return "__attribute__((used)) /* " + word() + " */\n" + new_style;
      case 4:
        return new_style.substr(0, new_style.size() - 1) + " ";
      case 5:
        return "#ifdef _NO_PROTO /* " + word() + " */\n" + old_style + "#else\n" + new_style + "#endif\n";
      default:
        return generated;
    }
  }

  std::string function(const std::string& name, const std::string& generated_head, const std::string& untouched) {
    std::string text = head(generated_head);
    text += dice_.once_in(3) ? untouched : body();
    switch (dice_.below(20)) {
      case 0:
        return "#if 1 /* " + word() + " */\n" + text + "#endif /* " + word() + " */\n";
      case 1:
        unclear_.insert(name);
        return "#ifdef " + word() + "\n" + text + "#else\n" + generated_head + body() + "#endif\n";
      default:
        return text;
    }
  }

  void add_stub(std::string_view stub, std::vector<std::string>& pieces) {
    const std::size_t head = stub.find("#ifndef   _NO_PROTO");
    const std::size_t body = stub.find("\n{\n") + 1;
    const std::string mark(stub.substr(0, head));
    const std::string name = between(mark, "stub: ", "\n");
    const std::string generated_head(stub.substr(head, body - head));
    const std::string text =
        function(name, generated_head, std::string(stub.substr(body, stub.find("\n}\n") + 3 - body)));
    if (dice_.once_in(16)) {
      declarations_ += between(generated_head, "#ifndef   _NO_PROTO\n", "\n#else") + "; /* " + word() + " */\n";
      unclear_.insert(name);
    }
    if (dice_.once_in(6)) uses_ += "void *" + word() + " = (void *) " + name + ";\n";
    if (dice_.once_in(16)) {
      unclear_.insert(name);
      pieces.push_back(text);
    } else if (dice_.once_in(5)) {
      pieces.insert(pieces.end(), {mark, text});
    } else {
      pieces.push_back(mark + text);
    }
  }

  void edit(std::string_view fresh) {
    constexpr std::string_view kMark = "/*\n** vqconfig generated stub: ";
    std::vector<std::string> pieces;
    const std::size_t prelude = std::min(fresh.find(kMark), fresh.size());
    for (std::size_t at = prelude; at < fresh.size();) {
      const std::size_t next = std::min(fresh.find(kMark, at + 1), fresh.size());
      add_stub(fresh.substr(at, next - at), pieces);
      at = next;
    }
    if (dice_.once_in(2)) dice_.shuffle(pieces);
    file_ = std::string(fresh.substr(0, prelude)) + declarations_;
    for (const std::string& piece : pieces) {
      while (dice_.once_in(3)) file_ += extra();
      file_ += piece;
    }
    file_ += uses_;
    if (dice_.once_in(3)) file_ += extra();
    if (dice_.once_in(4) && file_.ends_with('\n')) file_.pop_back();
    if (dice_.once_in(3)) use_crlf();
  }

  void use_crlf() {
    std::string text;
    for (char c : file_) c == '\n' ? text += "\r\n" : text += c;
    file_ = std::move(text);
  }

  Dice& dice_;
  int words_ = 0;
  std::string file_;
  std::string declarations_;
  std::string uses_;
  std::set<std::string> unclear_;
};

/// The lines of a text, without their ends.
inline std::vector<std::string> lines_of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    if (lines.back().ends_with('\r')) lines.back().pop_back();
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

#endif
