#ifndef VQC_CMD_SAVEFILE_ACTIONS_H
#define VQC_CMD_SAVEFILE_ACTIONS_H

#include <optional>
#include <string_view>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// A name or value that has been read, and where it stands.
struct Value {
  Text text;
  Range range;
};

/// What the grammar does with what it reads: it fills a document, and notes where everything stands if anybody wants to
/// know.
class Actions {
 public:
  Actions(Document& document, Places* places) : document_(document), places_(places) {}

  Document& document() { return document_; }

  /// A text that lives as long as the document, of one that does not.
  Text keep(std::string_view text, Range range) {
    const Text kept = document_.keep(Text(text));
    if (places_) places_->note(kept, range);
    return kept;
  }
  /// The record or family of that name in a pool, made if there is none. Null where none can have the name.
  template <class Pool>
  typename Pool::Element* define(Pool& pool, const Value& name) {
    auto* record = document_.ensure(pool, name.text);
    if (places_ && record) places_->note(record, name.range);
    return record;
  }
  /// Where a pool's record of that name was defined before, if places are noted.
  template <class Pool>
  std::optional<Range> place_of(const Pool& pool, const Value& name) const {
    return places_ ? places_->of(static_cast<const void*>(pool.find(name.text))) : std::nullopt;
  }
  /// Lets a family use the record of that name in a pool. Tells where it was named before, if places are noted.
  template <class References, class Pool>
  std::optional<Range> refer(References& references, Pool& pool, const Value& name) {
    const void* reference = document_.ensure(references, pool, name.text);
    if (!places_) return std::nullopt;
    const std::optional<Range> before = places_->of(reference);
    if (!before) places_->note(reference, name.range);
    return before;
  }

 private:
  Document& document_;
  Places* places_;
};

}  // namespace vqc

#endif
