// Names and chance for the benchmark's descriptions: the same widgets with the same resources,
// whether they are written for this program or for one of its peers.
#pragma once

#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace bench {

using Words = std::array<std::string_view, 20>;

inline constexpr Words kVendors = {"Acme",   "Borealis", "Cobalt",  "Dorado",  "Ember",  "Fjord",    "Granite",
                                   "Harbor", "Indigo",   "Juniper", "Krypton", "Lumen",  "Meridian", "Nimbus",
                                   "Onyx",   "Prairie",  "Quartz",  "Rivet",   "Sierra", "Tundra"};
inline constexpr Words kManners = {"Arrow",  "Bulletin", "Cascade", "Drawn",    "Extended", "Framed", "Grid",
                                   "Hidden", "Icon",     "Joined",  "Keyboard", "Layered",  "Menu",   "Numeric",
                                   "Option", "Paned",    "Push",    "Radio",    "Scrolled", "Toggle"};
inline constexpr Words kParts = {"Bar",   "Board", "Box",   "Button", "Chart", "Dial",  "Entry",
                                 "Field", "Form",  "Frame", "Gauge",  "Label", "List",  "Manager",
                                 "Meter", "Shell", "Table", "Text",   "Tree",  "Window"};
inline constexpr Words kAdjectives = {"top",    "bottom", "left",    "right",   "default", "selected", "armed",
                                      "active", "border", "label",   "shadow",  "margin",  "visible",  "column",
                                      "row",    "scroll", "initial", "maximum", "minimum", "highlight"};
inline constexpr Words kAttributes = {"Attachment", "Offset",    "Position",  "Pixmap",      "Color",
                                      "Width",      "Height",    "Thickness", "String",      "FontList",
                                      "Policy",     "Alignment", "Spacing",   "Type",        "Callback",
                                      "Widget",     "Count",     "Items",     "Sensitivity", "Translations"};

inline constexpr std::size_t kVocabulary = kAdjectives.size() * kAttributes.size();

/// A number to tell apart names made of the same words; the first of them has none.
inline std::string number(std::size_t n) { return n == 0 ? std::string() : std::to_string(n); }

/// A small generator of chance, the same on every machine: a seed and a place give the same sequence.
class Random {
 public:
  Random(std::uint64_t seed, std::uint64_t place) : state_(seed * 0x9e3779b97f4a7c15U + place) {}

  std::size_t below(std::size_t limit) { return static_cast<std::size_t>((next() >> 11U) % limit); }
  bool chance(std::size_t percent) { return below(100) < percent; }
  std::string_view word(const Words& words) { return words[below(words.size())]; }

 private:
  std::uint64_t next() {
    std::uint64_t z = (state_ += 0x9e3779b97f4a7c15U);
    z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31U);
  }

  std::uint64_t state_;
};

inline std::string family_name(std::size_t i) {
  return std::string(kVendors[i % kVendors.size()]) + number(i / kVendors.size());
}

/// "ScrolledList", "ScrolledList1", ...: a subject that any kind of name may be built on.
inline std::string subject(std::size_t i) {
  const std::size_t manner = i / kParts.size();
  return std::string(kManners[manner % kManners.size()]) + std::string(kParts[i % kParts.size()]) +
         number(manner / kManners.size());
}

/// "acmeScrolledListWidgetClass": as headers name the variable that holds a class.
inline std::string widget_name(std::size_t i) {
  std::string name = std::string(kVendors[i / 7 % kVendors.size()]) + subject(i) + "WidgetClass";
  name[0] = static_cast<char>(std::tolower(name[0]));
  return name;
}

inline std::string vocabulary_word(std::size_t i) {
  return std::string(kAdjectives[i / kAttributes.size() % kAdjectives.size()]) +
         std::string(kAttributes[i % kAttributes.size()]);
}

/// The resources of one widget, without a prefix: "labelString". All differ; six in seven come from the vocabulary
/// that the widgets share, the others are the widget's own.
class ResourceNames {
 public:
  ResourceNames(std::size_t seed, std::size_t widget) : ResourceNames(widget, Random(seed, widget)) {}

  std::string name(std::size_t i) const {
    if (i % 7 == 6 || i >= kVocabulary) {
      return own_ + std::string(kAttributes[i % kAttributes.size()]) + number(i / kAttributes.size());
    }
    return vocabulary_word((start_ + i * step_) % kVocabulary);
  }

 private:
  // Without a common factor with the size of the vocabulary, so that no word comes twice.
  static constexpr std::array<std::size_t, 8> kSteps = {1, 7, 19, 31, 83, 127, 211, 389};

  ResourceNames(std::size_t widget, Random random)
      : own_(subject(widget)), start_(random.below(kVocabulary)), step_(kSteps[random.below(kSteps.size())]) {
    own_[0] = static_cast<char>(std::tolower(own_[0]));
  }

  std::string own_;
  std::size_t start_;
  std::size_t step_;
};

}  // namespace bench
