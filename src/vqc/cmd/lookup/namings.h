#ifndef VQC_CMD_LOOKUP_NAMINGS_H
#define VQC_CMD_LOOKUP_NAMINGS_H

#include <optional>

#include "vqc/cmd/model/part.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

/// A place in a document that names a thing which is elsewhere in it, or nowhere.
struct Naming {
  Part part;  // what kind of thing
  Text name;
  Part by;  // who names it
  Text by_name;
  Text of;  // the widget where either is a resource; else null
  Kw field;
};

/// Whether that thing is named. Resources of one name are in many widgets; all other names are the document's.
inline bool names(const Naming& naming, const Spot& thing) {
  const bool is_meant = thing.part != Part::resource || naming.of.view() == thing.of;
  return naming.part == thing.part && is_meant && naming.name.view() == thing.name;
}

/// Whether a value is the name of a procedure.
constexpr bool is_procedure(ValueKind kind) { return kind >= ValueKind::name_procedure; }

/// What kind of thing a value names; none where it names nothing.
constexpr std::optional<Part> named_by(ValueKind kind) {
  if (is_procedure(kind)) return Part::procedure;
  if (kind == ValueKind::popup) return Part::popup;
  if (kind == ValueKind::header) return Part::code_header;
  return std::nullopt;
}

/// The walk of each_naming(). `Doc` is a document, constant or not, and so are its texts.
template <class Doc, class Visit>
class NamingsWalk {
 public:
  NamingsWalk(Doc& document, Visit& visit) : document_(document), visit_(visit) {}

  void all() {
    for (auto& widget : document_.widgets) in_widget(widget);
    for (auto& converter : document_.converters)
      in_fields(Part::converter, converter.name, converter_fields, converter);
    for (auto& popup : document_.popups) in_fields(Part::popup, popup.name, popup_fields, popup);
    for (auto& family : document_.families) in_family(family);
  }

 private:
  void in_text(const Naming& naming, auto& text) {
    if (text) visit_(naming, &text);
  }

  void in_value(ValueKind kind, Naming naming, auto& text) {
    const auto names = [&](Part part) {
      naming.part = part;
      in_text(naming, text);
    };
    if (const std::optional<Part> part = named_by(kind)) names(*part);
    if (kind == ValueKind::header) names(Part::config_header);  // it may be in either list
    if (naming.field == Kw::pixmap_resource) names(Part::resource);
  }

  template <class Record, std::size_t n>
  void in_fields(Part by, Text by_name, const Field<Record> (&fields)[n], auto& record, Text of = {}) {
    for (const Field<Record>& field : fields) {
      const auto* member = field.text();
      if (member) in_value(field.kind, {by, record.**member, by, by_name, of, field.word}, record.**member);
    }
  }

  void in_widget(auto& widget) {
    in_fields(Part::widget, widget.name, widget_fields, widget, widget.name);
    for (auto& resource : widget.resource_definitions) {
      const auto look = [&](Part part, Kw field, auto& text) {
        in_text({part, text, Part::resource, resource.name, widget.name, field}, text);
      };
      look(Part::popup, Kw::popup, resource.popup);
      look(Part::page, Kw::page, resource.page);
      look(Part::resource, Kw::counter, resource.counter);
    }
  }

  void in_family(auto& family) {
    in_fields(Part::family, family.name, family_init_fields, family);
    const auto look = [&](Part part, Kw field, auto& list) {
      constexpr decltype(&family.name) kNoText = nullptr;
      for (auto& reference : list)
        visit_(Naming{part, reference.record->name, Part::family, family.name, {}, field}, kNoText);
    };
    look(Part::widget, Kw::widget, family.widgets);
    look(Part::enumeration, Kw::enumeration, family.enumerations);
    look(Part::code_header, Kw::header, family.code_headers);
    look(Part::config_header, Kw::cheader, family.config_headers);
    look(Part::family_header, Kw::family_header, family.family_headers);
    look(Part::alias, Kw::alias, family.aliases);
    look(Part::converter, Kw::converter, family.converters);
    look(Part::popup, Kw::popup, family.popups);
    look(Part::page, Kw::page, family.pages);
  }

  Doc& document_;
  Visit& visit_;
};

/// Calls visit(naming, text) for each of them, in the order of the document; `text` is where the name stands, or null
/// where the document refers to the record itself.
template <class Doc, class Visit>
void each_naming(Doc& document, Visit visit) {
  NamingsWalk<Doc, Visit>(document, visit).all();
}

}  // namespace vqc

#endif
